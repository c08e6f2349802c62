#pragma once

#include <string_view>

#include "notes/WebAddresses.h"
#include "notes/frmAboutView.h"

namespace kalvora {

/// The about window's presenter: a band of pictures scrolls by, and two labels open the maker's web
/// pages.
class frmAbout {
 public:
  /// `view` and `shell` must outlive this object.
  frmAbout(frmAboutView& view, HiddenShell& shell, WebAddresses addresses);

  /// Opens the window; one that is open already comes to the front.
  void open();
  /// Closes it; harmless where it is not open.
  void unload();

  /// Moves the band by a pixel and counts the tick; at some of the ticks the label shows the other
  /// web page.
  void Timer1_Timer();
  /// Other links: puts an address on the label, while a piece of the band stands within its frame.
  void InneLinki(std::wstring_view address);
  /// Opens the page that the label shows. Only the two addresses given at the start can be opened.
  void link_Click(LinkLabel label);
  void cmdOK_Click() { unload(); }

 private:
  void showLinks();

  frmAboutView& view_;
  HiddenShell& shell_;
  WebAddresses addresses_;
  bool loaded_ = false;
  int bandLeft_ = 0;  // twips
  int ticks_ = 0;
};

}  // namespace kalvora
