#include "app/MainWindowOptions.h"

#include "app/OnTop.h"
#include "app/OptionsForm.h"
#include "app/SkinPreview.h"
#include "base/Numbers.h"
#include "skin/SkinError.h"

namespace kalvora {

namespace {

constexpr int kOpt_win_pos_timInterval = 10;  // milliseconds

}  // namespace

MainWindowOptions::MainWindowOptions(const OptionsPorts& ports, Settings& settings,
                                     WindowMotion& motion, std::function<void()> followOptions,
                                     std::function<void()> wearCurrentSkin)
    : ports_(ports),
      settings_(settings),
      motion_(motion),
      followOptions_(std::move(followOptions)),
      wearCurrentSkin_(std::move(wearCurrentSkin)) {}

void MainWindowOptions::Options_to_form(OptionsView& form) const {
  kalvora::Options_to_form(settings_, form);
}

void MainWindowOptions::Save_options_KV(const OptionsView& form) {
  storeSettings(ports_.store, Options_apply(form));
}

Settings MainWindowOptions::Options_apply(const OptionsView& form) {
  const bool positionCounts = shown();
  Settings entered = enteredOptions(form, settings_,
                                    positionCounts ? PositionBoxes::Taken : PositionBoxes::Ignored);
  const Point before{settings_.Window_X, settings_.Window_Y};
  settings_ = entered;
  followOptions_();
  settings_.AlwOnTop ? OnTop(ports_.view) : RemOntop(ports_.view);
  if (positionCounts) goToEnteredPosition(before);
  return entered;
}

Size MainWindowOptions::fullSize() const {
  return {motion_.sizes().width, motion_.sizes().fullHeight};
}

void MainWindowOptions::goToEnteredPosition(Point before) {
  const Desktop desktop = ports_.view.desktop();
  computePlaceNotSet({desktop.primary().size(), fullSize()}, settings_);
  const Rect now = ports_.view.place();
  const Rect entered{settings_.Window_X, settings_.Window_Y, now.width, now.height};
  if (!desktop.shows(entered)) {
    settings_.Window_X = toInt16(before.x);
    settings_.Window_Y = toInt16(before.y);
  } else if (entered != now) {
    motion_.putAt({entered.x, entered.y});
  }
}

Point MainWindowOptions::windowPosition() const {
  const Rect place = ports_.view.place();
  return {place.x, place.y};
}

void MainWindowOptions::startOpt_win_pos_tim() {
  ports_.view.startTimer(TimerId::Opt_win_pos_tim, kOpt_win_pos_timInterval);
}

void MainWindowOptions::stopOpt_win_pos_tim() {
  ports_.view.stopTimer(TimerId::Opt_win_pos_tim);
}

void MainWindowOptions::beginSetPosition() {
  settingPosition_ = true;
  if (shown()) ports_.view.show(Activation::TakeKeyboard);
}

void MainWindowOptions::wearSkin(std::int16_t index) {
  settings_.Last_skin = index;
  wearCurrentSkin_();
}

std::optional<Image> MainWindowOptions::skinPicture(std::wstring_view skin, Size room,
                                                    Pixel ground) const {
  try {
    return skinPreview(ports_.files, ports_.skinValues, ports_.folders.skins() / skin, room,
                       ground);
  } catch (const SkinError&) {
    return std::nullopt;
  }
}

void MainWindowOptions::takeIcon(std::wstring_view fileName) {
  settings_.iconFilename = fileName;
  ports_.tray.setPicture(ports_.folders.icons() / fileName);
  Update_Icon_on_task(ports_.tray);
  saveIcon(ports_.store, fileName);
}

}  // namespace kalvora
