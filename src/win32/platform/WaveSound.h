#pragma once

#include "app/SoundPlayer.h"

namespace kalvora {

/// Plays wave files through the platform's multimedia library.
class WaveSound : public SoundPlayer {
 public:
  void play(std::wstring_view waveFile) override;
};

}  // namespace kalvora
