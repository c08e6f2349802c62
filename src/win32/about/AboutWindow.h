#pragma once

#include <windows.h>

#include <optional>

#include "base/Geometry.h"
#include "notes/frmAbout.h"
#include "win32/platform/UniqueHandle.h"
#include "win32/toolkit/DialogFrame.h"
#include "win32/toolkit/EventDelivery.h"

namespace kalvora {

/// The about window.
class AboutWindow : public frmAboutView, private DialogFrame {
 public:
  /// `about` gets events only while the window is open; the others must outlive this object.
  AboutWindow(HWND owner, ModelessDialogs& dialogs, const EventDelivery& deliver, frmAbout& about)
      : DialogFrame(owner, dialogs), deliver_(deliver), about_(about) {}
  // While its fonts and its picture are there.
  ~AboutWindow() override { destroy(); }

  using DialogFrame::window;

  void load() override;
  void unload() override;
  void comeToFront() override { bringToFront(); }
  std::wstring caption(LinkLabel label) const override;
  void setCaption(LinkLabel label, std::wstring_view text) override;
  void hideLinks() override;
  int frameWidth() const override;
  int bandWidth() const override;
  void setBandLeft(int left) override;
  void startTimer1(int interval) override;
  void stopTimer1() override;

 private:
  INT_PTR handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept override;
  bool onCommand(int id, int notification) noexcept;
  bool onSetCursor(HWND control) noexcept;
  void onDrawItem(const DRAWITEMSTRUCT& item) noexcept;
  void drawBand(const DRAWITEMSTRUCT& item) const;
  void drawLink(const DRAWITEMSTRUCT& item) const;
  void makeFonts();
  void writeTexts();
  void fitBandFrame();
  HWND scr_pic() const;
  /// In the window's pixels.
  RECT placeOf(int id) const;

  const EventDelivery& deliver_;
  frmAbout& about_;
  UniqueBitmap scr_img;
  Size bandSize_;
  int bandLeft_ = 0;  // pixels
  UniqueFont nameFont_;
  UniqueFont linkFont_;
};

}  // namespace kalvora
