#pragma once

#include <string_view>

namespace kalvora {

/// Plays wave files. Returns at once; a file that is missing is not heard.
class SoundPlayer {
 public:
  virtual ~SoundPlayer() = default;
  virtual void play(std::wstring_view waveFile) = 0;
};

}  // namespace kalvora
