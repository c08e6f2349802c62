#include "base/Errors.h"

#include <algorithm>
#include <cmath>

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

/// A text for a sentence: its beginning only where it is long, without control characters, at
/// the first of which (a NUL) a message box would end.
std::wstring excerptOf(std::wstring_view text) {
  constexpr std::size_t kLongest = 60;
  std::wstring excerpt(text.substr(0, kLongest));
  std::ranges::replace_if(
      excerpt, [](wchar_t c) { return c < 0x20; }, L' ');
  return text.size() > kLongest ? excerpt + L"..." : excerpt;
}

/// A text of very many digits has no number that could be written out.
std::wstring outOfRange(double value) {
  const std::wstring number = std::isfinite(value) ? L"number " + doubleToText(value) : L"number";
  return L"The " + number + (value < 0 ? L" is too small." : L" is too large.");
}

}  // namespace

Failure::Failure(std::wstring message) : message_(std::move(message)), narrow_(asciiOf(message_)) {}

void Failure::prefix(std::wstring_view where) {
  message_.insert(0, where);
  narrow_ = asciiOf(message_);
}

ConversionError::ConversionError(std::wstring_view text)
    : Failure(L"This is not a number that can be used here: \"" + excerptOf(text) + L"\""),
      text_(text) {}

OverflowError::OverflowError(double value) : OverflowError(value, outOfRange(value)) {}

OverflowError::OverflowError(double value, std::wstring message)
    : Failure(std::move(message)), value_(value) {}

FileError::FileError(std::wstring_view what, const std::filesystem::path& file)
    : Failure(std::wstring(what) + file.wstring()), file_(file) {}

}  // namespace kalvora
