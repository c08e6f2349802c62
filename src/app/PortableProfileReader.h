#pragma once

#include "app/ProfileReader.h"
#include "skin/SkinDescription.h"

namespace kalvora {

/// Ini files without Windows, for native tests and tools: answers as the platform's call does.
///
/// Where the documentation of that call is silent, the answers are those measured under Wine 8:
/// a section's name ends at the last "]" of its line; names are compared without regard to case in
/// ASCII only; a lone CR ends a line; vertical tab, form feed and the character 0x1A are blanks;
/// names and values end at their first NUL; a comment is a key that begins with ";". A UTF-8 mark
/// at the start is understood, as under Wine; Windows itself takes its three bytes for characters
/// and so misses a section on the first line.
class PortableProfileReader : public ProfileReader {
 public:
  /// No more of a file is read; a skin's description has a few kilobytes.
  static constexpr std::size_t kLargestFile = kMostDescriptionBytes;

  std::size_t privateProfileString(const std::string& section, const std::string& key,
                                   const std::string& fallback, std::span<char> buffer,
                                   const std::filesystem::path& file) override;
};

}  // namespace kalvora
