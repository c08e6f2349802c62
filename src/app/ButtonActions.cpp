#include "app/ButtonActions.h"

namespace kalvora {

ButtonActions::ButtonActions(Form1View& view, const Settings& settings, Sounds& sounds,
                             NoteBrowser& notes, WindowMotion& motion,
                             const ReminderDisplay& reminders, ReminderSnooze& snoozing,
                             AlarmCheck& alarms)
    : view_(view),
      settings_(settings),
      sounds_(sounds),
      notes_(notes),
      motion_(motion),
      reminders_(reminders),
      snoozing_(snoozing),
      alarms_(alarms) {}

void ButtonActions::act(ButtonId button) {
  switch (button) {
    case ButtonId::Buttons_Delete:
      deleteFast();
      return;
    case ButtonId::Buttons_Down:
      rollNotes();
      return;
    case ButtonId::Buttons_Close:
      minimize();
      return;
    case ButtonId::Done:
      done();
      return;
    case ButtonId::Snooze:
      snooze();
      return;
    default:
      actOnNotes(button);
  }
}

void ButtonActions::deleteFast() {
  if (alarms_.reminderComingOut()) return;
  sounds_.Graj_dzwiek(settings_.Snd_Button_Delete);
  // What came on show during its question is to be seen, and so is what comes below.
  if (!notes_.Del_na_przycisku(DeleteKind::Fast)) return;
  if (alarms_.hasReminders()) {
    dismissAndSlideOut();
    return;
  }
  notes_.Odczytaj_na_przycisku();
  if (!alarms_.showsReminder()) slideOut();
}

void ButtonActions::rollNotes() {
  sounds_.Graj_dzwiek(motion_.rolledDown() ? settings_.Snd_Notes_Hide : settings_.Snd_Notes_Show);
  motion_.rollNotes();
}

void ButtonActions::minimize() {
  if (alarms_.reminderComingOut() || !notes_.leave()) return;
  sounds_.Graj_dzwiek(settings_.Snd_Hide);
  motion_.Przesuwanie_okna_M_UP();
  dismissAndSlideOut();
}

void ButtonActions::snooze() {
  if (snoozing_.putOff()) afterPuttingOff();
}

void ButtonActions::snoozeMenu(Point at) {
  if (snoozing_.putOffByMenu(at)) afterPuttingOff();
}

void ButtonActions::afterPuttingOff() {
  minimize();
  // Whoever ends the program before the next check is to know it, too.
  alarms_.tellFaults();
}

void ButtonActions::done() {
  if (alarms_.showsReminder()) minimize();
}

void ButtonActions::dismissAndSlideOut() {
  const bool staysOut = reminders_.cameIntoOpenWindow();
  if (alarms_.hasReminders() && !alarms_.Sprawdz_jeden_alarm()) return;
  if (!staysOut) slideOut();
}

void ButtonActions::slideOut() {
  // While a question or a message was open the window can have gone already.
  if (motion_.shown() || alarms_.hasReminders()) motion_.slideOut();
}

void ButtonActions::actOnNotes(ButtonId button) {
  sounds_.Graj_dzwiek(settings_.Snd_Button_Press);
  // The note editor left the text locked. Whoever goes on here is to be able to write again.
  view_.setFieldEditing(FieldId::Text2, Editing::Allowed);
  switch (button) {
    case ButtonId::Buttons_main_01:
      if (notes_.leave()) notes_.startNewNote();
      break;
    case ButtonId::Buttons_main_02:
      saveNote();
      break;
    case ButtonId::Buttons_main_03:
      notes_.Del_na_przycisku(DeleteKind::Plain);
      break;
    case ButtonId::Buttons_main_04:
      turnPage(&NoteBrowser::goToPrevious);
      break;
    case ButtonId::Buttons_main_05:
      turnPage(&NoteBrowser::goToNext);
      break;
    default:
      break;
  }
}

void ButtonActions::turnPage(void (NoteBrowser::*go)()) {
  if (!notes_.leave()) return;
  (notes_.*go)();
  notes_.Odczytaj_na_przycisku();
}

void ButtonActions::saveNote() {
  if (!notes_.zapisz(view_.text(FieldId::Text1))) return;
  notes_.refresh();
  // During a question or a message a reminder can have come, which is not to be put away unseen.
  if (!alarms_.showsReminder()) notes_.showAfterSave();
  // It ends with a check of its own: another one here would queue what is due now once more.
  alarms_.Update_All_Al(notes_.listOfNow());
  if (!alarms_.showsReminder()) alarms_.Sprawdz_jeden_alarm();
}

}  // namespace kalvora
