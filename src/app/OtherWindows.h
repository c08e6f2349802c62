#pragma once

#include "base/Geometry.h"

namespace kalvora {

/// The windows beside the main one: the popup menu, the note editor, the options, the about window,
/// the one of what comes and the one that finds.
class OtherWindows {
 public:
  virtual ~OtherWindows() = default;

  /// Opens the popup menu at the mouse pointer.
  virtual void openMenu() = 0;
  /// The same at a place of the screen, for the keyboard.
  virtual void openMenuAt(Point place) = 0;
  /// Opens the window of what comes, or brings it to the front.
  virtual void showWhatComes() = 0;
  /// Opens the window that finds notes, or brings it to the front.
  virtual void showFind() = 0;
  /// Keeps what is typed in them and not saved. Does not throw.
  virtual void keepTyped() noexcept = 0;
  /// What is typed in them is left, as by NoteBrowser::leave(): whether it may be.
  virtual bool leave() = 0;
  /// The same where nothing waits for an answer.
  virtual void saveQuietly() noexcept = 0;
  /// Closes all of them; harmless for those that are not open.
  virtual void unloadAll() = 0;
  /// Tells the options where the main window stands, in pixels of the screen: at each tick of
  /// their timer, and when the user has dropped the window in their set-position mode.
  virtual void followMainWindow(Point position) = 0;
  virtual void mainWindowDropped(Point position) = 0;
};

}  // namespace kalvora
