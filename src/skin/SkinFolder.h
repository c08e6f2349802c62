#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "base/FileSystem.h"
#include "skin/SkinError.h"

namespace kalvora {

/// The folder that holds the skins, each of its sub-folders being one.
class SkinFolder {
 public:
  SkinFolder(const FileSystem& files, std::filesystem::path skinsFolder);

  /// The names of all skins, in the program's name order: the index of a skin is its place here.
  std::vector<std::wstring> names() const;

  struct Choice {
    std::int16_t index = 0;
    std::filesystem::path folder;
  };
  /// The skin of an index: beyond the last one the last is taken. A negative index is left as it
  /// is, and the skins folder itself stands for the skin's folder then.
  /// Throws SkinError where there is no skin at all.
  Choice choose(std::int16_t index) const;

 private:
  const FileSystem& files_;
  std::filesystem::path folder_;
};

}  // namespace kalvora
