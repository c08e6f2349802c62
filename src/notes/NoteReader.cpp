#include "notes/NoteReader.h"

#include <utility>

namespace kalvora {

namespace {

void showTime(const std::wstring& hour, const std::wstring& minute, HourFormat format,
              ShownNote& note) {
  if (hour.empty() && minute.empty()) return;
  ShownHour shown = shownHourOrText(hour, format);
  note.time = std::move(shown.hour) + L":" + minute;
  note.half = shown.half;
}

struct Shower {
  HourFormat format;
  ShownNote& note;

  template <typename Fields>
  void operator()(const Fields& fields) const {
    if constexpr (requires { fields.hour; }) {
      showTime(withoutNuls(fields.hour), withoutNuls(fields.minute), format, note);
    }
    note.text = withoutNuls(fields.content);
  }
};

}  // namespace

ShownNote shownFields(const NoteFields& fields, HourFormat format) {
  ShownNote note;
  std::visit(Shower{format, note}, fields);
  return note;
}

ShownNote readNote(std::wstring_view fileName, std::string_view bytes, const CodePage& codePage,
                   HourFormat format, NoteKinds kinds) {
  ShownNote note;
  if (const std::optional<NoteKind> kind = kindOfFileName(fileName, kinds)) {
    note = shownFields(readFields(*kind, bytes, codePage), format);
  }
  note.title = titleOf(fileName);
  return note;
}

}  // namespace kalvora
