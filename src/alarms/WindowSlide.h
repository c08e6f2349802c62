#pragma once

#include <cstdint>
#include <optional>

namespace kalvora {

/// The settings that a slide obeys, by their keys.
struct SlideSettings {
  std::int16_t Win1_Jump = 10;  // pixels of a step
  bool ZRF1 = false;            // the window's width follows the slide
  bool WysRZF1 = true;          // the window comes out with the note area rolled down
  bool AShT = false;            // the note area rolls down when the window has come out
};

/// The window at rest, in pixels.
struct WindowHome {
  std::int16_t left = 0;
  std::int16_t width = 0;
};

/// What one tick of `Timer1` does to the window, in this order.
struct SlideStep {
  enum class End { None, In, Out };

  std::optional<std::int16_t> width;  // twips; nothing: the width stays as it is
  std::int32_t left = 0;              // twips; 16 bits end after 2184 pixels, many desktops do not
  End end = End::None;
  bool startsRoll = false;  // last of all, `Timer2` starts and rolls the note area down

  bool stopsTimer() const { return end != End::None; }
  /// The window picture is drawn anew (`Refresh_Form_Pic`).
  bool redrawsPicture() const { return end == End::In; }
  bool hidesWindow() const { return end == End::Out; }

  friend bool operator==(const SlideStep&, const SlideStep&) = default;
};

/// The main window's slide: in from one width to the right of its home, which may be anywhere, and
/// out again. It runs on the timer `Timer1`; every slide ends, whatever the settings.
class WindowSlide {
 public:
  /// Makes the next ticks slide the window in from its start.
  void begin();

  /// One tick: in while the window is not out, out while it is. A slide that was left half way goes
  /// on from there. A Win1_Jump below 1 reaches the end at once.
  /// Throws OverflowError, and changes nothing, where the step or the window's width in twips is
  /// beyond 16 bits; `Timer1` must then be stopped (tickOrStop()).
  SlideStep tick(const SlideSettings& settings, const WindowHome& home);

  /// The window became wider or narrower, in pixels: one that is out stays wholly out, and of one
  /// on its way there is as much to be seen as before. Throws OverflowError, and changes nothing,
  /// where a width in twips is beyond 16 bits.
  void changeWidth(std::int16_t from, std::int16_t to);

  /// The shown flag: true from the end of a slide in to the end of a slide out.
  bool shown() const { return shown_; }
  /// How much of the window has slid in, in twips.
  std::int32_t offset() const { return offset_; }

 private:
  SlideStep slideIn(const SlideSettings& settings, std::int32_t wholeWidth, std::int32_t rightEdge);
  SlideStep slideOut(const SlideSettings& settings, std::int32_t rightEdge);
  SlideStep moveTo(std::int32_t offset, const SlideSettings& settings, std::int32_t rightEdge);

  bool shown_ = false;
  std::int32_t offset_ = 0;
};

}  // namespace kalvora
