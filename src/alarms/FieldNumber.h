#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace kalvora {

/// Whether a field is empty, or the file no longer has it, which reads as one NUL character.
bool isMissing(std::wstring_view field);

/// A number field of a note; nothing where it is missing.
/// Throws ConversionError and OverflowError for what is no 16-bit number.
std::optional<std::int16_t> fieldNumber(std::wstring_view field);

}  // namespace kalvora
