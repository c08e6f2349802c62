#include "base/Errors.h"

#include "base/Numbers.h"

namespace kalvora {

namespace {

std::string asciiOf(std::wstring_view text) {
  std::string ascii;
  ascii.reserve(text.size());
  for (const wchar_t c : text) {
    ascii += c >= 0x20 && c < 0x7F ? static_cast<char>(c) : '?';
  }
  return ascii;
}

}  // namespace

Failure::Failure(std::wstring message) : message_(std::move(message)), narrow_(asciiOf(message_)) {}

ConversionError::ConversionError(std::wstring_view text)
    : Failure(L"This is not a number that can be used here: \"" + std::wstring(text) + L"\""),
      text_(text) {}

OverflowError::OverflowError(double value)
    : Failure(L"Overflow: the number " + doubleToText(value) + L" is too large to be used here."),
      value_(value) {}

FileError::FileError(std::wstring_view what, const std::filesystem::path& file)
    : Failure(std::wstring(what) + file.wstring()), file_(file) {}

}  // namespace kalvora
