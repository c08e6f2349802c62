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

/// Reads the first fields of the notes of a listing one after another, for the alarms. One note is
/// open at a time.
class AlarmNoteReader {
 public:
  /// Of the notes in `folder` that are in the listing, and of these kinds. `files` and `codePage`
  /// must outlive this object.
  AlarmNoteReader(const FileSystem& files, const CodePage& codePage, std::filesystem::path folder,
                  SharedListing listing, NoteKinds kinds);

  /// Calls `visit` with each note of a kind, in the order of the listing.
  template <typename Visitor>
  void forEach(NoteKind kind, const Visitor& visit) const {
    for (const std::uint32_t place : File2_[static_cast<std::size_t>(kind)]) {
      visit((*listing_)[place]);
    }
  }
  const SharedListing& listing() const { return listing_; }

  /// Whether no note is listed, of any kind.
  bool listsNone() const;
  /// Whether no note is listed because the folder cannot be listed.
  bool folderIsAway() const;

  /// Initialise reading: opens a note of a list. False where it cannot be read: a file that
  /// vanished after it was listed is no fault, one that is still there is; both are among
  /// unread(), but for a device's name, which can never be read. A file of more than
  /// kLargestNoteSize bytes is refused: it counts as opened, and all its fields are empty.
  bool Inicjuj_czytanie(std::wstring_view fileName);
  /// Whether the open note was refused.
  bool refused() const { return !fields_; }
  /// Read a variable: the next field of the open note; one NUL character for a field that the file
  /// no longer has.
  std::wstring Czytaj_zmienna();
  /// Read a variable, weekly: the next field, of a weekly note's weekdays.
  std::wstring Czytaj_zmienna_weak() { return Czytaj_zmienna(); }
  /// Finish reading.
  void Zakoncz_czytanie() { fields_.reset(); }

  /// Remembers that a number of this note cannot be read.
  void addUnreadable(std::wstring_view fileName);
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
  const SharedListing listing_;
  std::array<std::vector<std::uint32_t>, kNoteKinds.size()> File2_;  // places in the listing
  std::string bytes_;
  std::optional<NoteFieldReader> fields_;  // nothing while no note is open, and for a refused one
  std::vector<FaultyNote> faults_;
  std::vector<std::wstring> unread_;
};

}  // namespace kalvora
