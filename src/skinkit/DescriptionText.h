#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kalvora {

/// A line of a description file that is neither a comment nor empty.
struct DescriptionLine {
  enum class Kind { Section, Key, Neither };
  int number = 0;  // from 1
  Kind kind = Kind::Neither;
  std::wstring section;  // the line's own, or the one that it stands under
  std::wstring key;      // of a Key
};

/// The lines of a description file, from the bytes of the file as iniTextOf gives them.
std::vector<DescriptionLine> descriptionLines(std::string_view text);

/// What a description file may hold.
struct KnownKey {
  std::wstring section;
  std::wstring key;
  std::wstring fallback;
};

/// Every key that the program asks a description file for, in its order.
std::vector<KnownKey> knownKeys();

}  // namespace kalvora
