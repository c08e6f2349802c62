#include "app/ButtonNames.h"

#include "skin/SkinnedWindow.h"

namespace kalvora {

namespace {

// In the order of ButtonId.
constexpr std::array<std::wstring_view, kButtonCount> kButtonNames = {
    L"Fast delete",
    L"Roll down/up",
    L"Minimize",
    L"New",
    L"Save",
    L"Delete",
    L"Previous",
    L"Next",
    L"Snooze: remind again later (right-click for when)",
    L"Done: put the reminder away"};

// In the order of FieldId.
constexpr std::array<std::wstring_view, kFieldCount> kFieldNames = {L"Title", L"Text", L"Time",
                                                                    L"AM or PM"};

}  // namespace

std::wstring_view nameOf(ButtonId button) {
  return kButtonNames[static_cast<std::size_t>(button)];
}

std::wstring_view nameOf(FieldId field) {
  return kFieldNames[static_cast<std::size_t>(field)];
}

NamedButtons namedButtons(const SkinnedWindow& window) {
  NamedButtons buttons;
  for (const ButtonId id : kAllButtons) {
    const Rect rect = window.buttonRect(id);
    buttons[static_cast<std::size_t>(id)] = {id, nameOf(id), rect,
                                             window.buttonVisible(id) && !rect.empty()};
  }
  return buttons;
}

}  // namespace kalvora
