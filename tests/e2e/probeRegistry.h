#pragma once

#include <windows.h>

#include <string>

// Values of the user's registry, answered in JSON.

/// The text of a value; null where there is none.
std::string readValue(const std::wstring& key, const std::wstring& name);

/// Whether the text was written.
std::string writeValue(const std::wstring& key, const std::wstring& name, const std::wstring& text);

/// Whether the bytes, given in hexadecimal digits, were written as a value of that type.
std::string writeBytes(const std::wstring& key, const std::wstring& name, DWORD type,
                       const std::string& digits);

/// The names of a key's values.
std::string valueNames(const std::wstring& path);
