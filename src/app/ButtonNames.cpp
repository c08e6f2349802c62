#include "app/ButtonNames.h"

#include "app/MainCommands.h"
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

// In the order of ButtonId.
constexpr std::array<std::wstring_view, kButtonCount> kActions = {
    L"Delete, and put the window away",
    L"Roll down/up",
    L"Minimize",
    L"New note",
    L"Save as a Fast note",
    L"Delete now, without asking",
    L"Previous note",
    L"Next note",
    L"Snooze: remind again later (right-click for when)",
    L"Done: put the reminder away"};
constexpr std::wstring_view kSaveInOwnKind = L"Save";

// In the order of FieldId.
constexpr std::array<std::wstring_view, kFieldCount> kFieldTips = {
    L"The note's title, which is its file's name, too", L"The note's text",
    L"Time, such as 7:30; empty: no reminder", L"Click, or up and down keys: AM or PM"};

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

std::wstring_view actionOf(ButtonId button, const Comfort& comfort) {
  const bool savesInOwnKind = button == ButtonId::Buttons_main_02 && comfort.Keep_typing;
  return savesInOwnKind ? kSaveInOwnKind : kActions[static_cast<std::size_t>(button)];
}

std::wstring_view tipOf(FieldId field) {
  return kFieldTips[static_cast<std::size_t>(field)];
}

std::wstring tipOf(const NamedButton& button) {
  return std::wstring(button.action) + L" \x00B7 " + std::wstring(button.key);
}

NamedButtons namedButtons(const SkinnedWindow& window, const Comfort& comfort) {
  NamedButtons buttons;
  for (const ButtonId id : kAllButtons) {
    const Rect rect = window.buttonRect(id);
    buttons[static_cast<std::size_t>(id)] = {id,
                                             nameOf(id),
                                             actionOf(id, comfort),
                                             keyOf(commandOf(id)),
                                             rect,
                                             window.buttonVisible(id) && !rect.empty()};
  }
  return buttons;
}

}  // namespace kalvora
