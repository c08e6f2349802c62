#include "skin/SkinFolder.h"

#include <algorithm>

#include "base/Numbers.h"

namespace kalvora {

SkinFolder::SkinFolder(const FileSystem& files, std::filesystem::path skinsFolder)
    : files_(files), folder_(std::move(skinsFolder)) {}

std::vector<std::wstring> SkinFolder::names() const {
  return files_.folders(folder_);
}

SkinFolder::Choice SkinFolder::choose(std::int16_t index) const {
  const std::vector<std::wstring> Dir2 = names();
  if (Dir2.empty()) {
    throw SkinError(L"Ther's no skin. Download some and run program again.");
  }
  if (index < 0) return {index, folder_};
  const std::size_t place = std::min<std::size_t>(static_cast<std::size_t>(index), Dir2.size() - 1);
  return {toInt16(static_cast<double>(place)), folder_ / Dir2[place]};
}

}  // namespace kalvora
