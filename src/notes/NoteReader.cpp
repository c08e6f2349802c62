#include "notes/NoteReader.h"

#include "notes/NoteFields.h"

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

ShownNote readNote(std::wstring_view fileName, std::string_view bytes, const CodePage& codePage,
                   HourFormat format, NoteKinds kinds) {
  ShownNote note;
  note.title = titleOf(fileName);
  if (const std::optional<NoteKind> kind = kindOfFileName(fileName, kinds)) {
    std::visit(Shower{format, note}, readFields(*kind, bytes, codePage));
  }
  return note;
}

}  // namespace kalvora
