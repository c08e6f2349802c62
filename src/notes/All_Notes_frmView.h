#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "notes/EditorControls.h"
#include "notes/HourDisplay.h"
#include "notes/NoteKind.h"
#include "notes/NotePreview.h"
#include "notes/SafetyCopies.h"

namespace kalvora {

/// The note editor as the user sees it. What is set here by the program is no change by the user:
/// the view tells the presenter nothing of it. showError, ask and chooseCopy wait for the user and
/// run the program's other events meanwhile.
class All_Notes_frmView {
 public:
  virtual ~All_Notes_frmView() = default;

  /// Makes the tab and the page of each of these kinds, before anything else is shown.
  virtual void createPages(NoteKinds kinds) = 0;

  /// The text of a name box, a number list or a content box.
  virtual std::wstring text(const EditorControl& control) const = 0;
  virtual void setText(const EditorControl& control, std::wstring_view text) = 0;
  /// How many characters stand before the caret of a name box or a number list.
  virtual std::size_t caret(const EditorControl& control) const = 0;
  virtual void setCaret(const EditorControl& control, std::size_t caret) = 0;

  /// The position that is selected in a list, counted from 0; -1 for none.
  virtual int selection(const EditorControl& control) const = 0;
  virtual void select(const EditorControl& control, int position) = 0;
  /// All that a list offers, in this order; nothing is selected then.
  virtual void setItems(const EditorControl& control, const std::vector<std::wstring>& items) = 0;

  /// What a control for dates shows, always a day of the calendar.
  virtual std::chrono::year_month_day date(const EditorControl& control) const = 0;
  /// Takes a day from kFirstNoteYear to kLastNoteYear.
  virtual void setDate(const EditorControl& control, std::chrono::year_month_day date) = 0;

  virtual bool ticked(const EditorControl& control) const = 0;
  virtual void setTicked(const EditorControl& control, bool ticked) = 0;
  virtual void setEnabled(const EditorControl& control, bool enabled) = 0;

  /// Puts the window into the middle of the screen.
  virtual void centre() = 0;
  /// Selects the tab of the kind and shows its page alone.
  virtual void showPage(NoteKind kind) = 0;
  /// Takes the keyboard to the name box, with the whole name selected, so that typing replaces it.
  virtual void startNaming(NoteKind kind) = 0;
  /// Takes the keyboard to a piece of a content box, which is selected and scrolled into view.
  virtual void showPiece(const EditorControl& control, std::size_t begin, std::size_t length) = 0;
  /// Takes the keyboard to the field for words to find, with all of it selected.
  virtual void startFinding() = 0;
  /// A line of its own in the window, beside the button Restore…; an empty one says nothing.
  virtual void setNotice(std::wstring_view text) = 0;
  /// Takes the window away. Does not throw.
  virtual void unload() noexcept = 0;

  /// Starts the timer of the drafts, which comes once. Milliseconds.
  virtual void startDraftTimer(int interval) = 0;
  virtual void stopDraftTimer() = 0;

  /// Offers safety copies, in this order, and shows what `preview` tells of the one that is picked.
  /// Returns the position of the one that the user wants back; nothing where there is none, or
  /// where the window went away meanwhile. Waits for the user like a question.
  virtual std::optional<std::size_t> chooseCopy(const std::vector<SafetyCopy>& copies,
                                                const CopyPreview& preview) = 0;

  /// A message with the critical-stop icon.
  virtual void showError(std::wstring_view title, std::wstring_view text) = 0;
  /// A question with the buttons OK and Cancel. True for OK.
  virtual bool ask(std::wstring_view title, std::wstring_view text) = 0;
};

/// What the note editor needs of the main window.
class All_Notes_frmHost {
 public:
  virtual ~All_Notes_frmHost() = default;

  /// The user's setting of 12-hour time.
  virtual HourFormat hourFormat() const = 0;
  /// The kinds of notes that the user has.
  virtual NoteKinds noteKinds() const = 0;
  /// Whether the user wants notes saved when they are left.
  virtual bool keepsTyping() const = 0;
  /// With that wish, what is typed in the main window is saved, so that it is in the notes.
  virtual void saveMainWindow() = 0;
  /// Update all alarms: rebuilds the time table from the note files.
  virtual void Update_All_Al() = 0;
  /// Reads the list of notes anew, makes the first one the current one and shows it, with its text
  /// locked and its name scrolling; where there is none, the text is empty and editable and the
  /// title is "Untiled".
  virtual void showFirstNote() = 0;
  /// Opens the window that lists what comes.
  virtual void showWhatComes() = 0;
  /// Opens the window that finds notes, with these words.
  virtual void showFind(std::wstring_view words) = 0;
};

}  // namespace kalvora
