#include "notes/Draft.h"

#include <algorithm>
#include <array>

#include "base/DeviceName.h"
#include "base/Errors.h"
#include "base/Utf8.h"
#include "notes/NoteContent.h"
#include "notes/NoteFieldReader.h"
#include "notes/NoteReader.h"
#include "notes/NoteWriter.h"

namespace kalvora {

namespace {

constexpr std::wstring_view kLineEnd = L"\r\n";

constexpr std::array<std::wstring_view, 3> kGivenNames = {L"", L"Untiled", L"New"};

std::wstring nameForFile(std::wstring_view name, std::size_t longest) {
  std::wstring usable(namesDevice(name) ? L"_" : L"");
  usable += name;
  return usable.substr(0, longest);
}

bool isHeld(std::wstring_view text, const CodePage& codePage) {
  const std::string bytes = codePage.toBytes(text);
  // A text that begins like the mark would be taken for UTF-8.
  return codePage.toText(bytes) == text && !bytes.starts_with(kUtf8Mark);
}

std::wstring timeAsTyped(std::wstring_view time, HalfOfDay half, HourFormat format) {
  std::wstring text(time);
  if (format == HourFormat::Hours12) text += half == HalfOfDay::Am ? L" AM" : L" PM";
  return text;
}

/// The hour as a save stores it, so that two that say the same are the same text.
std::wstring plainHour(const std::wstring& hour) {
  try {
    return storedHour(hour, HalfOfDay::Am, HourFormat::Hours24);
  } catch (const Failure&) {
    return hour;
  }
}

/// Throws Failure for a time that is none.
void takeTime(NoteFields& fields, std::wstring_view time, HalfOfDay half, HourFormat format) {
  const ClockFields typed = alarmLineFields(time, half, format);
  std::visit(
      [&](auto& own) {
        if constexpr (requires { own.hour; }) {
          if (plainHour(own.hour) != typed.hour) own.hour = typed.hour;
          own.minute = typed.minute;
        } else {
          throw Failure(std::wstring(time));
        }
      },
      fields);
}

std::wstring withLineAbove(std::wstring_view line, std::wstring text) {
  if (!line.empty()) text.insert(0, std::wstring(line) + std::wstring(kLineEnd));
  return text;
}

/// Everything before the text.
std::string_view headOf(NoteKind kind, std::string_view bytes, const CodePage& codePage) {
  NoteFields fields = emptyFields(kind);
  std::size_t length = 0;
  for (std::size_t left = inFileOrder(fields).size() - 1; left > 0; --left) {
    const std::size_t separator = findSeparator(bytes, length, codePage);
    if (separator == std::string_view::npos) return bytes;
    length = separator + 1;
  }
  return bytes.substr(0, length);
}

std::string_view contentBytes(NoteKind kind, std::string_view bytes, const CodePage& codePage) {
  return bytes.substr(headOf(kind, bytes, codePage).size());
}

}  // namespace

TypedNote typedFastNote(std::wstring_view title, std::wstring_view time, std::wstring_view text,
                        HalfOfDay half, HourFormat format) {
  TypedNote note{NoteKind::Fast, std::wstring(title), {}, {}, {}};
  ClockFields fields;
  try {
    fields = alarmLineFields(time, half, format);
  } catch (const Failure&) {
    note.unstorable = timeAsTyped(time, half, format);
  }
  fields.content = text;
  note.fields = std::move(fields);
  return note;
}

NoteAsRead noteAsRead(NoteKind kind, std::string_view bytes, const CodePage& codePage) {
  NoteAsRead note{kind, readFields(kind, bytes, codePage), storedContentOf(kind, bytes, codePage)};
  for (std::wstring* field : inFileOrder(note.fields)) {
    if (*field == std::wstring(1, L'\0')) field->clear();
  }
  return note;
}

TypedNote typedInOwnKind(const NoteAsRead& read, std::wstring_view title, std::wstring_view time,
                         std::wstring_view text, HalfOfDay half, HourFormat format) {
  TypedNote note{read.kind, std::wstring(title), read.fields, {}, read.content};
  const ShownNote shown = shownFields(read.fields, format);
  if (time != shown.time || half != shown.half.value_or(half)) {
    try {
      takeTime(note.fields, time, half, format);
    } catch (const Failure&) {
      note.unstorable = timeAsTyped(time, half, format);
    }
  }
  *inFileOrder(note.fields).back() = text;
  return note;
}

bool isBlank(const TypedNote& note) {
  NoteFields untouched = emptyFields(note.kind);
  if (auto* weekly = std::get_if<WeeklyFields>(&untouched)) weekly->weekdays.fill(L"0");
  if (auto* yearly = std::get_if<YearlyFields>(&untouched)) yearly->month = L"0";
  return note.unstorable.empty() && note.fields == untouched && isGivenName(note.name);
}

bool isGivenName(std::wstring_view name) {
  return std::ranges::find(kGivenNames, name) != kGivenNames.end();
}

Draft draftOf(const TypedNote& note, const CodePage& codePage, std::size_t longestName) {
  const std::size_t longest = std::min(longestName, kLongestDraftName);
  NoteFields fields = note.fields;
  std::wstring& text = *inFileOrder(fields).back();
  Draft draft{note.kind, nameForFile(note.name, longest), {}, true};
  draft.canBeSaved = note.unstorable.empty() && !namesDevice(note.name) && isHeld(text, codePage);
  text = withLineAbove(note.unstorable, text);
  if (note.name.size() > longest) text = withLineAbove(note.name, text);
  if (isHeld(text, codePage)) {
    draft.bytes = joinFields(fields, codePage, note.storedContent);
  } else {
    const std::string encoded = toUtf8(text);
    text.clear();
    draft.bytes = joinFields(fields, codePage).append(kUtf8Mark).append(encoded);
  }
  return draft;
}

std::wstring contentOf(NoteKind kind, std::string_view bytes, const CodePage& codePage) {
  return withoutNuls(codePage.toText(contentBytes(kind, bytes, codePage)));
}

std::wstring contentOfDraft(NoteKind kind, std::string_view bytes, const CodePage& codePage) {
  const std::string_view content = contentBytes(kind, bytes, codePage);
  if (!content.starts_with(kUtf8Mark)) return contentOf(kind, bytes, codePage);
  return fromUtf8(content.substr(kUtf8Mark.size()));
}

std::string noteOfDraft(NoteKind kind, std::string_view bytes, const CodePage& codePage) {
  if (!contentBytes(kind, bytes, codePage).starts_with(kUtf8Mark)) return std::string(bytes);
  return std::string(headOf(kind, bytes, codePage)) +
         codePage.toBytes(contentOfDraft(kind, bytes, codePage));
}

std::string withReadableText(NoteKind kind, std::string_view bytes, const CodePage& codePage) {
  std::string readable(bytes);
  std::size_t separator = headOf(kind, bytes, codePage).size();
  while ((separator = findSeparator(readable, separator, codePage)) != std::string::npos) {
    readable[separator] = '?';
  }
  return readable;
}

}  // namespace kalvora
