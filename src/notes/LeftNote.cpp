#include "notes/LeftNote.h"

#include <algorithm>

#include "base/DeviceName.h"
#include "base/InputFilters.h"
#include "base/Text.h"
#include "notes/NoteWriter.h"

namespace kalvora {

namespace {

constexpr std::wstring_view kUntitled = L"Untiled";
constexpr std::wstring_view kLineEnds = L"\r\n";
constexpr wchar_t kSeparator = L'|';  // of the fields of a file
/// Letters of a name that is made of a text.
constexpr std::size_t kLongestMadeName = 40;

std::wstring& contentOf(NoteFields& fields) {
  return *inFileOrder(fields).back();
}

/// As much of a line as makes a name, whole words where there are several.
std::wstring nameFrom(std::wstring_view line) {
  std::wstring name(trimmed(Zabezpieczenie_plik(line, 0).text));
  if (name.size() > kLongestMadeName) {
    const std::size_t wordEnd = name.rfind(L' ', kLongestMadeName);
    name.resize(wordEnd == std::wstring::npos ? kLongestMadeName : wordEnd);
  }
  // The extension brings its own dot.
  name.resize(name.find_last_not_of(L" .") + 1);
  return namesDevice(name) ? std::wstring() : name;
}

/// Of the first line that has any; empty where none has.
std::wstring firstWords(std::wstring_view text) {
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of(kLineEnds), text.size());
    if (std::wstring name = nameFrom(text.substr(0, end)); !name.empty()) return name;
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return {};
}

std::wstring madeName(const NoteFolder& folder, const TypedNote& note) {
  NoteFields fields = note.fields;
  std::wstring name = firstWords(contentOf(fields));
  if (name.empty()) name = note.name.empty() ? kUntitled : note.name;
  return folder.freeName(note.kind, name);
}

/// A name that another note has, or that no file can have.
std::wstring otherName(const NoteFolder& folder, const TypedNote& note, const std::wstring& oldName,
                       Attendance attendance) {
  const bool usable = !note.name.empty() && !namesDevice(note.name);
  if (attendance == Attendance::Unattended) {
    if (usable) return folder.freeName(note.kind, note.name);
    return oldName == kKeepFileName ? madeName(folder, note) : oldName;
  }
  if (note.name.empty()) throw Failure(L"A note needs a name.");
  throw Failure((usable ? L"There is already a note of this name: "
                        : L"Windows keeps this name for a device: ") +
                note.name);
}

std::wstring nameToSave(const NoteFolder& folder, const TypedNote& note,
                        const std::wstring& oldName, Attendance attendance) {
  if (equalIgnoringCase(note.name, oldName)) return note.name;
  if (oldName == kKeepFileName && isGivenName(note.name)) return madeName(folder, note);
  const bool free =
      !note.name.empty() && !namesDevice(note.name) && !folder.has(note.kind, note.name);
  return free ? note.name : otherName(folder, note, oldName, attendance);
}

void requireStorable(const TypedNote& note, const CodePage& codePage, Attendance attendance) {
  if (!note.unstorable.empty()) {
    throw Failure((hasClockTime(note.kind) ? L"This is no time of day: "
                                           : L"A note of this kind has no time of day: ") +
                  note.unstorable);
  }
  if (attendance == Attendance::Unattended && !isStorable(note, codePage)) {
    throw Failure(L"The text has characters that a note cannot store.");
  }
}

/// What the file holds by now, where it is there and of a size that a note can have.
NoteAsRead noteOfNow(const NoteFolder& folder, const CodePage& codePage, const LeftNote& left) {
  const NoteKind kind = left.typed.kind;
  if (!folder.has(kind, left.oldName)) return left.read;
  const std::optional<std::string> bytes = folder.read(kind, left.oldName);
  return bytes ? noteAsRead(kind, *bytes, codePage) : left.read;
}

/// As other characters are replaced by the code page.
void replaceSeparators(NoteFields& fields) {
  std::ranges::replace(contentOf(fields), kSeparator, L'?');
}

}  // namespace

std::wstring notSavedQuestion(const Failure& reason, bool isDraft) {
  constexpr std::wstring_view kKept =
      L"\r\n\r\nWhat you typed is kept as a draft, which Restore\x2026 in the note editor brings "
      L"back. Leave the note without saving it?";
  constexpr std::wstring_view kLost =
      L"\r\n\r\nWhat you typed cannot be kept as a draft either. Leave the note and lose it?";
  return reason.message() + std::wstring(isDraft ? kKept : kLost);
}

bool isWorthSaving(const TypedNote& note, std::wstring_view oldName) {
  NoteFields fields = note.fields;
  return oldName != kKeepFileName || !isGivenName(note.name) || !trimmed(contentOf(fields)).empty();
}

bool isStorable(std::wstring_view text, const CodePage& codePage) {
  return text.find(kSeparator) == std::wstring_view::npos && codePage.holds(text);
}

bool isStorable(const TypedNote& note, const CodePage& codePage) {
  NoteFields fields = note.fields;
  return isStorable(contentOf(fields), codePage);
}

SavedNote saveTyped(NoteFolder& folder, const CodePage& codePage, const LeftNote& left,
                    Attendance attendance) {
  requireStorable(left.typed, codePage, attendance);
  const bool isNew = left.oldName == kKeepFileName;
  const TypedNote inWindow = isNew ? left.typed : mergedWith(left, left.read);
  TypedNote note = isNew ? inWindow : mergedWith(left, noteOfNow(folder, codePage, left));
  const bool isAsTyped = note == inWindow && isStorable(note, codePage);
  replaceSeparators(note.fields);
  SavedNote saved{nameToSave(folder, note, left.oldName, attendance),
                  joinFields(note.fields, codePage, note.storedContent), isAsTyped};
  if (saved.name != left.oldName || !folder.holds(note.kind, saved.name, saved.bytes)) {
    folder.save(note.kind, saved.name, left.oldName, saved.bytes);
  }
  return saved;
}

}  // namespace kalvora
