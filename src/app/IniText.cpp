#include "app/IniText.h"

#include <string_view>

#include "base/CodePage.h"
#include "base/Utf8.h"

namespace kalvora {

namespace {

constexpr std::string_view kUtf16Mark = "\xFF\xFE";
constexpr std::string_view kUtf16BigEndianMark = "\xFE\xFF";

unsigned at(std::string_view bytes, std::size_t index) {
  return static_cast<unsigned char>(bytes[index]);
}

std::wstring fromUtf16(std::string_view bytes, std::size_t highByte) {
  std::wstring text;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    text += static_cast<wchar_t>((at(bytes, i + highByte) << 8U) | at(bytes, i + 1 - highByte));
  }
  return text;
}

}  // namespace

std::string iniTextOf(std::string fileBytes) {
  const std::string_view bytes = fileBytes;
  const Windows1252 codePage;
  if (bytes.starts_with(kUtf8Mark)) {
    return codePage.toBytes(fromUtf8(bytes.substr(kUtf8Mark.size())));
  }
  if (bytes.starts_with(kUtf16Mark)) {
    return codePage.toBytes(fromUtf16(bytes.substr(kUtf16Mark.size()), 1));
  }
  if (bytes.starts_with(kUtf16BigEndianMark)) {
    return codePage.toBytes(fromUtf16(bytes.substr(kUtf16BigEndianMark.size()), 0));
  }
  return fileBytes;
}

}  // namespace kalvora
