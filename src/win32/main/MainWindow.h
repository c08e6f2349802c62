#pragma once

#include <windows.h>

#include <array>
#include <optional>

#include "app/ButtonNames.h"
#include "app/Form1View.h"
#include "base/EventGuard.h"
#include "win32/main/MainWindowAccessible.h"
#include "win32/main/MainWindowFields.h"
#include "win32/main/WheelScroller.h"
#include "win32/platform/ComLibrary.h"
#include "win32/toolkit/ControlNames.h"
#include "win32/toolkit/EventDelivery.h"
#include "win32/toolkit/ModelessDialogs.h"
#include "win32/toolkit/ToolTips.h"

namespace kalvora {

class Form1;

/// The frameless, shaped window. It shows what Form1 decides and hands it the user's events, each
/// through the event guard.
class MainWindow : public Form1View {
 public:
  /// Creates the window, hidden and without size. `form` gets events from takeEvents() to unload()
  /// only; `guard` must outlive this object. Throws Failure.
  MainWindow(EventGuard& guard, Form1& form);
  ~MainWindow() override;
  MainWindow(const MainWindow&) = delete;
  MainWindow& operator=(const MainWindow&) = delete;

  /// From here on events go to the form, until it unloads the window.
  void takeEvents() { takesEvents_ = true; }
  /// The messages of the window and of the dialogs that are open beside it, until the program ends.
  /// Returns the exit code.
  int runMessageLoop(ModelessDialogs& dialogs);
  /// Does what a key asks the form for; true where the message is done with.
  bool takesCommandKey(const MSG& message) noexcept;
  HWND window() const { return window_; }
  /// Delivers an event of the form.
  bool deliver(const std::function<void()>& event) const noexcept { return deliver_(event); }
  /// For the windows whose events change this one too.
  const EventDelivery& delivery() const { return deliver_; }

  Desktop desktop() const override;
  int doubleClickTime() const override;
  void show(Activation activation) override;
  void hide() override;
  Rect place() const override;
  void setPlace(const Rect& place) override;
  void setShape(const std::optional<RowSpans>& shape) override;
  void setStackOrder(StackOrder order) override;
  void dragByCaption() override;
  void unload() override;
  std::wstring text(FieldId field) const override { return fields_.text(field); }
  void setText(FieldId field, std::wstring_view text) override;
  std::size_t caret(FieldId field) const override { return fields_.caret(field); }
  void setCaret(FieldId field, std::size_t caret) override { fields_.setCaret(field, caret); }
  TextSelection selection(FieldId field) const override { return fields_.selection(field); }
  void setSelection(FieldId field, TextSelection selection) override {
    fields_.setSelection(field, selection);
  }
  void setFieldLook(FieldId field, const FieldLook& look) override;
  void setFieldEditing(FieldId field, Editing editing) override;
  void setFieldVisibility(FieldId field, Visibility visibility) override;
  void startTimer(TimerId timer, int interval) override;
  void stopTimer(TimerId timer) override;
  void showError(std::wstring_view title, std::wstring_view text) override;
  Answer ask(std::wstring_view title, std::wstring_view text) override;
  std::optional<std::size_t> chooseFromMenu(Point at,
                                            std::span<const std::wstring_view> captions) override;
  std::optional<LocalMinute> askMoment(const MomentQuestion& question) override;

 private:
  // Messages of the window to itself.
  static constexpr UINT kPressButton = WM_APP + 1;  // wParam: the number of a skinned button
  static constexpr UINT kMakeAids = WM_APP + 2;
  static constexpr UINT kLookAtClock = WM_APP + 4;
  static constexpr UINT kFollowDesktop = WM_APP + 3;

  LRESULT handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  // Each takes messages of one kind; nothing where the next has to answer, or the platform.
  std::optional<LRESULT> handleShown(UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  std::optional<LRESULT> handleMouse(UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  std::optional<LRESULT> handleSystem(UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  std::optional<LRESULT> handleAid(UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  void onPaint() noexcept;
  void onButtonDown(UINT message, LPARAM lParam) noexcept;
  void onButtonDownAgain(UINT message, LPARAM lParam) noexcept;
  void onButtonUp(UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  void onCommand(WPARAM wParam) noexcept;
  LRESULT onControlColor(HDC context, HWND control) noexcept;
  void onActivate(bool active) noexcept;
  std::optional<LRESULT> onReaderAsking(WPARAM wParam) noexcept;
  void enterCom();
  void makeAids();
  using FieldsWithTips = std::array<bool, kFieldCount>;
  FieldsWithTips fieldsWithTips() const;
  void showTips();
  void onButtonPressedByReader(ButtonId button) noexcept;
  void showChanges() noexcept;
  void lookAtReminder();
  bool reminderCameJustNow(DWORD now) const;
  /// Tells tips and screen readers of the buttons and the fields as they are now.
  void tellButtons();

  // There once the window was painted or a screen reader asked.
  std::optional<ComApartment> com_;
  EventGuard& guard_;
  EventDelivery deliver_;
  Form1& form_;
  bool takesEvents_ = false;
  HWND window_ = nullptr;
  std::optional<RowSpans> shape_;  // as the window has it
  HWND lastFocus_ = nullptr;
  struct {
    DWORD time = 0;  // of the message
    LPARAM place = 0;
  } pressedTwice_;
  struct {
    std::optional<unsigned> number;
    DWORD since = 0;
  } reminder_;  // on show
  MainWindowFields fields_;
  // There once the window was painted: what it takes would make the window come later. So the tips.
  std::optional<ControlNames> fieldNames_;
  WheelScroller wheel_;
  ToolTips toolTips_;
  NamedButtons buttons_;
  FieldsWithTips fieldsWithTips_{};
  // There once a screen reader has asked.
  Microsoft::WRL::ComPtr<MainWindowAccessible> accessible_;
  // Texts that the program sets are not typing: the change events that they cause are left out.
  bool settingText_ = false;
};

}  // namespace kalvora
