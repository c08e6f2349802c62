#include "skinkit/SkinStates.h"

#include "skin/SkinnedWindow.h"
#include "skin/WindowPicture.h"

namespace kalvora {

namespace {

constexpr int kDesktopMargin = 12;

bool isReminder(SkinState state) {
  return state == SkinState::Reminder || state == SkinState::ReminderPressed;
}

void writeSampleTexts(SkinnedWindow& window, SkinState state) {
  window.Pokaz_Tekst(RowId::lit, isReminder(state) ? L" REMINDER" : L" Shopping list");
  window.Pokaz_Tekst(RowId::lit_czas, L"11/21/2026 7:30:00 AM");
  window.Pokaz_Tekst(RowId::lit_czas2, L"11/21/2026");
  window.Pokaz_Tekst(RowId::lit_xof, L"2 of 5");
}

void bringInto(SkinnedWindow& window, SkinState state) {
  writeSampleTexts(window, state);
  if (state == SkinState::RolledUp) window.Ukryj_pics(Hide::Yes);
  if (isReminder(state)) window.setMainButtonsVisible(Visible::No);
  if (state != SkinState::Pressed && state != SkinState::ReminderPressed) return;
  for (const ButtonId id : kAllButtons) window.showPressed(id);
}

Image paintedWindow(const SkinnedWindow& window, SkinState state, Pixel ground) {
  if (state == SkinState::RolledUp) {
    return cutOut(window.paint({window.windowWidth(), window.rolledHeight()}), window.rolledShape(),
                  ground);
  }
  Image picture = window.paint({window.windowWidth(), window.fullHeight()});
  fillFields(picture, window.description());
  return cutOut(picture, window.fullShape(), ground);
}

Image enlarged(const Image& picture, int scale) {
  Image result(picture.width() * scale, picture.height() * scale);
  for (int y = 0; y < result.height(); ++y) {
    for (int x = 0; x < result.width(); ++x) result.set(x, y, picture.at(x / scale, y / scale));
  }
  return result;
}

}  // namespace

std::optional<SkinState> skinStateOf(std::string_view word) {
  if (word == "full") return SkinState::Full;
  if (word == "rolled-up") return SkinState::RolledUp;
  if (word == "pressed") return SkinState::Pressed;
  if (word == "reminder") return SkinState::Reminder;
  if (word == "reminder-pressed") return SkinState::ReminderPressed;
  return {};
}

Image skinPicture(const Skin& skin, const PreviewLook& look) {
  SkinnedWindow window;
  window.wear(skin);
  bringInto(window, look.state);
  const Image picture = paintedWindow(window, look.state, look.ground);
  Image framed(picture.width() + 2 * kDesktopMargin, picture.height() + 2 * kDesktopMargin,
               look.ground);
  framed.draw(picture, {kDesktopMargin, kDesktopMargin});
  return look.scale == 1 ? framed : enlarged(framed, look.scale);
}

}  // namespace kalvora
