#include "notes/NoteWriter.h"

#include "base/Errors.h"
#include "base/Numbers.h"
#include "notes/NoteContent.h"
#include "notes/NoteKind.h"

namespace kalvora {

namespace {

constexpr char kSeparator = '|';
constexpr wchar_t kTimeSeparator = L':';

constexpr std::wstring_view kAlarmMinute = L"The minute of the note's alarm: ";

void requireDigits(std::wstring_view text, std::wstring_view where) {
  if (text.find_first_not_of(L"0123456789") == std::wstring_view::npos) return;
  ConversionError error(text);
  error.prefix(where);
  throw error;
}

}  // namespace

std::string joinFields(const NoteFields& fields, const CodePage& codePage,
                       std::string_view storedContent) {
  NoteFields copy = fields;
  std::string bytes;
  const std::vector<std::wstring*> texts = inFileOrder(copy);
  for (const std::wstring* text : texts) {
    if (text == texts.back()) {
      bytes += contentToStore(*text, storedContent, codePage);
    } else {
      bytes += codePage.toBytes(*text);
      bytes += kSeparator;
    }
  }
  return bytes;
}

void requireNoteSize(const std::filesystem::path& file, std::string_view bytes) {
  if (bytes.size() <= kLargestNoteSize) return;
  throw Failure(L"This note is too large to be saved, it takes " + std::to_wstring(bytes.size()) +
                L" bytes, and a note can hold " + std::to_wstring(kLargestNoteSize) + L": " +
                file.wstring());
}

ClockFields alarmLineFields(std::wstring_view time, HalfOfDay half, HourFormat format) {
  const std::size_t colon = time.find(kTimeSeparator);
  const std::wstring_view hour = time.substr(0, colon);
  const std::wstring_view minute =
      colon == std::wstring_view::npos ? std::wstring_view() : time.substr(colon + 1);
  // A second ":" is no digit either. Also what keeps the two fields apart: a "|" is no digit.
  requireDigits(hour, kAlarmHour);
  requireDigits(minute, kAlarmMinute);
  return {storedHour(hour, half, format), std::wstring(minute), {}};
}

std::string fastNoteBytes(std::wstring_view time, std::wstring_view text, HalfOfDay half,
                          HourFormat format, const CodePage& codePage,
                          std::string_view storedContent) {
  ClockFields fields = alarmLineFields(time, half, format);
  fields.content = text;
  return joinFields(fields, codePage, storedContent);
}

}  // namespace kalvora
