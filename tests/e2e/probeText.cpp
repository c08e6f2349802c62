#include "probeText.h"

#include <windows.h>

std::wstring wide(std::string_view text) {
  const int length = static_cast<int>(text.size());
  std::wstring result(text.size(), L'\0');
  result.resize(static_cast<std::size_t>(
      MultiByteToWideChar(CP_UTF8, 0, text.data(), length, result.data(), length)));
  return result;
}

std::string quoted(std::wstring_view text) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string json = "\"";
  for (const wchar_t c : text) {
    const auto unit = static_cast<unsigned>(c);
    if (unit >= 32 && unit < 127 && c != L'"' && c != L'\\') {
      json += static_cast<char>(c);
      continue;
    }
    json += "\\u";
    for (int shift = 12; shift >= 0; shift -= 4) json += kDigits[(unit >> shift) & 15U];
  }
  return json + "\"";
}

std::string truth(bool value) {
  return value ? "true" : "false";
}
