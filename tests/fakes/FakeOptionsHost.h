#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/Errors.h"
#include "options/OptionsHost.h"
#include "options/OptionsInputError.h"

namespace kalvora {

/// A main window of 80 × 40 pixels on a screen of 800 × 600 that remembers what it was told.
class FakeOptionsHost : public OptionsHost {
 public:
  void Options_to_form(OptionsView& form) const override {
    ++fills;
    form.setText({TextBox::WinPos, 0}, L"400");
    form.setText({TextBox::WinPos, 1}, L"300");
  }
  void Save_options_KV(const OptionsView&) override {
    calls.push_back("save");
    if (refused) throw OptionsInputError(*refused, ConversionError(L"abc"));
  }
  bool shown() const override { return isShown; }
  Point windowPosition() const override { return position; }
  Size fullSize() const override { return {80, 40}; }
  Desktop desktop() const override { return Desktop({800, 600}, otherMonitors); }
  void startOpt_win_pos_tim() override { follows = true; }
  void stopOpt_win_pos_tim() override { follows = false; }
  void beginSetPosition() override { setsPosition = true; }
  void endSetPosition() override { setsPosition = false; }
  std::int16_t currentSkin() const override { return skin; }
  void wearSkin(std::int16_t index) override {
    skin = index;
    calls.push_back("skin " + std::to_string(skin));
    if (whileLoadingSkin) whileLoadingSkin();
  }
  std::optional<Image> skinPicture(std::wstring_view name, Size, Pixel) const override {
    painted = name;
    ++paintings;
    return Image(10, 10, skinColor);
  }
  void takeIcon(std::wstring_view fileName) override { icon = fileName; }
  void playSound(std::wstring_view waveFile) override { played = waveFile; }

  mutable int fills = 0;
  std::vector<std::string> calls;
  std::optional<TextId> refused;
  std::vector<Rect> otherMonitors;
  bool isShown = true;
  Point position{400, 300};
  bool follows = false;
  bool setsPosition = false;
  std::int16_t skin = 1;
  std::function<void()> whileLoadingSkin;
  mutable std::wstring painted;
  mutable int paintings = 0;
  Pixel skinColor = 0;
  std::wstring icon;
  std::wstring played;
};

}  // namespace kalvora
