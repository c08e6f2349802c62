#pragma once

#include <map>
#include <string>
#include <vector>

#include "coming/ComingHost.h"

namespace kalvora {

/// The rest of the program as the list of what comes sees it.
class FakeComingHost : public ComingHost {
 public:
  NoteKinds noteKinds() const override { return kinds; }
  HourFormat hourFormat() const override { return format; }
  ComingMarks comingMarks() override { return marks; }
  std::optional<NoteTime> rememberedTime(NoteKind, const ListedFile& note) const override {
    const auto found = times.find(note.name);
    return found == times.end() ? std::nullopt : std::optional(found->second);
  }
  unsigned noteChanges() const override { return changes; }
  void openNote(NoteKind kind, std::wstring_view title) override {
    opened.emplace_back(std::wstring(title) + std::wstring(extensionOf(kind)));
  }

  NoteKinds kinds = kNoteKinds;
  HourFormat format = HourFormat::Hours24;
  ComingMarks marks;
  std::map<std::wstring, NoteTime> times;  // remembered, by file name
  unsigned changes = 0;
  std::vector<std::wstring> opened;
};

}  // namespace kalvora
