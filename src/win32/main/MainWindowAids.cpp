// What makes the main window easier to use than its picture alone: tips, names for screen readers,
// the mouse wheel, monitors that come and go.

#include "app/Form1.h"
#include "win32/main/MainWindow.h"

namespace kalvora {

std::optional<LRESULT> MainWindow::handleAid(UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  switch (message) {
    case WM_MOUSEWHEEL:
      if (!wheel_.turn(fields_.control(FieldId::Text2), wParam)) return std::nullopt;
      return 0;
    case WM_GETOBJECT:
      if (static_cast<LONG>(lParam) != OBJID_CLIENT) return std::nullopt;
      return onReaderAsking(wParam);
    case WM_DISPLAYCHANGE:
      // Not at once: whoever sends it would wait until the user has answered what there is to tell.
      PostMessageW(window_, kFollowDesktop, 0, 0);
      return std::nullopt;
    case kFollowDesktop:
      deliver_([this] { form_.desktopChanged(); });
      return 0;
    case kMakeAids:
      guard_.run([this] { makeAids(); });
      return 0;
    case kPressButton:
      // Any program may post anything.
      if (wParam < kButtonCount) onButtonPressedByReader(static_cast<ButtonId>(wParam));
      return 0;
    default:
      return std::nullopt;
  }
}

void MainWindow::enterCom() {
  if (!com_) com_.emplace();
}

void MainWindow::makeAids() {
  if (fieldNames_) return;
  enterCom();
  fieldNames_.emplace();
  for (const FieldId field : kAllFields) {
    fieldNames_->setName(fields_.control(field), nameOf(field));
  }
  fieldNames_->setValue(fields_.control(FieldId::AmPmLabel), text(FieldId::AmPmLabel));
  showTips();
}

void MainWindow::onButtonPressedByReader(ButtonId button) noexcept {
  // A message box may have come up since.
  if (IsWindowEnabled(window_)) deliver_([&] { form_.pressButton(button); });
}

std::optional<LRESULT> MainWindow::onReaderAsking(WPARAM wParam) noexcept {
  guard_.run([this] {
    if (accessible_) return;
    enterCom();
    std::vector<NamedControl> controls;
    controls.reserve(kAllFields.size());
    for (const FieldId field : kAllFields) {
      controls.push_back({fields_.control(field), std::wstring(nameOf(field))});
    }
    accessible_ =
        MainWindowAccessible::create(window_, std::move(controls), [this](ButtonId button) {
          PostMessageW(window_, kPressButton, static_cast<WPARAM>(button), 0);
        });
    if (accessible_) accessible_->setButtons(buttons_);
  });
  if (!accessible_) return std::nullopt;
  return accessible_->answer(wParam);
}

void MainWindow::tellButtons() {
  const NamedButtons buttons = form_.namedButtons();
  const FieldsWithTips fields = fieldsWithTips();
  if (buttons == buttons_ && fields == fieldsWithTips_) return;
  buttons_ = buttons;
  fieldsWithTips_ = fields;
  if (accessible_) accessible_->setButtons(buttons_);
  if (fieldNames_) showTips();
}

/// Over words that are being read a tip would be in the way, and without a half of the day there is
/// nothing to turn.
MainWindow::FieldsWithTips MainWindow::fieldsWithTips() const {
  FieldsWithTips fields;
  fields.fill(true);
  fields[static_cast<std::size_t>(FieldId::Text2)] = fields_.isEmpty(FieldId::Text2);
  fields[static_cast<std::size_t>(FieldId::AmPmLabel)] = !fields_.isEmpty(FieldId::AmPmLabel);
  return fields;
}

void MainWindow::showTips() {
  std::vector<ToolTip> tips;
  for (const NamedButton& button : buttons_) {
    if (button.visible) tips.push_back({button.rect, tipOf(button)});
  }
  for (const FieldId field : kAllFields) {
    if (!fieldsWithTips_[static_cast<std::size_t>(field)]) continue;
    tips.push_back({{}, std::wstring(tipOf(field)), fields_.control(field)});
  }
  toolTips_.show(window_, std::move(tips));
}

}  // namespace kalvora
