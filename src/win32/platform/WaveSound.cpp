#include "win32/platform/WaveSound.h"

#include <windows.h>
// mmsystem.h needs windows.h before it.
#include <mmsystem.h>

#include "base/DeviceName.h"
#include "win32/platform/AnsiPath.h"
#include "win32/platform/SystemFunction.h"

namespace kalvora {

namespace {

constexpr const wchar_t* kSoundLibrary = L"winmm.dll";

}  // namespace

void WaveSound::play(std::wstring_view waveFile) {
  const std::filesystem::path file(waveFile);
  if (namesDevice(file.filename().native())) return;
  if (const auto path = ansiPath(file)) {
    const auto playSound = systemFunction<decltype(PlaySoundA)>(kSoundLibrary, "PlaySoundA");
    if (playSound != nullptr) playSound(path->c_str(), nullptr, SND_ASYNC);
  } else {
    const auto playSound = systemFunction<decltype(PlaySoundW)>(kSoundLibrary, "PlaySoundW");
    if (playSound != nullptr) playSound(file.c_str(), nullptr, SND_ASYNC);
  }
}

}  // namespace kalvora
