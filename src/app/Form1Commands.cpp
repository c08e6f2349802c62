// What the keys of the main window ask for.

#include "app/Form1.h"

namespace kalvora {

bool Form1::takes(MainCommand command) const {
  if (isOfReminder(command)) return showsReminder();
  if (command != MainCommand::TurnHalf) return true;
  return settings_.AmPm && !window_.fieldsHidden() && notes_.editing() == Editing::Allowed;
}

void Form1::act(MainCommand command) {
  switch (command) {
    case MainCommand::TurnHalf:
      AmPmLabel_Click();
      return;
    case MainCommand::Find:
      ports_.otherWindows.showFind();
      return;
    case MainCommand::WhatComes:
      ports_.otherWindows.showWhatComes();
      return;
    case MainCommand::OpenMenu:
      openMenuOverWindow();
      return;
    // A reminder is put off and away without a face, too.
    case MainCommand::Snooze:
      buttonActions_.snooze();
      return;
    case MainCommand::SnoozeMenu:
      openSnoozeMenu();
      return;
    case MainCommand::Done:
      buttonActions_.done();
      return;
    default:
      if (const auto button = buttonOf(command)) pressButton(*button);
  }
}

void Form1::openMenuOverWindow() {
  const Rect place = ports_.view.place();
  ports_.otherWindows.openMenuAt({place.x + place.width / 2, place.y + place.height / 2});
}

void Form1::openSnoozeMenu() {
  const Rect place = window_.buttonVisible(ButtonId::Snooze)
                         ? window_.buttonRect(ButtonId::Snooze)
                         : Rect{0, 0, ports_.view.place().width, ports_.view.place().height};
  buttonActions_.snoozeMenu({place.x + place.width / 2, place.y + place.height / 2});
}

}  // namespace kalvora
