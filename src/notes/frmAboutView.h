#pragma once

#include <string>
#include <string_view>

namespace kalvora {

/// The two labels of the about window that open a web page.
enum class LinkLabel { Label2, StartUrl_Label };

/// The about window as the user sees it.
class frmAboutView {
 public:
  virtual ~frmAboutView() = default;

  /// Makes the window, hidden.
  virtual void load() = 0;
  /// Ends it; harmless where it is not open.
  virtual void unload() = 0;
  /// Shows it, in front and with the keyboard.
  virtual void comeToFront() = 0;

  virtual std::wstring caption(LinkLabel label) const = 0;
  virtual void setCaption(LinkLabel label, std::wstring_view text) = 0;
  /// Leaves out both labels and what is written beside them, until the window is made again.
  virtual void hideLinks() = 0;

  /// The width of the frame scr_pic and of the band's picture scr_img, in twips.
  virtual int frameWidth() const = 0;
  virtual int bandWidth() const = 0;
  /// Where the left edge of scr_img stands in scr_pic, in twips. The band is repeated to the right
  /// of it as often as the frame has room for.
  virtual void setBandLeft(int left) = 0;

  /// Starts Timer1. Milliseconds.
  virtual void startTimer1(int interval) = 0;
  virtual void stopTimer1() = 0;
};

/// Runs a command of the shell with a hidden window.
class HiddenShell {
 public:
  virtual ~HiddenShell() = default;
  /// Throws Failure where it cannot be started.
  virtual void run(std::wstring_view command) = 0;
};

}  // namespace kalvora
