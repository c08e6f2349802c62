#include "app/MainWindowDraft.h"

#include "base/Errors.h"

namespace kalvora {

MainWindowDraft::MainWindowDraft(const NoteStorage& storage, const Clock& clock, Form1View& view,
                                 const Settings& settings, const AlarmLine& alarmLine,
                                 const std::string& storedContent)
    : copies_(storage.copies),
      view_(view),
      settings_(settings),
      alarmLine_(alarmLine),
      storedContent_(storedContent),
      live_(storage.folder, storage.files, storage.codePage, storage.copies,
            [this] { return typed(); }),
      timer_(clock, [&view](int interval) { view.startTimer(TimerId::Draft, interval); }) {}

void MainWindowDraft::Draft_Timer() {
  view_.stopTimer(TimerId::Draft);
  timer_.stopped();
  keep();
  if (live_.isMissing()) timer_.tryAgain();
}

PausedDraft MainWindowDraft::pause() {
  view_.stopTimer(TimerId::Draft);
  timer_.stopped();
  return live_.pause();
}

void MainWindowDraft::resume(const PausedDraft& paused) {
  live_.resume(paused);
  if (live_.isMissing()) timer_.tryAgain();
}

void MainWindowDraft::tellLost() {
  const std::wstring reason = copies_.takeDraftFault();
  if (reason.empty()) return;
  throw Failure(
      L"What is typed and not saved cannot be kept as a draft. Where it is left without being "
      L"saved, it is lost.\r\n\r\n" +
      reason);
}

TypedNote MainWindowDraft::typed() const {
  TypedNote note =
      typedFastNote(view_.text(FieldId::Text1), view_.text(FieldId::Text3),
                    view_.text(FieldId::Text2), alarmLine_.half(), hourFormatOf(settings_.AmPm));
  note.storedContent = storedContent_;
  return note;
}

}  // namespace kalvora
