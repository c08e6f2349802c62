#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/AlarmLine.h"
#include "app/DateTexts.h"
#include "app/Form1View.h"
#include "app/MainWindowDraft.h"
#include "app/NoteOnShow.h"
#include "app/Settings.h"
#include "base/Clock.h"
#include "notes/LeftNote.h"
#include "notes/NoteFolder.h"
#include "notes/NoteStorage.h"
#include "skin/SkinnedWindow.h"
#include "skin/TitleScroller.h"

namespace kalvora {

/// The two Delete buttons: one shows the note before, the other asks if the user wants to be asked,
/// and leaves what is shown then to its caller.
enum class DeleteKind { Plain, Fast };

/// What became of a note that was to be shown.
enum class NoteOpening { Shown, Gone, TooLarge, Unreadable };

/// How much of a moment is shown.
enum class ShownMoment { Date, DateAndMinute };

/// Shows the notes of the note folder in the main window, one at a time, and makes, saves and
/// deletes them. What was typed and not saved is kept as a draft before another note comes.
class NoteBrowser {
 public:
  /// All must outlive this object.
  NoteBrowser(const NoteStorage& storage, const Clock& clock, const DateTexts& dateTexts,
              Form1View& view, const Settings& settings, SkinnedWindow& window,
              TitleScroller& scroller);

  /// Read at a button: keeps the current index inside the list and shows the note there, or the
  /// "no notes" state where there are none.
  void Odczytaj_na_przycisku();
  /// Read: shows the note file `name` of the note folder. A file that vanished only brings the
  /// list up to date; one over 32767 bytes is refused with a message; of one that cannot be read
  /// the title is shown, and a sentence in place of its text. Whichever it is, the current name is
  /// already the file's.
  void odczytaj(std::wstring_view name);
  /// The same without a message. Of a note that cannot be shown nothing is shown yet.
  NoteOpening open(std::wstring_view name);
  /// Shows the title of a note that cannot be shown, and a sentence that says why.
  void showInstead(std::wstring_view name, NoteOpening opening);

  /// Begins a new note, of which nothing is written until it is saved. The time of the note before
  /// stays in its box, without Keep_typing.
  void startNewNote();
  /// Save: with Keep_typing writes what the window shows in its own kind, as by saveTyped(); a new
  /// note without words is a Failure. Otherwise as the fast note of this title, in
  /// place of the file of the current name, as by saveNote(). Returns whether it was written; the
  /// user can decline where the text holds characters that a note cannot store. Throws
  /// ConversionError and OverflowError for a time that is none, Failure for a note that would be
  /// too large to be opened again and for the sentence that stands in for a note, FileError.
  bool zapisz(std::wstring_view title);
  /// Shows the note that was just saved, with Keep_typing; otherwise the one in its place.
  void showAfterSave();

  /// What is typed is left: with Keep_typing it is saved. Returns whether it may be left, which the
  /// user can decline where it cannot be saved; false also where another note came on show while
  /// the question was open.
  bool leave();
  /// The same where nothing waits for an answer: what cannot be saved is a draft.
  void saveQuietly() noexcept;
  /// The same of the note that was put aside.
  void saveAside() noexcept;
  /// As leave(), of the note that was put aside, while a reminder is on show over it.
  bool leaveAside();

  /// With Keep_typing the note on show goes with its file, and the one put aside with its own. What
  /// was not typed over shows what is in the file; what was typed over a note that is deleted is
  /// left as a draft.
  void noteWritten(std::wstring_view fileName);
  void noteRenamed(std::wstring_view from, std::wstring_view to);
  void noteDeleted(std::wstring_view fileName);

  /// Temporary save, to be deleted: writes what zapisz() writes to `path` and ".txt", and unlocks
  /// the title; while the title was locked, that file is deleted first. Leaves the file of the
  /// current name alone. Nothing in the program calls it.
  void zapisz_temporay_do_zmazania____________OooooooO(const std::filesystem::path& path);
  /// Delete at a button: deletes the note on show. Returns whether it is still on show and its
  /// place is to be taken, which is so after a fast delete that the user did not cancel, unless
  /// another note came meanwhile. Throws FileError, also where the file is gone.
  bool Del_na_przycisku(DeleteKind fast);

  /// Takes all that is in the window out of it, typed and not saved as it is, unless something was
  /// put aside before. For a reminder that comes into the open window.
  void putAside();
  bool hasAside() const { return aside_.has_value(); }
  /// What was typed by then is kept as a draft, where that failed before.
  void keepAside() noexcept;
  /// Shows it again. A note in which nothing was typed is read anew. What was typed into one that
  /// was deleted meanwhile is a new note's, without Keep_typing also into one that was changed.
  /// Returns false where there is nothing to show: the current note is to come.
  bool bringBack();

  /// Makes the title, the text and the time read-only, or editable again.
  void setEditing(Editing editing);
  Editing editing() const { return titleEditing_; }

  /// Reads the list anew and shows the first note, its text read-only; where there is none, an
  /// empty text that can be typed in, titled "Untiled".
  void showFirstAfterEditing();
  /// Shows the first note at the next Odczytaj_na_przycisku.
  void goToFirst() { currentIndex_ = 0; }
  void goToPrevious();
  void goToNext();

  /// Shows another moment in place of the note's date.
  void showMoment(const LocalTime& time, ShownMoment shown);
  /// Draws the date and the position of the note on show again, in the rows of a new skin.
  void drawRows();
  /// Reads the list of notes anew.
  void refresh();
  /// The list that was just read, or another one where a message stood open since.
  const SharedListing& listOfNow();

  AlarmLine& alarmLine() { return alarmLine_; }
  /// The options were applied: what is on show follows them, and what is not typed stays so.
  void followOptions();

  /// What is typed and not saved.
  MainWindowDraft& draft() { return draft_; }

 private:
  void showNoNotes();
  std::wstring positionText() const;
  void showPosition(std::wstring_view text);
  void showDate(std::wstring_view text);
  void showFile(std::wstring_view name);
  void showAgain(const NoteAside& aside);
  bool goTo(const std::filesystem::path& file);
  bool hasTypedNote() const;
  std::wstring oldNameOf(const NoteOnShow& note) const;
  LeftNote noteOnShow() const;
  std::optional<LeftNote> noteAside() const;
  bool saveInOwnKind();
  enum class AttendedSave { Declined, Done, OfNoteBefore };
  AttendedSave saveAttended();
  void saveAside(Attendance attendance);
  SavedNote save(const LeftNote& left, Attendance attendance);
  void take(NoteKind kind, const SavedNote& saved, NoteOnShow& note) const;
  void takeSaved(const TypedNote& typed, const SavedNote& saved);
  void showSaved();
  bool userLeavesUnsaved(const Failure& failure);
  static void requireNote(const NoteOnShow& note);
  bool isOtherThan(const NoteOnShow& note) const;
  void readUnderTyped(std::wstring_view fileName);
  void showTyped(const NoteAside::Field& field);
  bool isFollowed(const NoteOnShow& note, std::wstring_view fileName) const;
  std::string bytesToSave(const std::filesystem::path& file) const;
  bool userAcceptsReplacedCharacters() const;
  void deleteFile(const std::filesystem::path& file);
  bool deleteFast();
  void deletePlain();
  void setTitleEditing(Editing editing);

  NoteStorage storage_;
  NoteFolder folder_;
  const DateTexts& dateTexts_;
  Form1View& view_;
  const Settings& settings_;
  SkinnedWindow& window_;
  TitleScroller& scroller_;
  AlarmLine alarmLine_;
  NoteOnShow onShow_;
  std::optional<NoteAside> aside_;
  MainWindowDraft draft_;
  // The note files in the order in which they are shown.
  SharedListing File1_ = std::make_shared<const FolderListing>();
  bool listIsOld_ = false;  // a message stood open since it was read
  std::int16_t currentIndex_ = 0;
  Editing titleEditing_ = Editing::Allowed;
};

}  // namespace kalvora
