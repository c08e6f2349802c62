#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kalvora {

/// Twips in a pixel: window places and sizes are checked in twips, as 16-bit numbers.
inline constexpr int kTwipsPerPixel = 15;

/// `value` rounded to the nearest whole number, halves to the even one.
/// Throws OverflowError where 16 bits cannot hold it.
std::int16_t toInt16(double value);
/// The same for 32 bits.
std::int32_t toInt32(double value);

/// A decimal text as a 16-bit number: blanks around it are ignored, a sign, a fraction and a
/// decimal exponent may stand in it, and it is rounded halves to even.
/// Throws ConversionError (an empty text too) and OverflowError.
std::int16_t textToInt16(std::wstring_view text);
/// The same for 32 bits.
std::int32_t textToInt32(std::wstring_view text);
/// The same grammar as a single-precision number.
float textToSingle(std::wstring_view text);
/// "True" and "False" in any case, or a number: 0 is false, any other true.
/// Throws ConversionError.
bool textToBoolean(std::wstring_view text);

/// "True" or "False".
std::wstring booleanToText(bool value);
/// Plain decimal, without a leading blank.
std::wstring numberToText(std::int32_t value);
/// Whole numbers are written out without a point, up to 15 digits; others with the fewest digits
/// that are read back as the same number.
std::wstring doubleToText(double value);
std::wstring singleToText(float value);

/// a + b in 16 bits. Throws OverflowError.
std::int16_t add16(std::int16_t a, std::int16_t b);

/// A length in twips that a window place or size can take. Throws OverflowError where the 16-bit
/// product does not hold it (beyond 2184 pixels).
std::int16_t toTwips(std::int16_t pixels);
/// Twips to the nearest pixel.
int toPixels(double twips);

}  // namespace kalvora
