#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Clock.h"
#include "base/CodePage.h"
#include "base/FileSystem.h"
#include "base/FileWriter.h"
#include "notes/All_Notes_frmView.h"
#include "notes/DraftTimer.h"
#include "notes/EditorState.h"
#include "notes/LeftNote.h"
#include "notes/LiveDraft.h"
#include "notes/NoteFolder.h"
#include "notes/NotePageReader.h"
#include "notes/NotePageWriter.h"
#include "notes/PlaceInNote.h"
#include "notes/SafetyCopies.h"

namespace kalvora {

/// What the note editor works with. All of it outlives the editor.
struct EditorPorts {
  const FileSystem& files;
  FileWriter& writer;
  const CodePage& codePage;
  All_Notes_frmView& view;
  All_Notes_frmHost& host;
  std::filesystem::path notesFolder;
  SafetyCopies& copies;
  const Clock& clock;
};

/// The keys held together with another one.
enum class HeldKeys { None, CtrlAlone, Other };

/// The note editor's presenter: makes, changes, renames and deletes notes of every kind that the
/// user has when it is opened, a page a kind. It can be opened again after it was closed.
class All_Notes_frm {
 public:
  static constexpr int kTabKey = 9;
  static constexpr int kFindKey = 'F';

  explicit All_Notes_frm(const EditorPorts& ports);

  /// Load the form: shows the daily page, with nothing loaded, and the names of all notes.
  void Form_Load();
  /// A key in the form: ctrl+Tab goes to the next tab, from the last one to the first; ctrl+F to
  /// the field for words to find. Returns whether it was one of these.
  bool Form_KeyDown(int keyCode, HeldKeys held);
  /// The user chose a tab.
  void tbsOptions_Click(NoteKind tab);
  /// The user chose a name in the list of a kind: reads that note. The list then marks the note on
  /// the page, which is the former one where the chosen one was refused. Throws FileError, with the
  /// page as it was and the list brought up to date.
  void File_list_box_Click(NoteKind kind);
  /// The user changed a number list: what is no digit vanishes.
  void numberList_Change(const EditorControl& control);
  /// The user changed a name: what no note may be named with vanishes.
  void FName_Change(NoteKind kind);

  /// The user changed any field of a page. Starts the timer that keeps it, unless it runs.
  void fieldChanged();
  /// Draft_Timer: keeps what is typed on the pages. Once; the next change starts it
  /// again, and so does a draft that could not be kept.
  void Draft_Timer();
  /// Keeps what is typed on the pages and not saved; where the editor is closed, nothing is.
  void keepTyped() noexcept;
  /// All that is typed is left: with the wish to keep it each page is saved that differs from what
  /// it was filled with. Returns whether it may be left, which the user can decline where a page
  /// cannot be saved; that page comes to the front.
  bool leave();
  /// The same where nothing waits for an answer: what cannot be saved is a draft.
  void saveQuietly() noexcept;
  /// With that wish a page goes with its note. What was not typed over shows what is in the file;
  /// what was typed over a note that is deleted is left as a draft.
  void noteWritten(std::wstring_view fileName);
  void noteRenamed(std::wstring_view from, std::wstring_view to);
  void noteDeleted(std::wstring_view fileName);
  /// Takes the form away, as the program's end does; what is typed is kept.
  void unload() noexcept;

  /// New: empties the page for a note that has no file yet. One for one date begins with the next
  /// full hour.
  void cmdNew(NoteKind kind);
  /// Save: writes the page, unless the user answers a question with Cancel; with the wish to keep
  /// what is typed as by saveTyped(), and nothing where there are no words. Throws OverflowError,
  /// Failure for a note too large or what saveTyped() throws, FileError; then files and page are as
  /// they were.
  void cmdSave(NoteKind kind);
  /// Delete: deletes the file of the note on the page, without a question, and leaves the page, so
  /// that it can be saved again. A notice then says so, and that Restore brings the note back where
  /// there is a copy; it stands until a name, a tab or a button is chosen. Throws FileError, with
  /// all as it was.
  void cmdDel(NoteKind kind);
  /// Restore: offers the safety copies, and brings the chosen one back as a note of its own,
  /// without touching another one or what is on the pages. The page of its kind comes to the front,
  /// where its name is in the list. Throws FileError.
  void cmdRestore();
  /// What comes: opens the window that lists when notes are due.
  void cmdWhatComes() { host_.showWhatComes(); }
  /// Find: opens the window that finds notes, with the words in the editor's field for them.
  void cmdFind(std::wstring_view words) { host_.showFind(words); }
  /// Goes to a note, of which another window told: its page with the note on it, and a place in its
  /// text. One that is on its page already stays there as it is typed over. Throws what
  /// File_list_box_Click() throws.
  void showNote(NoteKind kind, std::wstring_view name, const PlaceInNote& place = {});
  /// Close: keeps what is typed and not saved, brings the reminders and the main window up to date
  /// and takes the form away, which happens whatever fails.
  void cmdOK();

  /// Update the files: reads the lists of names anew, from the first kind to the last.
  void Update_Files(NoteKind first, NoteKind last);
  /// Protection when saving: asks whether a note with an empty value is to be saved without an
  /// alarm. True where none of the three is empty, and for OK.
  bool Zabezpieczenie_Save(const EditorControl& control1, const EditorControl& control2,
                           const EditorControl& control3);

  /// Read a daily, weekly, monthly, yearly, fast note: the one selected in the list, onto its page.
  void Czytaj_Day() { readPage(NoteKind::Daily); }
  void Czytaj_Weak() { readPage(NoteKind::Weekly); }
  void Czytaj_Month() { readPage(NoteKind::Monthly); }
  void Czytaj_Year() { readPage(NoteKind::Yearly); }
  void Czytaj_Fast() { readPage(NoteKind::Fast); }
  /// Write a daily, weekly, monthly, yearly, fast note: its page into the file of its name.
  void Zapisz_Day() { writePage(NoteKind::Daily); }
  void Zapisz_Weak() { writePage(NoteKind::Weekly); }
  void Zapisz_Month() { writePage(NoteKind::Monthly); }
  void Zapisz_Year() { writePage(NoteKind::Yearly); }
  void Zapisz_Fast() { writePage(NoteKind::Fast); }

 private:
  LiveDraft& draft(NoteKind kind) { return drafts_[static_cast<std::size_t>(kind)]; }
  bool has(NoteKind kind) const;
  bool leave(NoteKind kind);
  bool userLeavesUnsaved(NoteKind kind, const Failure& failure);
  void showUntyped(NoteKind kind);
  bool hasTypedNote(NoteKind kind);
  bool isWorthSaving(NoteKind kind);
  bool leaveForChosen(NoteKind kind);
  void savePage(NoteKind kind);
  void saveTypedOn(NoteKind kind, Attendance attendance, Untyped untyped = Untyped::AsInFile);
  std::optional<NoteKind> pageFor(std::wstring_view fileName);
  bool isOnPage(NoteKind kind, std::wstring_view fileName);
  LeftNote noteOn(NoteKind kind, Untyped untyped = Untyped::AsInFile);
  void readUnderTyped(NoteKind kind);
  void takeWritten(NoteKind kind, const std::wstring& name);
  void renewList(NoteKind kind);
  bool isListed(NoteKind kind, std::wstring_view name) const;
  void leaveFile(NoteKind kind);
  std::optional<std::wstring> chosenName(NoteKind kind) const;
  int positionOf(NoteKind kind, std::wstring_view name) const;
  LiveDraft draftOfPage(const EditorPorts& ports, NoteKind kind) const;
  void readPage(NoteKind kind);
  void readNote(NoteKind kind, const std::wstring& name);
  bool tryReadNote(NoteKind kind, const std::wstring& name);
  void writePage(NoteKind kind);
  void showNewNote(NoteKind kind);
  void showEmptyNote(NoteKind kind);
  void showFields(NoteKind kind, NoteFields fields);
  void showTab(NoteKind tab);
  void updateList(NoteKind kind);
  void markLoadedNote(NoteKind kind);
  void choose(NoteKind kind, std::wstring_view name);
  void loadNote(NoteKind kind, std::wstring_view name);
  void showPlace(NoteKind kind, const PlaceInNote& place);
  void restore(const SafetyCopy& copy, const std::string& bytes);
  NotePreview previewOf(const SafetyCopy& copy) const;
  bool userAcceptsReplacedCharacters(std::wstring_view text) const;

  const CodePage& codePage_;
  const Clock& clock_;
  All_Notes_frmView& view_;
  All_Notes_frmHost& host_;
  SafetyCopies& copies_;
  NoteFolder folder_;
  EditorState state_;
  NotePageReader reader_;
  NotePageWriter writer_;
  std::array<LiveDraft, kNoteKinds.size()> drafts_;  // of each page
  DraftTimer draftTimer_;
  NoteKind tab_ = NoteKind::Daily;
  /// The names of each kind as the list boxes show them.
  std::array<std::vector<std::wstring>, kNoteKinds.size()> File_list_;
};

}  // namespace kalvora
