#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/Desktop.h"
#include "base/LocalMinute.h"
#include "notes/HourDisplay.h"
#include "skin/SkinDescription.h"

namespace kalvora {

enum class TimerId {
  Spr1m,
  Timer1,
  Timer2,
  Poczekaj,
  scrool,
  Date_Update,
  Opt_win_pos_tim,
  TrayClick,
  Draft
};

enum class Activation { TakeKeyboard, LeaveKeyboard };
enum class StackOrder { Topmost, Ordinary };
enum class Editing { Allowed, Locked };
enum class Visibility { Shown, Hidden };
enum class Answer { Ok, Cancel };

/// The selected characters of a field: those from `begin` on and before `end`, where the caret is.
struct TextSelection {
  std::size_t begin = 0;
  std::size_t end = 0;
  friend bool operator==(const TextSelection&, const TextSelection&) = default;
};

/// A question for a moment.
struct MomentQuestion {
  LocalMinute proposed;
  HourFormat hourFormat;
  /// Why a moment cannot be chosen, as a sentence for the user; empty for one that can.
  std::function<std::wstring_view(LocalMinute)> refusal;
};

/// The main window as the user sees it: what is to be seen, never how. Places and sizes in pixels
/// of the screen. Calls that wait for the user (showError, ask, chooseFromMenu, askMoment,
/// dragByCaption) run the program's other events meanwhile, so state is changed before they are
/// called.
class Form1View {
 public:
  virtual ~Form1View() = default;

  /// The monitors of now: they come and go while the program runs.
  virtual Desktop desktop() const = 0;
  /// The longest time between the two clicks of a double click, in milliseconds.
  virtual int doubleClickTime() const = 0;

  virtual void show(Activation activation) = 0;
  virtual void hide() = 0;
  /// Where the window stands now, which the user may have changed by dragging it.
  virtual Rect place() const = 0;
  virtual void setPlace(const Rect& place) = 0;
  /// The outline in window pixels; none makes the window a rectangle.
  virtual void setShape(const std::optional<RowSpans>& shape) = 0;
  virtual void setStackOrder(StackOrder order) = 0;
  /// Lets the user move the window until the mouse button is released.
  virtual void dragByCaption() = 0;
  /// Ends the window and with it the program.
  virtual void unload() = 0;

  virtual std::wstring text(FieldId field) const = 0;
  virtual void setText(FieldId field, std::wstring_view text) = 0;
  /// The number of characters before the caret.
  virtual std::size_t caret(FieldId field) const = 0;
  virtual void setCaret(FieldId field, std::size_t caret) = 0;
  virtual TextSelection selection(FieldId field) const = 0;
  virtual void setSelection(FieldId field, TextSelection selection) = 0;
  virtual void setFieldLook(FieldId field, const FieldLook& look) = 0;
  virtual void setFieldEditing(FieldId field, Editing editing) = 0;
  virtual void setFieldVisibility(FieldId field, Visibility visibility) = 0;

  /// Starts a timer, or starts it again with another interval. Milliseconds.
  virtual void startTimer(TimerId timer, int interval) = 0;
  virtual void stopTimer(TimerId timer) = 0;

  /// A message with the critical-stop icon.
  virtual void showError(std::wstring_view title, std::wstring_view text) = 0;
  /// A question with the buttons OK and Cancel.
  virtual Answer ask(std::wstring_view title, std::wstring_view text) = 0;
  /// A menu at a place of the window, in its pixels; a "&" stands before the letter that chooses an
  /// item. The position of the chosen one, counted from 0; nothing where the menu was left.
  virtual std::optional<std::size_t> chooseFromMenu(
      Point at, std::span<const std::wstring_view> captions) = 0;
  /// A dialog in which a date and a time are chosen: the moment at which the user wants to be
  /// reminded; nothing where the user does not want to.
  virtual std::optional<LocalMinute> askMoment(const MomentQuestion& question) = 0;
};

}  // namespace kalvora
