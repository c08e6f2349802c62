#include "app/Form1.h"

#include "app/OnTop.h"
#include "base/Errors.h"
#include "base/Numbers.h"
#include "skin/SkinFolder.h"

namespace kalvora {

namespace {

constexpr std::int16_t kFirstWidth = 200;
constexpr std::int16_t kFirstFullHeight = 161;
constexpr std::int16_t kFirstRolledHeight = 25;

constexpr int kSpr1mInterval = 900;
constexpr int kDateUpdateInterval = 5000;

}  // namespace

Form1::Form1(const Form1Ports& ports)
    : ports_(ports),
      scrollTimers_(ports_.view),
      scroller_(scrollTimers_),
      sounds_(ports_.sounds, settings_),
      notes_({ports_.folders.notes(), ports_.files, ports_.writer, ports_.codePage, ports_.copies},
             ports_.clock, ports_.dateTexts, ports_.view, settings_, window_, scroller_),
      buttons_(window_),
      motion_(ports_.view, ports_.settings, ports_.guard, settings_, window_, scroller_),
      reminders_(ports_.view, settings_, sounds_, notes_, window_, scroller_, motion_),
      alarms_({ports_.files, ports_.codePage, ports_.clock, ports_.folders.notes(),
               settings_.comfort, ports_.settings},
              reminders_),
      snoozing_(ports_.view, ports_.clock, settings_, alarms_),
      buttonActions_(ports_.view, settings_, sounds_, notes_, motion_, reminders_, snoozing_,
                     alarms_),
      options_(
          {ports_.settings, ports_.view, ports_.tray, ports_.sounds, ports_.files,
           ports_.skinValues, ports_.folders},
          settings_, motion_, [this] { notes_.followOptions(); },
          [this] { Load_skin_to_form(SkinChange::WhileRunning); }),
      trayMouse_(ports_.view, motion_, *this) {}

void Form1::Form_Load() {
  // First, so that nothing that fails below can keep reminders from ringing.
  ports_.view.startTimer(TimerId::Spr1m, kSpr1mInterval);
  ports_.view.startTimer(TimerId::Date_Update, kDateUpdateInterval);
  motion_.setSizes({kFirstWidth, kFirstFullHeight, kFirstRolledHeight});
  ports_.view.setPlace({0, 0, 0, 0});
  const PlacementSizes sizes{ports_.view.desktop().primary().size(),
                             {kFirstWidth, kFirstFullHeight}};
  unreadableSettings_ = Load_options_KV(ports_.settings, sizes, settings_, [this](bool onTop) {
    onTop ? OnTop(ports_.view) : RemOntop(ports_.view);
  });
  notes_.alarmLine().begin();
  notes_.draft().begin();
  loadIcon();
  Load_skin_to_form(SkinChange::AtStart);
  if (ended_) return;
  // Where no window comes it is all that is seen of the start.
  Update_Icon_on_task(ports_.tray, settings_.ShWatS ? IconComes::OnceIdle : IconComes::AtOnce);
  started_ = true;
  notes_.refresh();
  notes_.goToFirst();
  // A first note that cannot be read does not keep the others from ringing.
  if (!ports_.guard.run([this] { notes_.Odczytaj_na_przycisku(); })) notes_.refresh();
  // cppcheck-suppress knownConditionTrueFalse ; a message there lets the user end the program
  if (ended_) return;
  alarms_.updateAtStart(notes_.listOfNow());  // Update_All_Al_komp, Update_All_Al
  // The timer brought one out where a message above stood open, and it was not dismissed yet.
  if (alarms_.pending() > 0 && !alarms_.showsReminder()) alarms_.Sprawdz_jeden_alarm();
  if (!alarms_.hasReminders() && settings_.ShWatS) Nastepny_Load_Formy();
  alarms_.tellFaults();
}

void Form1::tellUnreadableSettings() const {
  if (!unreadableSettings_.empty()) throw Failure(unreadableSettings_);
}

void Form1::loadIcon() {
  if (settings_.iconFilename.empty()) return;
  const std::filesystem::path icons = ports_.folders.icons();
  if (!ports_.files.fileExists(icons, settings_.iconFilename)) return;
  ports_.tray.setPicture(icons / settings_.iconFilename);
}

void Form1::Nastepny_Load_Formy() {
  motion_.slideIn(Activation::TakeKeyboard);
}

void Form1::Koniec_Kalvora() {
  if (ended_ || !notes_.leave() || !notes_.leaveAside() || !ports_.otherWindows.leave()) return;
  // What was typed while a window asked.
  saveTyped();
  end();
}

void Form1::endWithSession() {
  saveTyped();
  ports_.copies.takeDraftFault();
  end();
}

void Form1::end() {
  // The user can have ended it while a question was open.
  if (ended_) return;
  ended_ = true;
  ports_.guard.run([this] { ports_.otherWindows.unloadAll(); });
  // Settings that cannot be saved are told, and the program ends all the same.
  ports_.guard.run([this] {
    if (motion_.shown()) motion_.Przesuwanie_okna_M_UP();
    saveWindowPosition(ports_.settings, settings_.Window_X, settings_.Window_Y);
  });
  ports_.tray.remove();
  ports_.guard.run([this] { notes_.draft().tellLost(); });
  ports_.view.unload();
}

void Form1::Load_skin_to_form(SkinChange change) {
  try {
    const SkinFolder skins(ports_.files, ports_.folders.skins());
    const SkinFolder::Choice choice = skins.choose(settings_.Last_skin);
    settings_.Last_skin = choice.index;
    wearSkin(loadSkin(ports_.files, ports_.skinValues, choice.folder));
  } catch (const SkinError& error) {
    ended_ = true;
    ports_.view.showError(kSkinErrorTitle, error.message());
    saveTyped();
    ports_.guard.run([this] { notes_.draft().tellLost(); });
    ports_.view.unload();
    return;
  }
  if (change == SkinChange::AtStart) return;
  // A reminder on show goes on in the new skin where it stands.
  alarms_.hasReminders() ? motion_.showNewSkin() : Nastepny_Load_Formy();
  // Only now: a skin that cannot be worn must not be what the next start finds.
  saveSkin(ports_.settings, settings_.Last_skin);
  motion_.tellNews();
}

void Form1::wearSkin(Skin skin) {
  window_.wear(std::move(skin));
  motion_.takeSkinSizes({toInt16(window_.windowWidth()), toInt16(window_.fullHeight()),
                         toInt16(window_.rolledHeight())});
  for (const FieldId field : kAllFields) {
    ports_.view.setFieldLook(field, window_.description().field(field));
  }
  ports_.view.setShape(window_.fullShape());
  scroller_.setLength(window_.rowLength(RowId::lit));
  notes_.drawRows();
  reminders_.drawTitle();
  drawCurrentDate();
}

void Form1::keepTyped() {
  notes_.draft().keep();
  notes_.keepAside();
  ports_.otherWindows.keepTyped();
}

void Form1::saveTyped() {
  saveMainWindow();
  ports_.otherWindows.saveQuietly();
  keepTyped();
}

void Form1::saveMainWindow() noexcept {
  notes_.saveQuietly();
  notes_.saveAside();
}

void Form1::Form_MouseDown(MouseButton button, Point at) {
  reminderUnderPress_ = alarms_.reminderToPutOff();
  if (buttons_.mouseDown(button, at)) return;
  dragWindow();
}

void Form1::dragWindow() {
  motion_.Przesuwanie_okna();
  if (options_.settingPosition()) {
    ports_.otherWindows.mainWindowDropped({settings_.Window_X, settings_.Window_Y});
  }
}

void Form1::Form_MouseDownAgain(MouseButton button, Point at) {
  reminderUnderPress_ = alarms_.reminderToPutOff();
  if (!buttons_.mouseDownAgain(button, at)) dragWindow();
}

void Form1::showFirstNote() {
  if (!notes_.leave()) return;
  alarms_.showAgainLater();
  reminders_.cover();
  notes_.showFirstAfterEditing();
}

void Form1::mouseMove(MouseButton held, Point at) {
  buttons_.mouseMove(held, at);
}

void Form1::mouseUp(MouseButton button, Point at) {
  const auto click = buttons_.mouseUp(button, at);
  if (!click) return;
  // Another reminder may have come under the hand, which nobody has seen yet.
  if (isFaceButton(click->button) && reminderUnderPress_ != alarms_.reminderToPutOff()) return;
  click->mouse == MouseButton::Right ? buttonActions_.snoozeMenu(at)
                                     : buttonActions_.act(click->button);
}

void Form1::mouseLost() {
  buttons_.mouseLost();
}

void Form1::desktopChanged() {
  motion_.followDesktop();
  motion_.tellNews();
}

void Form1::clockChanged() {
  if (started_) alarms_.clockChanged();
}

void Form1::pressButton(ButtonId button) {
  if (window_.buttonVisible(button)) buttonActions_.act(button);
}

void Form1::closeByKeyboard() {
  if (motion_.shown()) buttonActions_.minimize();
}

void Form1::AmPmLabel_Click() {
  notes_.alarmLine().AmPmLabel_Click();
  notes_.draft().fieldChanged();
}

void Form1::Text1_Change() {
  replaceInput(
      ports_.view, FieldId::Text1,
      Zabezpieczenie_plik(ports_.view.text(FieldId::Text1), ports_.view.caret(FieldId::Text1)));
  notes_.draft().fieldChanged();
}

void Form1::Text2_Change() {
  replaceInput(ports_.view, FieldId::Text2,
               fullLineEnds(ports_.view.text(FieldId::Text2), ports_.view.caret(FieldId::Text2)));
  notes_.draft().fieldChanged();
}

void Form1::Text3_Change() {
  replaceInput(ports_.view, FieldId::Text3,
               Zabezpieczenie_Cyfry(ports_.view.text(FieldId::Text3),
                                    ports_.view.caret(FieldId::Text3), DigitBox::Time));
  notes_.draft().fieldChanged();
}

void Form1::pichook_MouseMove(int message) {
  if (!ended_) trayMouse_.pichook_MouseMove(message);
}

void Form1::openTrayMenu() {
  ports_.otherWindows.openMenu();
}

void Form1::bringOutFromTray() {
  sounds_.Graj_dzwiek(settings_.Snd_Show);
  alarms_.Sprawdz_jeden_alarm();
  Nastepny_Load_Formy();
}

void Form1::toggleFromTray() {
  if (alarms_.reminderComingOut()) return;
  if (!motion_.shown()) {
    bringOutFromTray();
    return;
  }
  if (!notes_.leave()) return;
  sounds_.Graj_dzwiek(settings_.Snd_Hide);
  buttonActions_.dismissAndSlideOut();
}

void Form1::timerTick(TimerId timer) {
  switch (timer) {
    case TimerId::scrool:
      scroller_.scroolTick();
      drawTitle();
      break;
    case TimerId::Poczekaj:
      scroller_.poczekajTick();
      break;
    case TimerId::Date_Update:
      drawCurrentDate();
      notes_.alarmLine().drawHalf();
      notes_.draft().tellLost();
      break;
    case TimerId::Timer1:
      slideOneStep();
      break;
    case TimerId::Timer2:
      motion_.Timer2_Timer();
      motion_.tellNews();
      break;
    case TimerId::Spr1m:
      alarms_.Spr1m();
      break;
    case TimerId::Opt_win_pos_tim:
      // Where it passes on its way out is nobody's choice.
      if (!motion_.goingAway()) ports_.otherWindows.followMainWindow(options_.windowPosition());
      break;
    case TimerId::Draft:
      notes_.draft().Draft_Timer();
      break;
    case TimerId::TrayClick:
      if (!ended_) trayMouse_.clickStayedSingle();
      break;
  }
}

void Form1::slideOneStep() {
  const bool wasOut = motion_.shown();
  if (motion_.Timer1_Timer() == WindowMotion::Then::RollDown) buttonActions_.rollNotes();
  // What was typed while the window went.
  if (wasOut && !motion_.shown()) notes_.saveQuietly();
  motion_.tellNews();
}

void Form1::drawCurrentDate() {
  window_.Pokaz_Tekst(RowId::lit_czas2, ports_.dateTexts.shortDate(ports_.clock.now()));
}

void Form1::drawTitle() {
  if (reminders_.holdsTitle()) return;
  int cell = 0;
  for (const auto& character : scroller_.row()) {
    window_.blankCell(RowId::lit, cell);
    if (character) window_.PokazLiterke(*character, RowId::lit, cell);
    ++cell;
  }
}

}  // namespace kalvora
