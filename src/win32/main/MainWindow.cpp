#include "win32/main/MainWindow.h"

#include <algorithm>
#include <array>

#include "app/Form1.h"
#include "base/Errors.h"
#include "win32/main/FieldKeys.h"
#include "win32/platform/DesktopOfNow.h"
#include "win32/toolkit/BitmapOf.h"
#include "win32/toolkit/MessageBoxes.h"
#include "win32/toolkit/WindowClass.h"
#include "win32/toolkit/WindowProcedure.h"
#include "win32/toolkit/WindowRegion.h"

namespace kalvora {

namespace {

constexpr const wchar_t* kClassName = L"KalvoraMain";
constexpr const wchar_t* kTitle = L"Kalvora";

bool mouseButtonIsDown() {
  return std::ranges::any_of(std::array{VK_LBUTTON, VK_RBUTTON, VK_MBUTTON},
                             [](int button) { return GetAsyncKeyState(button) < 0; });
}

UINT_PTR timerNumber(TimerId timer) {
  return static_cast<UINT_PTR>(timer) + 1;
}

}  // namespace

MainWindow::MainWindow(EventGuard& guard, Form1& form)
    : guard_(guard), deliver_(guard, [this] { showChanges(); }), form_(form), fields_(guard) {
  registerWindowClass(kClassName, windowProcedure<MainWindow, &MainWindow::handle>,
                      {.style = CS_DBLCLKS, .icon = true});
  // A tool window: the program lives in the notification area, not on the task bar.
  window_ = CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_CONTROLPARENT, kClassName, kTitle,
                            WS_POPUP | WS_CLIPCHILDREN, 0, 0, 0, 0, nullptr, nullptr,
                            GetModuleHandleW(nullptr), this);
  if (window_ == nullptr) throw Failure(L"The main window cannot be created.");
  fields_.create(window_, [this](HWND control, UINT message, WPARAM wParam, LPARAM lParam) {
    toolTips_.relay(control, message, wParam, lParam);
  });
}

MainWindow::~MainWindow() {
  takesEvents_ = false;
  if (accessible_) accessible_->disconnect();
  fieldNames_.reset();
  toolTips_.clear();
  if (window_ != nullptr) DestroyWindow(window_);
}

int MainWindow::runMessageLoop(ModelessDialogs& dialogs) {
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (dialogs.takesMessage(message) || takesCommandKey(message) ||
        handleFieldKey(window_, message)) {
      continue;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return static_cast<int>(message.wParam);
}

Desktop MainWindow::desktop() const {
  return desktopOfNow();
}

int MainWindow::doubleClickTime() const {
  return static_cast<int>(GetDoubleClickTime());
}

void MainWindow::show(Activation activation) {
  if (activation == Activation::TakeKeyboard) {
    ShowWindow(window_, SW_SHOW);
    SetForegroundWindow(window_);
  } else {
    SetWindowPos(window_, HWND_TOP, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_SHOWWINDOW);
  }
}

void MainWindow::hide() {
  ShowWindow(window_, SW_HIDE);
}

Rect MainWindow::place() const {
  RECT place{};
  GetWindowRect(window_, &place);
  return {place.left, place.top, place.right - place.left, place.bottom - place.top};
}

void MainWindow::setPlace(const Rect& place) {
  SetWindowPos(window_, nullptr, place.x, place.y, place.width, place.height,
               SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER);
}

void MainWindow::setShape(const std::optional<RowSpans>& shape) {
  if (shape == shape_) return;
  UniqueRegion region = shape ? regionOf(*shape) : UniqueRegion();
  // From here on the region is the window's, which also ends it; deleting it has no effect any
  // more, and the call is kept as it is.
  const HRGN handedOver = region.release();
  if (SetWindowRgn(window_, handedOver, TRUE)) shape_ = shape;
  DeleteObject(handedOver);
}

void MainWindow::setStackOrder(StackOrder order) {
  SetWindowPos(window_, order == StackOrder::Topmost ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
               SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

void MainWindow::dragByCaption() {
  // After a quick click nothing would ever end the drag: the button is up already.
  if (!mouseButtonIsDown()) return;
  ReleaseCapture();
  SendMessageW(window_, WM_NCLBUTTONDOWN, HTCAPTION, 0);
}

void MainWindow::unload() {
  takesEvents_ = false;
  PostQuitMessage(0);
}

void MainWindow::setText(FieldId field, std::wstring_view text) {
  settingText_ = true;
  fields_.setText(field, text);
  settingText_ = false;
  // Its name hides its text from a screen reader.
  if (fieldNames_ && field == FieldId::AmPmLabel) {
    fieldNames_->setValue(fields_.control(field), text);
  }
}

void MainWindow::setFieldLook(FieldId field, const FieldLook& look) {
  fields_.setLook(field, look);
}

void MainWindow::setFieldEditing(FieldId field, Editing editing) {
  fields_.setEditing(field, editing);
}

void MainWindow::setFieldVisibility(FieldId field, Visibility visibility) {
  const HWND control = fields_.control(field);
  if (visibility == Visibility::Hidden && GetFocus() == control) {
    lastFocus_ = control;
    SetFocus(window_);
  }
  fields_.setVisibility(field, visibility);
  // The field in which the user typed before the window rolled up has the keyboard again.
  if (visibility == Visibility::Shown && lastFocus_ == control && GetFocus() == window_) {
    SetFocus(control);
  }
}

void MainWindow::startTimer(TimerId timer, int interval) {
  SetTimer(window_, timerNumber(timer), static_cast<UINT>(interval), nullptr);
}

void MainWindow::stopTimer(TimerId timer) {
  KillTimer(window_, timerNumber(timer));
}

void MainWindow::showError(std::wstring_view title, std::wstring_view text) {
  showCriticalMessage(title, text);
}

Answer MainWindow::ask(std::wstring_view title, std::wstring_view text) {
  const bool ok = askOkCancel(title, text);
  // A question that the end of the program closes was not answered, whatever the box says.
  return ok && takesEvents_ ? Answer::Ok : Answer::Cancel;
}

LRESULT MainWindow::handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  if (!takesEvents_) return DefWindowProcW(window, message, wParam, lParam);
  for (const auto group : {&MainWindow::handleShown, &MainWindow::handleMouse,
                           &MainWindow::handleSystem, &MainWindow::handleAid}) {
    if (const std::optional<LRESULT> answer = (this->*group)(message, wParam, lParam)) {
      return *answer;
    }
  }
  return DefWindowProcW(window, message, wParam, lParam);
}

std::optional<LRESULT> MainWindow::handleShown(UINT message, WPARAM wParam,
                                               LPARAM lParam) noexcept {
  switch (message) {
    case WM_PAINT:
      onPaint();
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_TIMER:
      deliver_([&] { form_.timerTick(static_cast<TimerId>(wParam - 1)); });
      return 0;
    case WM_COMMAND:
      onCommand(wParam);
      return 0;
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
      return onControlColor(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
    case WM_ACTIVATE:
      onActivate(LOWORD(wParam) != WA_INACTIVE);
      return 0;
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> MainWindow::handleSystem(UINT message, WPARAM wParam,
                                                LPARAM /*lParam*/) noexcept {
  switch (message) {
    case WM_SYSCOMMAND:
      if ((wParam & 0xFFF0U) != SC_CLOSE) return std::nullopt;
      deliver_([this] { form_.closeByKeyboard(); });
      return 0;
    case WM_CLOSE:
      deliver_([this] { form_.Koniec_Kalvora(); });
      return 0;
    case WM_QUERYENDSESSION:
      // Nobody knows how much time the system leaves once it ends.
      deliver_([this] { form_.saveTyped(); });
      return TRUE;
    // Whoever tells all windows of it does not wait until all notes were looked at.
    case WM_TIMECHANGE:
      PostMessageW(window_, kLookAtClock, 0, 0);
      return 0;
    case WM_POWERBROADCAST:
      if (wParam == PBT_APMRESUMEAUTOMATIC) PostMessageW(window_, kLookAtClock, 0, 0);
      return TRUE;
    case kLookAtClock:
      deliver_([this] { form_.clockChanged(); });
      return 0;
    case WM_ENDSESSION:
      if (wParam != FALSE) deliver_([this] { form_.endWithSession(); });
      return 0;
    default:
      return std::nullopt;
  }
}

void MainWindow::onPaint() noexcept {
  PAINTSTRUCT paint{};
  const HDC context = BeginPaint(window_, &paint);
  guard_.run([&] {
    RECT client{};
    GetClientRect(window_, &client);
    blit(context, form_.picture({client.right, client.bottom}));
  });
  EndPaint(window_, &paint);
  // Only now: the window is to be seen before its aids are made.
  if (!fieldNames_) PostMessageW(window_, kMakeAids, 0, 0);
}

void MainWindow::onCommand(WPARAM wParam) noexcept {
  const auto field = MainWindowFields::fieldOf(LOWORD(wParam));
  if (!field || settingText_) return;
  if (*field == FieldId::AmPmLabel) {
    const bool clicked = HIWORD(wParam) == STN_CLICKED || HIWORD(wParam) == STN_DBLCLK;
    if (clicked) deliver_([this] { form_.AmPmLabel_Click(); });
  } else if (HIWORD(wParam) == EN_CHANGE && *field == FieldId::Text1) {
    deliver_([this] { form_.Text1_Change(); });
  } else if (HIWORD(wParam) == EN_CHANGE && *field == FieldId::Text2) {
    deliver_([this] { form_.Text2_Change(); });
  } else if (HIWORD(wParam) == EN_CHANGE && *field == FieldId::Text3) {
    deliver_([this] { form_.Text3_Change(); });
  }
}

LRESULT MainWindow::onControlColor(HDC context, HWND control) noexcept {
  HBRUSH brush = nullptr;
  guard_.run([&] {
    const auto field = MainWindowFields::fieldOf(GetDlgCtrlID(control));
    if (!field) return;
    // Only the label lets the window's picture through.
    const bool seeThrough = *field == FieldId::AmPmLabel;
    brush = fields_.colors(context, *field, seeThrough ? form_.picture(place().size()) : Image());
  });
  return reinterpret_cast<LRESULT>(brush);
}

void MainWindow::onActivate(bool active) noexcept {
  // The field in which the user types keeps the keyboard when the window comes back.
  if (active) {
    SetFocus(IsWindowVisible(lastFocus_) ? lastFocus_ : window_);
  } else if (IsChild(window_, GetFocus())) {
    lastFocus_ = GetFocus();
  }
}

void MainWindow::showChanges() noexcept {
  if (!takesEvents_) return;
  lookAtReminder();
  guard_.run([this] { tellButtons(); });
  const Rect changed = form_.takeChanged();
  if (changed.empty()) return;
  const RECT area{changed.x, changed.y, changed.right(), changed.bottom()};
  InvalidateRect(window_, &area, FALSE);
}

}  // namespace kalvora
