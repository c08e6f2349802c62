#include "base/Numbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <optional>

#include "base/Errors.h"
#include "base/Text.h"

namespace kalvora {

namespace {

double roundHalvesToEven(double value) {
  const double floor = std::floor(value);
  const double fraction = value - floor;
  if (fraction == 0.5) return std::fmod(floor, 2.0) == 0.0 ? floor : floor + 1.0;
  return fraction < 0.5 ? floor : floor + 1.0;
}

template <typename Whole>
Whole toWhole(double value) {
  const double rounded = roundHalvesToEven(value);
  const bool fits = rounded >= static_cast<double>(std::numeric_limits<Whole>::min()) &&
                    rounded <= static_cast<double>(std::numeric_limits<Whole>::max());
  if (!fits) throw OverflowError(value);
  return static_cast<Whole>(rounded);
}

/// The ASCII form of a text that may be a number: strtod would take hexadecimal digits, "inf" and
/// "nan" too, which are no numbers to a user.
std::optional<std::string> asciiNumber(std::wstring_view text) {
  text = trimmed(text);
  if (text.starts_with(L'+')) {
    text.remove_prefix(1);
    if (text.starts_with(L'-') || text.starts_with(L'+')) return std::nullopt;
  }
  std::string ascii;
  for (const wchar_t c : text) {
    const bool allowed =
        (c >= L'0' && c <= L'9') || c == L'.' || c == L'-' || c == L'+' || c == L'e' || c == L'E';
    if (!allowed) return std::nullopt;
    ascii += static_cast<char>(c);
  }
  return ascii;
}

std::optional<double> textToDouble(std::wstring_view text) {
  const std::optional<std::string> ascii = asciiNumber(text);
  if (!ascii || ascii->empty()) return std::nullopt;
  char* stop = nullptr;
  // Not from_chars: its tables, with those of to_chars, are a tenth of the whole program.
  const double value = std::strtod(ascii->c_str(), &stop);
  if (stop != ascii->c_str() + ascii->size()) return std::nullopt;
  return value;
}

double requireDouble(std::wstring_view text) {
  const std::optional<double> value = textToDouble(text);
  if (!value) throw ConversionError(text);
  return *value;
}

/// Whole numbers are written out, others with the fewest digits that are read back as the same.
template <typename Real>
std::wstring realToText(Real value) {
  constexpr double kLargestWrittenOut = 1e15;
  const double number = value;
  std::array<char, 64> text{};
  if (std::abs(number) < kLargestWrittenOut && std::trunc(number) == number) {
    std::snprintf(text.data(), text.size(), "%.0f", number);
    return {text.begin(), std::ranges::find(text, '\0')};
  }
  for (int digits = 1; digits <= std::numeric_limits<Real>::max_digits10; ++digits) {
    std::snprintf(text.data(), text.size(), "%.*g", digits, number);
    if (static_cast<Real>(std::strtod(text.data(), nullptr)) == value) break;
  }
  return {text.begin(), std::ranges::find(text, '\0')};
}

}  // namespace

std::int16_t toInt16(double value) {
  return toWhole<std::int16_t>(value);
}
std::int32_t toInt32(double value) {
  return toWhole<std::int32_t>(value);
}

std::int16_t textToInt16(std::wstring_view text) {
  return toInt16(requireDouble(text));
}
std::int32_t textToInt32(std::wstring_view text) {
  return toInt32(requireDouble(text));
}

float textToSingle(std::wstring_view text) {
  const double value = requireDouble(text);
  if (std::abs(value) > static_cast<double>(std::numeric_limits<float>::max())) {
    throw OverflowError(value);
  }
  return static_cast<float>(value);
}

bool textToBoolean(std::wstring_view text) {
  const std::wstring_view word = trimmed(text);
  if (equalIgnoringCase(word, L"true")) return true;
  if (equalIgnoringCase(word, L"false")) return false;
  return requireDouble(text) != 0.0;
}

std::wstring booleanToText(bool value) {
  return value ? L"True" : L"False";
}
std::wstring numberToText(std::int32_t value) {
  return std::to_wstring(value);
}
std::wstring doubleToText(double value) {
  return realToText(value);
}
std::wstring singleToText(float value) {
  return realToText(value);
}

std::int16_t add16(std::int16_t a, std::int16_t b) {
  return toInt16(static_cast<double>(a) + b);
}

std::int16_t toTwips(std::int16_t pixels) {
  return toInt16(static_cast<double>(pixels) * kTwipsPerPixel);
}

int toPixels(double twips) {
  return toInt32(twips / kTwipsPerPixel);
}

}  // namespace kalvora
