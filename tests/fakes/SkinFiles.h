#pragma once

#include <fstream>
#include <iterator>
#include <string>

#include "ProjectFolders.h"
#include "fakes/BmpBuilder.h"
#include "fakes/TempFolder.h"

namespace kalvora {

inline constexpr std::uint32_t kWhite = 0xFFFFFF;
inline constexpr std::uint32_t kInk = 0x203040;

/// Writes a whole small skin of 24-bit pictures without a description into a folder: a window of
/// 60 × 40 pixels (20 high when rolled up), "main1" in one colour and "main2" in another.
inline void writeSmallSkin(const TempFolder& folder, const std::string& name = "") {
  const auto write = [&](const std::string& picture, const BmpBuilder& bmp) {
    folder.write(name.empty() ? picture : name + "/" + picture, bmp.bytes());
  };
  write("main1.bmp", BmpBuilder(61, 40, 24, 0x112233));
  write("main2.bmp", BmpBuilder(61, 40, 24, 0x445566));
  write("titlebar.bmp", BmpBuilder(60, 10, 24, 0x778899));
  write("text.bmp", BmpBuilder(57 * 5, 6, 24, 0x00FF00));
  write("shapem.bmp", BmpBuilder(61, 40, 24, kInk));
  write("shapet.bmp", BmpBuilder(61, 20, 24, kInk));
}

/// The bytes of a picture in tests/data/pictures.
inline std::string samplePicture(const std::string& name) {
  std::ifstream in(std::string(kSourceFolder) + "/tests/data/pictures/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace kalvora
