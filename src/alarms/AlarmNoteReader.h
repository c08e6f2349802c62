#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/CodePage.h"
#include "base/FileSystem.h"
#include "notes/NoteFieldReader.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// What keeps a note from ringing and is told to the user.
enum class NoteFault {
  TooLarge,   // refused for its length
  Unreadable  // a number in it cannot be read, or the file cannot, though it is there
};

struct FaultyNote {
  std::wstring fileName;
  NoteFault fault;
  friend bool operator==(const FaultyNote&, const FaultyNote&) = default;
};

/// Reads the first fields of the notes of a folder one after another, for the alarms. The folder
/// is listed once at most, when this object is made, and each note is opened and read once. One
/// note is open at a time.
class AlarmNoteReader {
 public:
  /// `files` and `codePage` must outlive this object.
  AlarmNoteReader(const FileSystem& files, const CodePage& codePage,
                  const std::filesystem::path& folder);
  /// Of a few notes that were listed before: the folder is not listed.
  AlarmNoteReader(const FileSystem& files, const CodePage& codePage, std::filesystem::path folder,
                  std::vector<std::wstring> names);

  /// The file names of a kind, in the order of the list.
  const std::vector<std::wstring>& list(NoteKind kind) const;

  /// Whether no note is listed, of any kind.
  bool listsNone() const;
  /// Whether no note is listed because the folder cannot be listed.
  bool folderIsAway() const;

  /// Initialise reading: opens a note of a list. False where it cannot be read: a file that
  /// vanished after it was listed is no fault, one that is still there is; both are among
  /// unread(), but for a device's name, which can never be read. A file of more than
  /// kLargestNoteSize bytes is refused: it counts as opened, and all its fields are empty.
  bool Inicjuj_czytanie(const std::wstring& fileName);
  /// Read a variable: the next field of the open note; one NUL character for a field that the file
  /// no longer has.
  std::wstring Czytaj_zmienna();
  /// Read a variable, weekly: the next field, of a weekly note's weekdays.
  std::wstring Czytaj_zmienna_weak() { return Czytaj_zmienna(); }
  /// Finish reading.
  void Zakoncz_czytanie() { fields_.reset(); }

  /// Remembers that a number of this note cannot be read.
  void addUnreadable(const std::wstring& fileName);
  /// Hands over the notes that were found faulty since the last call, in the order of reading.
  std::vector<FaultyNote> takeFaults() { return std::exchange(faults_, {}); }
  /// The notes that could not be opened and may be a little later, in the order of reading.
  const std::vector<std::wstring>& unread() const { return unread_; }
  /// Hands them over.
  std::vector<std::wstring> takeUnread() { return std::exchange(unread_, {}); }

 private:
  const FileSystem& files_;
  const CodePage& codePage_;
  const std::filesystem::path folder_;
  const std::unique_ptr<FolderReader> reader_;
  std::array<std::vector<std::wstring>, kNoteKinds.size()> File2_;
  std::string bytes_;
  std::optional<NoteFieldReader> fields_;  // nothing while no note is open, and for a refused one
  std::vector<FaultyNote> faults_;
  std::vector<std::wstring> unread_;
};

/// Whether a field is empty, or the file no longer has it, which reads as one NUL character.
bool isMissing(std::wstring_view field);

/// A number field of a note; nothing where it is missing.
/// Throws ConversionError and OverflowError for what is no 16-bit number.
std::optional<std::int16_t> fieldNumber(std::wstring_view field);

}  // namespace kalvora
