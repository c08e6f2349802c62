#pragma once

#include "app/ProfileReader.h"

namespace kalvora {

/// Ini files without Windows, for native tests and tools: answers as the platform's call does.
class PortableProfileReader : public ProfileReader {
 public:
  /// No more of a file is read; a skin's description has a few kilobytes.
  static constexpr std::size_t kLargestFile = 1U << 20U;

  std::size_t privateProfileString(const std::string& section, const std::string& key,
                                   const std::string& fallback, std::span<char> buffer,
                                   const std::filesystem::path& file) override;
};

}  // namespace kalvora
