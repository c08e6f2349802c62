#include "app/WindowMotion.h"

#include <string>
#include <utility>

#include "alarms/Animation.h"
#include "app/EdgeSnap.h"
#include "base/Numbers.h"

namespace kalvora {

namespace {

constexpr int kLargestStep = 2184;  // pixels: the twips of more leave 16 bits

constexpr std::wstring_view kSlideStepTooLarge =
    L"The main window's slide has steps that are too large. So it takes one step only.\r\n\r\nTo "
    L"mend it, open the options, choose \"Graphics\" and enter a smaller \"Size of a step\" "
    L"for the main window; the largest is ";
constexpr std::wstring_view kRollStepTooLarge =
    L"The notes roll up and down in steps that are too large. So they take one step only.\r\n\r\n"
    L"To mend it, open the options, choose \"Graphics\" and enter a smaller \"Size of a step\" "
    L"for the notes; the largest is ";

/// Where a window that was dropped on a monitor comes to stand.
Rect snapped(const Rect& dropped, const Rect& monitor) {
  const auto twips = [](int pixels) { return pixels * kTwipsPerPixel; };
  const TwipsPlace place = snapToEdges({twips(dropped.x - monitor.x), twips(dropped.y - monitor.y)},
                                       {twips(dropped.width), twips(dropped.height)},
                                       {twips(monitor.width), twips(monitor.height)});
  return {monitor.x + toPixels(place.left), monitor.y + toPixels(place.top), dropped.width,
          dropped.height};
}

}  // namespace

WindowMotion::WindowMotion(Form1View& view, SettingsStore& store, EventGuard& guard,
                           Settings& settings, SkinnedWindow& window, TitleScroller& scroller)
    : view_(view),
      store_(store),
      guard_(guard),
      settings_(settings),
      window_(window),
      scroller_(scroller),
      home_(view, settings) {}

void WindowMotion::setSizes(const WindowSizes& sizes) {
  slide_.changeWidth(sizes_.width, sizes.width);
  roll_.changeHeights({sizes_.fullHeight, sizes_.rolledHeight},
                      {sizes.fullHeight, sizes.rolledHeight});
  sizes_ = sizes;
}

void WindowMotion::takeSkinSizes(const WindowSizes& sizes) {
  const Size before = wholeSize();
  const bool tooFarRight = home_.tooFarRight(before);
  setSizes(sizes);
  if (tooFarRight) home_.putFlush(before, sizes.width);
}

void WindowMotion::showNewSkin() {
  if (!shown() && !sliding_) return;
  home_.findOnDesktop(sizeNow(), wholeSize());
  const bool rolledUp = roll_.rolledUp({sizes_.fullHeight, sizes_.rolledHeight});
  showLook(rolledUp ? RollStep::Look::RolledUp : RollStep::Look::RolledDown);
  moveToHome();
}

void WindowMotion::followDesktop() {
  if (!shown() && !sliding_) return;
  // The platform may have brought it over already.
  Przesuwanie_okna_M_UP();
  if (view_.desktop().shows(home_.of(sizeNow()))) return;
  home_.findOnDesktop(sizeNow(), wholeSize());
  moveToHome();
}

Size WindowMotion::sizeNow() const {
  return {sizes_.width, toPixels(roll_.height())};
}

/// A window on its way stays as far from its home as it was.
void WindowMotion::moveToHome() {
  const Rect home = home_.of(sizeNow());
  const int seen = toPixels(slide_.offset());
  moveTo({home.right() - seen, home.y, settings_.ZRF1 ? seen : home.width, home.height});
}

void WindowMotion::slideIn(Activation activation) {
  // A roll that was left running would go on from the new height.
  view_.stopTimer(TimerId::Timer2);
  settings_.WysRZF1 ? comeOutRolledDown() : comeOutRolledUp();
  slide_.begin();
  home_.findOnDesktop(sizeNow(), wholeSize());
  const Rect home = home_.of(sizeNow());
  moveTo({home.right(), home.y, home.width, home.height});
  view_.show(activation);
  scroller_.goOnAtOnce();
  startTimer1();
}

void WindowMotion::comeOutRolledDown() {
  roll_.beginRolledDown({sizes_.fullHeight, sizes_.rolledHeight});
  showLook(RollStep::Look::RolledDown);
}

void WindowMotion::comeOutRolledUp() {
  roll_.beginRolled({sizes_.fullHeight, sizes_.rolledHeight});
  showLook(RollStep::Look::RolledUp);
}

void WindowMotion::showLook(RollStep::Look look) {
  const bool rolledUp = look == RollStep::Look::RolledUp;
  view_.setShape(rolledUp ? window_.rolledShape() : window_.fullShape());
  window_.Ukryj_pics(hidesNotePictures(look) ? Hide::Yes : Hide::No);
  for (const FieldId field : kAllFields) {
    view_.setFieldVisibility(field,
                             window_.fieldsHidden() ? Visibility::Hidden : Visibility::Shown);
  }
}

void WindowMotion::slideOut() {
  // Under the hand that drags it, or when the news of its release is on the way still.
  if (dragged_) Przesuwanie_okna_M_UP();
  view_.show(Activation::TakeKeyboard);
  startTimer1();
}

void WindowMotion::showRolledDown() {
  // Under the hand that drags it the window stands elsewhere by now.
  if (dragged_) place_ = view_.place();
  view_.stopTimer(TimerId::Timer2);
  comeOutRolledDown();
  moveTo({place_.x, place_.y, place_.width, sizeNow().height});
}

void WindowMotion::rollNotes() {
  startTimer2();
}

void WindowMotion::putAt(Point topLeft) {
  moveTo({topLeft.x, topLeft.y, place_.width, place_.height});
}

void WindowMotion::moveTo(const Rect& place) {
  place_ = place;
  view_.setPlace(place);
}

void WindowMotion::startTimer1() {
  sliding_ = true;
  view_.startTimer(TimerId::Timer1, timerIntervalInUse(settings_.Window1_interval));
}

void WindowMotion::startTimer2() {
  view_.startTimer(TimerId::Timer2, timerIntervalInUse(settings_.Window2_interval));
}

WindowMotion::Then WindowMotion::Timer1_Timer() {
  const auto stop = [this] {
    sliding_ = false;
    view_.stopTimer(TimerId::Timer1);
  };
  const SlideSettings obeyed{usableStep(settings_.Win1_Jump, kSlideStepTooLarge), settings_.ZRF1,
                             settings_.WysRZF1, settings_.AShT};
  const SlideStep step = tickOrStop(
      [&] {
        return slide_.tick(obeyed, {settings_.Window_X, sizes_.width});
      },
      stop);
  Rect place = place_;
  if (step.width) place.width = toPixels(*step.width);
  place.x = toPixels(step.left);
  moveTo(place);
  if (step.stopsTimer()) stop();
  if (step.redrawsPicture()) window_.Refresh_Form_Pic();
  if (step.hidesWindow()) view_.hide();
  return step.startsRoll ? Then::RollDown : Then::Nothing;
}

void WindowMotion::Timer2_Timer() {
  const auto stop = [this] { view_.stopTimer(TimerId::Timer2); };
  const std::int16_t jump = usableStep(settings_.Win2_Jump, kRollStepTooLarge);
  const RollStep step = tickOrStop(
      [&] {
        return roll_.tick(jump, {sizes_.fullHeight, sizes_.rolledHeight});
      },
      stop);
  if (step.lookBefore) showLook(*step.lookBefore);
  Rect place = place_;
  place.height = toPixels(step.height);
  moveTo(place);
  if (step.lookAfter) showLook(*step.lookAfter);
  if (step.stopsTimer) stop();
}

std::int16_t WindowMotion::usableStep(std::int16_t pixels, std::wstring_view sentence) {
  if (pixels <= kLargestStep) return pixels;
  stepTooLarge_.emplace(pixels, std::wstring(sentence) + numberToText(kLargestStep) + L".");
  // A window that stood still half way would keep its reminder to itself.
  return 0;
}

void WindowMotion::tellNews() {
  if (sliding_) return;
  home_.tellIfLost();
  if (const auto tooLarge = std::exchange(stepTooLarge_, std::nullopt)) throw *tooLarge;
}

void WindowMotion::Przesuwanie_okna() {
  dragged_ = true;
  view_.dragByCaption();
  dragged_ = false;
  place_ = view_.place();
  const Rect home = snapped(place_, view_.desktop().monitorOf(place_));
  if (home != place_) moveTo(home);
  Przesuwanie_okna_M_UP();
}

void WindowMotion::Przesuwanie_okna_M_UP() {
  // It can also have gone away under the hand that dragged it.
  if (sliding_ || !shown()) return;
  place_ = view_.place();
  settings_.Window_X = toInt16(place_.x);
  settings_.Window_Y = toInt16(place_.y);
  if (!settings_.alwaysSaveWinPos) return;
  // Settings that cannot be saved keep nobody from sending the window away.
  guard_.run([this] { saveWindowPosition(store_, settings_.Window_X, settings_.Window_Y); });
}

}  // namespace kalvora
