#pragma once

#include <string>

namespace kalvora {

/// The bytes of an ini file in code page 1252: a file that begins with a UTF-8 or a UTF-16 mark is
/// converted, with "?" for what the code page cannot hold; any other file stands as it is.
std::string iniTextOf(std::string fileBytes);

}  // namespace kalvora
