#include "app/WindowMotion.h"

#include "alarms/Animation.h"
#include "app/EdgeSnap.h"
#include "base/Numbers.h"

namespace kalvora {

WindowMotion::WindowMotion(const Form1Ports& ports, Settings& settings, SkinnedWindow& window,
                           TitleScroller& scroller)
    : ports_(ports), settings_(settings), window_(window), scroller_(scroller) {}

void WindowMotion::slideIn(Activation activation) {
  const std::int16_t left = toTwips(add16(settings_.Window_X, sizes_.width));
  const std::int16_t top = toTwips(settings_.Window_Y);
  const std::int16_t width = toTwips(sizes_.width);
  // A roll that was left running would go on from the new height.
  ports_.view.stopTimer(TimerId::Timer2);
  settings_.WysRZF1 ? comeOutRolledDown() : comeOutRolledUp();
  slide_.begin();
  moveTo({toPixels(left), toPixels(top), toPixels(width), toPixels(roll_.height())});
  ports_.view.show(activation);
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
  ports_.view.setShape(rolledUp ? window_.rolledShape() : window_.fullShape());
  window_.Ukryj_pics(hidesNotePictures(look) ? Hide::Yes : Hide::No);
  for (const FieldId field : kAllFields) {
    ports_.view.setFieldVisibility(field,
                                   window_.fieldsHidden() ? Visibility::Hidden : Visibility::Shown);
  }
}

void WindowMotion::slideOut() {
  ports_.view.show(Activation::TakeKeyboard);
  startTimer1();
}

void WindowMotion::rollNotes() {
  startTimer2();
}

void WindowMotion::putAt(Point topLeft) {
  moveTo({topLeft.x, topLeft.y, place_.width, place_.height});
}

void WindowMotion::moveTo(const Rect& place) {
  place_ = place;
  ports_.view.setPlace(place);
}

void WindowMotion::startTimer1() {
  sliding_ = true;
  ports_.view.startTimer(TimerId::Timer1, timerIntervalInUse(settings_.Window1_interval));
}

void WindowMotion::startTimer2() {
  ports_.view.startTimer(TimerId::Timer2, timerIntervalInUse(settings_.Window2_interval));
}

WindowMotion::Then WindowMotion::Timer1_Timer() {
  const auto stop = [this] {
    sliding_ = false;
    ports_.view.stopTimer(TimerId::Timer1);
  };
  const SlideSettings obeyed{settings_.Win1_Jump, settings_.ZRF1, settings_.WysRZF1,
                             settings_.AShT};
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
  if (step.hidesWindow()) ports_.view.hide();
  return step.startsRoll ? Then::RollDown : Then::Nothing;
}

void WindowMotion::Timer2_Timer() {
  const auto stop = [this] { ports_.view.stopTimer(TimerId::Timer2); };
  const RollStep step = tickOrStop(
      [&] {
        return roll_.tick(settings_.Win2_Jump, {sizes_.fullHeight, sizes_.rolledHeight});
      },
      stop);
  if (step.lookBefore) showLook(*step.lookBefore);
  Rect place = place_;
  place.height = toPixels(step.height);
  moveTo(place);
  if (step.lookAfter) showLook(*step.lookAfter);
  if (step.stopsTimer) stop();
}

void WindowMotion::Przesuwanie_okna() {
  ports_.view.dragByCaption();
  const auto twips = [](int pixels) { return pixels * kTwipsPerPixel; };
  place_ = ports_.view.place();
  const Rect place = place_;
  const Size screen = ports_.view.screenSize();
  const TwipsPlace snapped =
      snapToEdges({twips(place.x), twips(place.y)}, {twips(place.width), twips(place.height)},
                  {twips(screen.width), twips(screen.height)});
  const Rect home{toPixels(snapped.left), toPixels(snapped.top), place.width, place.height};
  if (home != place) moveTo(home);
  Przesuwanie_okna_M_UP();
}

void WindowMotion::Przesuwanie_okna_M_UP() {
  if (sliding_) return;
  place_ = ports_.view.place();
  settings_.Window_X = toInt16(place_.x);
  settings_.Window_Y = toInt16(place_.y);
  if (!settings_.alwaysSaveWinPos) return;
  // Settings that cannot be saved keep nobody from sending the window away.
  ports_.guard.run(
      [this] { saveWindowPosition(ports_.settings, settings_.Window_X, settings_.Window_Y); });
}

}  // namespace kalvora
