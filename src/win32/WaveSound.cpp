#include "win32/WaveSound.h"

#include <windows.h>
// mmsystem.h needs windows.h before it.
#include <mmsystem.h>

#include "win32/AnsiPath.h"

namespace kalvora {

void WaveSound::play(std::wstring_view waveFile) {
  const std::filesystem::path file(waveFile);
  if (const auto path = ansiPath(file)) {
    PlaySoundA(path->c_str(), nullptr, SND_ASYNC);
  } else {
    PlaySoundW(file.c_str(), nullptr, SND_ASYNC);
  }
}

}  // namespace kalvora
