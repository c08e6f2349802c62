#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string_view>

/// What a fuzz target is: it is given any bytes, and the program ends where something is wrong.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace kalvora {

/// Ends the program where what must hold for any input does not.
inline void require(bool holds, std::string_view what) {
  if (holds) return;
  std::cerr << "This does not hold: " << what << '\n';
  std::abort();
}

inline std::string_view bytesOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Takes the next part of `rest`, up to the next `separator`, which is dropped, or to the end.
inline std::string_view takePart(std::string_view& rest, char separator) {
  const std::string_view part = rest.substr(0, rest.find(separator));
  rest.remove_prefix(part.size() < rest.size() ? part.size() + 1 : rest.size());
  return part;
}

}  // namespace kalvora
