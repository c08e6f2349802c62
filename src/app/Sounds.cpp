#include "app/Sounds.h"

namespace kalvora {

void Sounds::Graj_dzwiek(std::wstring_view waveFile) {
  if (!waveFile.empty() && settings_.Use_Sounds) player_.play(waveFile);
}

}  // namespace kalvora
