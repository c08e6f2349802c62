#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace kalvora {

/// What the platform's call answers from an ini file of this text, into `buffer`; see
/// ProfileReader::privateProfileString.
std::size_t iniAnswer(std::string_view text, const std::string& section, const std::string& key,
                      const std::string& fallback, std::span<char> buffer);

/// Whether a file is so ordinary that every reader of ini files finds the same in it: printable
/// ASCII in lines that are blank, a comment, a section's bare name in its brackets, or a key, "="
/// and a value.
bool isOrdinaryIni(std::string_view bytes);

}  // namespace kalvora
