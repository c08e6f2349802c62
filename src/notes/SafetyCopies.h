#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/Clock.h"
#include "base/FileSystem.h"
#include "base/FileWriter.h"
#include "notes/Draft.h"
#include "notes/NoteKind.h"
#include "notes/SafetyCopyName.h"

namespace kalvora {

/// The copies of notes in the folder `backup`. Each is named after its note and the moment, as in
/// "Gym 2027-03-28 06-29-58.tx1", so that it can be opened without this program too; a draft as in
/// "Gym 2027-03-28 06-29-58 draft.tx1". Files of other names in the folder are the user's own: they
/// are neither listed nor counted nor removed.
class SafetyCopies {
 public:
  /// What the folder holds at most of copies, and of drafts once more, and of either once more of
  /// files larger than any note: the oldest make room for new ones of their sort alone. A single
  /// file of more bytes can only be moved in: then it stays until the next of its sort comes,
  /// beyond the limit.
  static constexpr std::size_t kMostCopies = 200;
  static constexpr std::uintmax_t kMostBytes = 8U << 20U;

  /// All must outlive this object. The folder is made with the first copy. `kinds` tells which
  /// kinds of notes the user has now: copies of other ones count as the user's own files, so that
  /// they outlast the time until the user has that kind again.
  SafetyCopies(std::filesystem::path folder, const FileSystem& files, FileWriter& writer,
               const Clock& clock, std::function<NoteKinds()> kinds)
      : folder_(std::move(folder)),
        files_(files),
        writer_(writer),
        clock_(clock),
        kinds_(std::move(kinds)) {}

  /// Makes a copy of a file that is to go, by moving it: that takes no room on the disk. An older
  /// copy that equals it goes. False where it cannot be moved: then all is as it was. A file that
  /// is no note is moved too; from then on it is one of the user's own.
  bool moveIn(const std::filesystem::path& file) noexcept;
  /// Copies a file that is about to be removed; one that is gone needs no copy. Throws FileError
  /// where it is there and no copy can be made of it.
  void keepBeforeRemoving(const std::filesystem::path& file);
  /// Copies a note's file that is about to become `bytes`, unless it holds just these; on a full
  /// disk drafts make room for that. A newest copy that equals it becomes the copy of this moment.
  /// Returns the copy's place; nothing where there is none.
  std::optional<std::filesystem::path> keepBeforeWriting(const std::filesystem::path& note,
                                                         std::string_view bytes) noexcept;

  /// Keeps a draft, in the place of the same note's draft `former` where there is one that can be
  /// written; a `former` of another note goes. Returns its place, at which it is still being typed
  /// until leaveDraft() or dropDraft(). Throws FileError, with `former` as it was.
  std::filesystem::path keepDraft(const Draft& draft,
                                  const std::optional<std::filesystem::path>& former);
  /// The draft of this place is not written any more.
  void leaveDraft(const std::filesystem::path& place) noexcept;
  void dropDraft(const std::filesystem::path& place) noexcept;
  bool isBeingTyped(const SafetyCopy& draft) const;
  /// A draft could not be kept, not even after room was made for it.
  void hearDraftFault(std::wstring_view reason);
  /// The reason why a draft was lost that was not told yet; empty where there is none.
  std::wstring takeDraftFault() { return std::exchange(draftFault_, {}); }
  /// Makes a left draft one of this moment, where it can be renamed: what it holds was typed again,
  /// and is not to go as something old. Returns its place.
  std::filesystem::path renewDraft(const std::filesystem::path& place);
  /// Whether the file of that place is named as a draft of this note.
  static bool isPlaceOf(const std::filesystem::path& place, const Draft& draft);
  /// The newest draft of this note but for those that are still being typed, which hold something
  /// else at the next moment.
  std::optional<std::filesystem::path> newestLeftDraftOf(const Draft& draft) const;

  /// The most letters of a note's name that a copy or a draft can bear, where its folder lies.
  std::size_t longestName() const;

  std::vector<SafetyCopy> newestFirst() const;
  /// What is dropped last comes first: the newest, and all drafts behind the copies. What was made
  /// before the clock was set back by days, and so comes from the future, counts as older than the
  /// rest.
  std::vector<SafetyCopy> dearestFirst() const;
  /// All bytes of a copy. Throws FileError.
  std::string read(const SafetyCopy& copy) const;
  /// In bytes; 0 for one that is gone.
  std::uintmax_t size(const SafetyCopy& copy) const;
  /// Throws FileError for one that cannot be removed.
  void remove(const SafetyCopy& copy);
  /// Makes a copy that was removed anew, where that can be done.
  void putBack(const SafetyCopy& copy, std::string_view bytes) noexcept;

 private:
  /// Throws FileError.
  std::filesystem::path copy(const std::filesystem::path& file, std::string_view bytes);
  /// An older copy of a file becomes one of this moment, if it can be renamed. Returns its place.
  std::filesystem::path renewed(const std::filesystem::path& copy,
                                const std::filesystem::path& file, CopyKind kind) noexcept;
  std::filesystem::path freePlaceFor(const std::filesystem::path& file, CopyKind kind) const;
  /// The newest copy of a note, but for this one.
  std::optional<std::filesystem::path> newestOf(const std::filesystem::path& note,
                                                const std::filesystem::path& except) const;
  /// Whether a copy holds just these bytes; one that cannot be read does not.
  bool holds(const std::filesystem::path& copy, std::string_view bytes) const noexcept;
  std::filesystem::path writeDraft(const Draft& draft,
                                   const std::optional<std::filesystem::path>& former);
  /// False where it cannot be removed.
  bool drop(const std::filesystem::path& copy) noexcept;
  void tidyUp(const std::filesystem::path& file, const std::filesystem::path& movedTo) noexcept;
  /// Of the copies, or of the drafts where `justMade` is one.
  void dropOldest(const std::filesystem::path& justMade);
  std::vector<std::filesystem::path> beyondTheLimits(const std::filesystem::path& justMade) const;

  std::filesystem::path folder_;
  const FileSystem& files_;
  FileWriter& writer_;
  const Clock& clock_;
  std::function<NoteKinds()> kinds_;
  std::set<std::filesystem::path> beingTyped_;  // the places of drafts
  std::wstring draftFault_;                     // not told yet
};

}  // namespace kalvora
