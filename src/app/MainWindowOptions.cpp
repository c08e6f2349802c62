#include "app/MainWindowOptions.h"

#include "app/SkinPreview.h"
#include "skin/SkinError.h"

namespace kalvora {

namespace {

constexpr int kOpt_win_pos_timInterval = 10;  // milliseconds

}  // namespace

MainWindowOptions::MainWindowOptions(const Form1Ports& ports, Settings& settings,
                                     OptionsActions& form)
    : ports_(ports), settings_(settings), form_(form) {}

void MainWindowOptions::Options_to_form(OptionsView& form) const {
  kalvora::Options_to_form(settings_, form);
}

void MainWindowOptions::Save_options_KV(const OptionsView& form) {
  kalvora::Save_options_KV(form, settings_, *this, ports_.settings);
}

void MainWindowOptions::goToEnteredPosition() {
  const Rect now = ports_.view.place();
  const Rect entered{settings_.Window_X, settings_.Window_Y, now.width, now.height};
  const Size screen = ports_.view.screenSize();
  const bool onScreen = !intersection(entered, {0, 0, screen.width, screen.height}).empty();
  if (onScreen && entered != now) form_.moveWindow({entered.x, entered.y});
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

std::optional<Image> MainWindowOptions::skinPicture(std::wstring_view skin, Size room,
                                                    Pixel ground) const {
  try {
    return skinPreview(ports_.files, ports_.skinValues, ports_.programFolder / L"skins" / skin,
                       room, ground);
  } catch (const SkinError&) {
    return std::nullopt;
  }
}

void MainWindowOptions::takeIcon(std::wstring_view fileName) {
  settings_.iconFilename = fileName;
  ports_.tray.setPicture(ports_.programFolder / L"icons" / fileName);
  form_.Update_Icon_on_task();
  saveIcon(ports_.settings, fileName);
}

void MainWindowOptions::OnTop() {
  ports_.view.setStackOrder(StackOrder::Topmost);
}

void MainWindowOptions::RemOntop() {
  ports_.view.setStackOrder(StackOrder::Ordinary);
}

}  // namespace kalvora
