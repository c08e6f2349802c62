#include "notes/frmAbout.h"

#include <algorithm>
#include <array>

#include "base/Errors.h"
#include "base/Numbers.h"

namespace kalvora {

namespace {

constexpr int kBandInterval = 30;
constexpr int kBandStep = kTwipsPerPixel;

// The ticks at which the label changes, in turn to the skins' page and to the program's own.
constexpr std::array kLinkTicks = {1, 308, 445, 630, 1500};

}  // namespace

frmAbout::frmAbout(frmAboutView& view, HiddenShell& shell, WebAddresses addresses)
    : view_(view), shell_(shell), addresses_(std::move(addresses)) {}

void frmAbout::open() {
  if (loaded_) {
    view_.comeToFront();
    return;
  }
  view_.load();
  loaded_ = true;
  bandLeft_ = 0;
  ticks_ = 0;
  showLinks();
  view_.setBandLeft(bandLeft_);
  view_.startTimer1(kBandInterval);
  view_.comeToFront();
}

void frmAbout::showLinks() {
  if (!addresses_.given()) {
    view_.hideLinks();
    return;
  }
  view_.setCaption(LinkLabel::StartUrl_Label, addresses_.site);
  view_.setCaption(LinkLabel::Label2, addresses_.skins);
}

void frmAbout::unload() {
  if (!loaded_) return;
  loaded_ = false;
  view_.stopTimer1();
  view_.unload();
}

void frmAbout::Timer1_Timer() {
  if (!loaded_) return;
  bandLeft_ -= kBandStep;
  // Once the whole band has gone by, its repetition stands where it began.
  if (bandLeft_ <= -view_.bandWidth()) bandLeft_ = 0;
  view_.setBandLeft(bandLeft_);
  if (!addresses_.given() || ticks_ >= kLinkTicks.back()) return;
  ++ticks_;
  const auto* const tick = std::ranges::find(kLinkTicks, ticks_);
  if (tick == kLinkTicks.end()) return;
  const bool skinsTurn = (tick - kLinkTicks.begin()) % 2 == 0;
  InneLinki(skinsTurn ? addresses_.skins : addresses_.site);
}

void frmAbout::InneLinki(std::wstring_view address) {
  const bool bandIsSeen = bandLeft_ < view_.frameWidth() && bandLeft_ + view_.bandWidth() > 0;
  if (bandIsSeen) view_.setCaption(LinkLabel::Label2, address);
}

void frmAbout::link_Click(LinkLabel label) {
  const std::wstring address = view_.caption(label);
  const bool configured = address == addresses_.site || address == addresses_.skins;
  if (!configured || !isPlainWebAddress(address)) return;
  shell_.run(L"start " + address);
}

}  // namespace kalvora
