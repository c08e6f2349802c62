#pragma once

#include <cstdint>
#include <optional>

#include "base/Numbers.h"

namespace kalvora {

/// The two ends of the roll, in pixels.
struct WindowHeights {
  std::int16_t full = 0;    // with the note area
  std::int16_t rolled = 0;  // the title strip only
};

/// What one tick of `Timer2` does to the window.
struct RollStep {
  /// The look for which the window region is rebuilt and the note pictures shown or hidden.
  enum class Look { RolledDown, RolledUp };

  /// Before the height is set: down. The note area is to be seen for the whole movement, so the
  /// region changes first when it comes and last when it goes.
  std::optional<Look> lookBefore;
  std::int16_t height = 0;  // twips
  /// After the height is set: up.
  std::optional<Look> lookAfter;
  bool stopsTimer = false;  // after everything else

  friend bool operator==(const RollStep&, const RollStep&) = default;
};

/// Whether the note pictures are hidden in a look: the argument of `Ukryj_pics`.
constexpr bool hidesNotePictures(RollStep::Look look) {
  return look == RollStep::Look::RolledUp;
}

/// The roll of the main window's note area, down and up. It runs on the timer `Timer2`; every roll
/// ends, whatever the settings.
class WindowRoll {
 public:
  /// The window comes out rolled down. Returns its height in twips. Throws OverflowError and
  /// changes nothing where that is beyond 16 bits.
  std::int16_t beginRolledDown(const WindowHeights& heights);
  /// The window comes out as high as its title strip, and the next roll goes down.
  /// Throws likewise.
  std::int16_t beginRolled(const WindowHeights& heights);

  /// One tick: up while the note area is rolled down, down while it is not, by Win2_Jump pixels. A
  /// roll that was left half way goes on from there. A Win2_Jump below 1 reaches the end at once.
  /// Throws OverflowError, and changes nothing, where a height in twips is beyond 16 bits; `Timer2`
  /// must then be stopped (tickOrStop()).
  RollStep tick(std::int16_t Win2_Jump, const WindowHeights& heights);

  /// The window's heights became others: one that stands at an end stays at that end, and one on
  /// its way stays where it is, or at the end that it is beyond.
  /// Throws OverflowError, and changes nothing, where a height in twips is beyond 16 bits.
  void changeHeights(const WindowHeights& from, const WindowHeights& to);

  bool rolledDown() const { return rolledDown_; }
  /// Whether only the title strip is to be seen, at rest or before the first step of a roll down.
  bool rolledUp(const WindowHeights& heights) const {
    return !rolledDown_ && height_ == toTwips(heights.rolled);
  }
  /// The target height: where the roll stands, in twips.
  std::int16_t height() const { return height_; }

 private:
  RollStep rollUp(std::int16_t Win2_Jump, std::int16_t rolledHeight);
  RollStep rollDown(std::int16_t Win2_Jump, std::int16_t rolledHeight, std::int16_t fullHeight);

  bool rolledDown_ = false;
  std::int16_t height_ = 0;
};

}  // namespace kalvora
