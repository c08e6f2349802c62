#pragma once

#include <cstddef>
#include <string>

namespace kalvora {

/// A piece of a note's text that somebody is to see, as it was when it was found.
struct PlaceInNote {
  std::size_t begin = 0;  // in characters of the text that the editor shows
  std::wstring text;      // empty for no place
  friend bool operator==(const PlaceInNote&, const PlaceInNote&) = default;
};

}  // namespace kalvora
