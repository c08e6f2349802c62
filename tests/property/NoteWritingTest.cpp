#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

#include "notes/NoteReader.h"
#include "notes/NoteWriter.h"

namespace kalvora {
namespace {

/// A text that comes back from a file: no separator, no NUL, whole line ends, in the code page.
std::wstring writableText() {
  std::wstring text;
  for (const int code : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0x1F, 0xFF))) {
    if (code == 0x1F) {
      text += L"\r\n";
    } else if (code != L'|' && (code < 0x80 || code >= 0xA0)) {
      text += static_cast<wchar_t>(code);
    }
  }
  return text;
}

RC_GTEST_PROP(NoteWriting, aSavedFastNoteIsShownAgainAsItWas, ()) {
  const Windows1252 codePage;
  const HourFormat format = *rc::gen::element(HourFormat::Hours12, HourFormat::Hours24);
  const HalfOfDay half = *rc::gen::element(HalfOfDay::Am, HalfOfDay::Pm);
  // 0 at pm is stored as 12, which is 12 at am: the one time that does not come back.
  const int hour =
      format == HourFormat::Hours12 ? *rc::gen::inRange(1, 13) : *rc::gen::inRange(0, 25);
  const std::wstring time =
      std::to_wstring(hour) + L":" + std::to_wstring(*rc::gen::inRange(0, 60));
  const std::wstring text = writableText();

  const std::string bytes = fastNoteBytes(time, text, half, format, codePage);
  const ShownNote shown = readNote(L"a.txt", bytes, codePage, format, kNoteKinds);
  RC_ASSERT(shown.time == time);
  RC_ASSERT(shown.text == text);
  if (format == HourFormat::Hours12) RC_ASSERT(shown.half == half);
  RC_ASSERT(fastNoteBytes(shown.time, shown.text, half, format, codePage) == bytes);
}

}  // namespace
}  // namespace kalvora
