#include "app/Config_file.h"

#include <algorithm>
#include <array>

namespace kalvora {

std::wstring Config_file::Read_ini_value(std::wstring_view section, std::wstring_view key,
                                         const std::filesystem::path& file,
                                         std::wstring_view fallback) {
  std::array<char, 255> buffer{};
  const std::size_t count = profiles_.privateProfileString(
      codePage_.toBytes(section), codePage_.toBytes(key), "", buffer, file);
  std::wstring text = codePage_.toText({buffer.data(), std::min(count, buffer.size())});
  return text.empty() ? std::wstring(fallback) : text;
}

}  // namespace kalvora
