#include "win32/platform/PlatformProfileReader.h"

#include <windows.h>

#include <algorithm>
#include <optional>

#include "app/IniAnswer.h"
#include "win32/platform/AnsiPath.h"
#include "win32/platform/DiskFile.h"
#include "win32/platform/SystemCodePage.h"

namespace kalvora {

std::size_t wideProfileString(const std::string& section, const std::string& key,
                              const std::string& fallback, std::span<char> buffer,
                              const std::filesystem::path& file) {
  if (buffer.empty()) return 0;
  const SystemCodePage codePage;
  std::wstring text(buffer.size(), L'\0');
  const DWORD length =
      GetPrivateProfileStringW(codePage.toText(section).c_str(), codePage.toText(key).c_str(),
                               codePage.toText(fallback).c_str(), text.data(),
                               static_cast<DWORD>(text.size()), file.c_str());
  const std::string bytes = codePage.toBytes({text.data(), length});
  const std::size_t copied = std::min(bytes.size(), buffer.size() - 1);
  std::copy_n(bytes.begin(), copied, buffer.begin());
  buffer[copied] = '\0';
  return copied;
}

std::size_t PlatformProfileReader::privateProfileString(const std::string& section,
                                                        const std::string& key,
                                                        const std::string& fallback,
                                                        std::span<char> buffer,
                                                        const std::filesystem::path& file) {
  if (const std::string* text = remembered_.textOf(file)) {
    return iniAnswer(*text, section, key, fallback, buffer);
  }
  if (leadsToDevice(file)) return iniAnswer({}, section, key, fallback, buffer);
  const std::optional<std::string> path = ansiPath(file);
  if (!path) return wideProfileString(section, key, fallback, buffer, file);
  return GetPrivateProfileStringA(section.c_str(), key.c_str(), fallback.c_str(), buffer.data(),
                                  static_cast<DWORD>(buffer.size()), path->c_str());
}

}  // namespace kalvora
