#include "win32/PlatformProfileReader.h"

#include <windows.h>

#include <algorithm>
#include <optional>

#include "win32/SystemCodePage.h"

namespace kalvora {

namespace {

std::optional<std::string> exactBytes(const std::wstring& text) {
  const SystemCodePage codePage;
  std::string bytes = codePage.toBytes(text);
  if (codePage.toText(bytes) != text) return std::nullopt;
  return bytes;
}

std::wstring shortForm(const std::wstring& path) {
  std::wstring text(GetShortPathNameW(path.c_str(), nullptr, 0), L'\0');
  const DWORD length =
      GetShortPathNameW(path.c_str(), text.data(), static_cast<DWORD>(text.size()));
  text.resize(std::min<std::size_t>(length, text.size()));
  return text;
}

std::optional<std::string> pathInCodePage(const std::filesystem::path& file) {
  if (auto path = exactBytes(file.native())) return path;
  const std::wstring shorter = shortForm(file.native());
  return shorter.empty() ? std::nullopt : exactBytes(shorter);
}

}  // namespace

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
  const std::optional<std::string> path = pathInCodePage(file);
  if (!path) return wideProfileString(section, key, fallback, buffer, file);
  return GetPrivateProfileStringA(section.c_str(), key.c_str(), fallback.c_str(), buffer.data(),
                                  static_cast<DWORD>(buffer.size()), path->c_str());
}

}  // namespace kalvora
