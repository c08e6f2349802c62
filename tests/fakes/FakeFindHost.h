#pragma once

#include <string>
#include <vector>

#include "find/FindHost.h"

namespace kalvora {

/// The rest of the program as the window "Find" sees it.
class FakeFindHost : public FindHost {
 public:
  NoteKinds noteKinds() const override { return kinds; }
  unsigned noteChanges() const override { return changes; }
  void openNoteAt(NoteKind kind, std::wstring_view title, const PlaceInNote& place) override {
    opened.emplace_back(std::wstring(title) + std::wstring(extensionOf(kind)));
    places.push_back(place);
  }

  NoteKinds kinds = kNoteKinds;
  unsigned changes = 0;
  std::vector<std::wstring> opened;
  std::vector<PlaceInNote> places;
};

}  // namespace kalvora
