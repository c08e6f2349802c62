#pragma once

#include <string_view>

#include "app/Settings.h"
#include "app/SoundPlayer.h"

namespace kalvora {

/// The sounds of what happens in the main window, which the user can switch off altogether.
class Sounds {
 public:
  /// Both must outlive this object.
  Sounds(SoundPlayer& player, const Settings& settings) : player_(player), settings_(settings) {}

  /// Play a sound: the wave file, when there is one and sounds are switched on.
  void Graj_dzwiek(std::wstring_view waveFile);

 private:
  SoundPlayer& player_;
  const Settings& settings_;
};

}  // namespace kalvora
