#include "options/OptionsControls.h"

#include <array>

namespace kalvora {

namespace {

constexpr std::array<std::wstring_view, kSoundPathCount> kSoundNames = {
    L"Showing Window", L"Hidding Window", L"Showing Notes",     L"Hidding Notes",
    L"Alarm",          L"Button Press",   L"Button Fast Delete"};

}  // namespace

std::wstring nameOf(TextId id) {
  switch (id.box) {
    case TextBox::WindowTime:
      return L"Main Window, time of a step";
    case TextBox::WindowSize:
      return L"Main Window, size of a step";
    case TextBox::NotesTime:
      return L"Notes, time of a step";
    case TextBox::NotesSize:
      return L"Notes, size of a step";
    case TextBox::WinPos:
      return id.item == 0 ? L"Window position, left" : L"Window position, top";
    case TextBox::Sound_path:
      break;
  }
  return std::wstring(kSoundNames.at(static_cast<std::size_t>(id.item)));
}

OptionsPage pageOf(TextId id) {
  switch (id.box) {
    case TextBox::WinPos:
      return OptionsPage::SetWindowPosition;
    case TextBox::Sound_path:
      return OptionsPage::Sounds;
    default:
      return OptionsPage::Graphics;
  }
}

}  // namespace kalvora
