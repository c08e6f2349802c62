#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "alarms/WindowRoll.h"
#include "alarms/WindowSlide.h"
#include "app/Form1View.h"
#include "app/HomePlace.h"
#include "base/Errors.h"
#include "base/EventGuard.h"
#include "skin/SkinnedWindow.h"
#include "skin/TitleScroller.h"

namespace kalvora {

/// The sizes of the main window that its skin gives, in pixels.
struct WindowSizes {
  std::int16_t width = 0;
  std::int16_t fullHeight = 0;
  std::int16_t rolledHeight = 0;
};

/// Moves the main window: slides it in and out, rolls its note area, and lets the user drag it.
class WindowMotion {
 public:
  /// All must outlive this object.
  WindowMotion(Form1View& view, SettingsStore& store, EventGuard& guard, Settings& settings,
               SkinnedWindow& window, TitleScroller& scroller);

  const WindowSizes& sizes() const { return sizes_; }
  void setSizes(const WindowSizes& sizes);
  /// Takes the sizes of a new skin. A window that stood near the right edge of its monitor, or
  /// beyond it, has its home flush with that edge from now on.
  void takeSkinSizes(const WindowSizes& sizes);
  /// Shows a window that is out, or on its way, in the size and the outline of a new skin. A slide
  /// or a roll goes on; one that is away stays away.
  void showNewSkin();
  /// Monitors came, went or changed. A window that is out, or on its way, and whose place no
  /// monitor shows any more goes to its computed home at once; a slide or a roll goes on there.
  /// tellNews() says so.
  void followDesktop();
  /// Whether the window is out on the screen: true from the end of a slide in to the end of a
  /// slide out.
  bool shown() const { return slide_.shown(); }
  bool rolledDown() const { return roll_.rolledDown(); }

  /// Whether the window is on its way in, or on its way out.
  bool comingOut() const { return sliding_ && !shown(); }
  bool goingAway() const { return sliding_ && shown(); }

  /// Places the window one width to the right of its home and starts the slide in. Where no monitor
  /// shows its home, the computed one takes its place; tellNews() says so.
  /// Throws OverflowError, and changes nothing, where a size in twips is beyond 16 bits.
  void slideIn(Activation activation);
  /// Starts the slide out. In the middle of a slide in the window goes on coming in.
  void slideOut();
  /// A window that is out shows its note area at once, whatever roll was on its way.
  void showRolledDown();
  /// Rolls the note area up while it is down, down while it is up.
  void rollNotes();
  /// What comes after a tick of Timer1: the user may want the notes rolled down when the window has
  /// come out.
  enum class Then { Nothing, RollDown };
  /// A tick of Timer1 or Timer2. A step that is too large reaches the end at once, and tellNews()
  /// says so. Throws OverflowError, and stops that timer first, where a size in twips is beyond 16
  /// bits.
  Then Timer1_Timer();
  void Timer2_Timer();
  /// Tells the user, while no slide runs, what became of a place or a step that could not be used.
  /// The last thing of an event. Throws OverflowError for a step.
  void tellNews();

  /// Move the window: lets the user drag it until the mouse button is released, then snaps it to
  /// the edges of the monitor that it is on.
  void Przesuwanie_okna();
  /// Move the window, mouse up: takes the place where the window stands as its home, except in the
  /// middle of a slide.
  void Przesuwanie_okna_M_UP();
  /// Puts the window with its top left corner there, at the size that it has now.
  void putAt(Point topLeft);

 private:
  void moveTo(const Rect& place);
  Size wholeSize() const { return {sizes_.width, sizes_.fullHeight}; }
  /// A step of an animation in pixels; 0, which reaches the end at once, for one that is too large.
  std::int16_t usableStep(std::int16_t pixels, std::wstring_view sentence);
  void comeOutRolledDown();
  void comeOutRolledUp();
  void showLook(RollStep::Look look);
  Size sizeNow() const;
  void moveToHome();
  void startTimer1();
  void startTimer2();

  Form1View& view_;
  SettingsStore& store_;
  EventGuard& guard_;
  Settings& settings_;
  SkinnedWindow& window_;
  TitleScroller& scroller_;
  HomePlace home_;
  WindowSizes sizes_;
  // Where the window was last put. Asking the window instead could bring in an older place that a
  // window manager reports late.
  Rect place_;
  WindowSlide slide_;
  WindowRoll roll_;
  bool sliding_ = false;                       // Timer1 runs
  bool dragged_ = false;                       // by the user's hand
  std::optional<OverflowError> stepTooLarge_;  // not told yet
};

}  // namespace kalvora
