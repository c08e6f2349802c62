#include "skin/FieldLetters.h"

#include <algorithm>

namespace kalvora {

namespace {

constexpr int kSmallest = 8;
constexpr int kUsual = 13;
constexpr int kLargest = 24;

// A line in an edit control needs its letters' height and a little air above and below; large
// letters need more, because the air within a font grows with it.
constexpr int kAir = 5;
constexpr int kAirOfLargeLetters = 10;

}  // namespace

int fieldLetters(int boxHeight) {
  const int usual = std::clamp(boxHeight - kAir, kSmallest, kUsual);
  const int large = std::min(boxHeight - kAirOfLargeLetters, kLargest);
  return std::max(usual, large);
}

int noteTextLetters(int titleBoxHeight) {
  return std::max(fieldLetters(titleBoxHeight), kUsual);
}

}  // namespace kalvora
