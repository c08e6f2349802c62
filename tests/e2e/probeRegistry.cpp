#include "probeRegistry.h"

#include "probeText.h"

std::string readValue(const std::wstring& key, const std::wstring& name) {
  DWORD size = 0;
  if (RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr, nullptr,
                   &size) != ERROR_SUCCESS) {
    return "null";
  }
  std::wstring text(size / sizeof(wchar_t), L'\0');
  RegGetValueW(HKEY_CURRENT_USER, key.c_str(), name.c_str(), RRF_RT_REG_SZ, nullptr, text.data(),
               &size);
  text.resize(size / sizeof(wchar_t) - 1);
  return quoted(text);
}

std::string writeValue(const std::wstring& key, const std::wstring& name,
                       const std::wstring& text) {
  const auto bytes = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  return truth(RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), name.c_str(), REG_SZ, text.c_str(),
                               bytes) == ERROR_SUCCESS);
}

std::string writeBytes(const std::wstring& key, const std::wstring& name, DWORD type,
                       const std::string& digits) {
  std::string bytes;
  for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
    bytes += static_cast<char>(std::stoi(digits.substr(i, 2), nullptr, 16));
  }
  return truth(RegSetKeyValueW(HKEY_CURRENT_USER, key.c_str(), name.c_str(), type, bytes.data(),
                               static_cast<DWORD>(bytes.size())) == ERROR_SUCCESS);
}

std::string valueNames(const std::wstring& path) {
  HKEY key = nullptr;
  std::string json = "[";
  if (RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) == ERROR_SUCCESS) {
    wchar_t name[256];
    DWORD length = 256;
    for (DWORD i = 0;
         RegEnumValueW(key, i, name, &length, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS;
         ++i, length = 256) {
      if (i > 0) json += ",";
      json += quoted(name);
    }
    RegCloseKey(key);
  }
  return json + "]";
}
