#include "app/MainWindowDraft.h"

#include "base/Errors.h"

namespace kalvora {

MainWindowDraft::MainWindowDraft(const Form1Ports& ports, const Settings& settings,
                                 const AlarmLine& alarmLine, const std::string& storedContent)
    : ports_(ports),
      settings_(settings),
      alarmLine_(alarmLine),
      storedContent_(storedContent),
      live_(ports.folders.notes(), ports.files, ports.codePage, ports.copies,
            [this] { return typed(); }),
      timer_(ports.clock,
             [&ports](int interval) { ports.view.startTimer(TimerId::Draft, interval); }) {}

void MainWindowDraft::Draft_Timer() {
  ports_.view.stopTimer(TimerId::Draft);
  timer_.stopped();
  keep();
  if (live_.isMissing()) timer_.tryAgain();
}

void MainWindowDraft::tellLost() {
  const std::wstring reason = ports_.copies.takeDraftFault();
  if (reason.empty()) return;
  throw Failure(
      L"What is typed and not saved cannot be kept as a draft. Where it is left without being "
      L"saved, it is lost.\r\n\r\n" +
      reason);
}

TypedNote MainWindowDraft::typed() const {
  TypedNote note = typedFastNote(
      ports_.view.fieldText(FieldId::Text1), ports_.view.fieldText(FieldId::Text3),
      ports_.view.fieldText(FieldId::Text2), alarmLine_.half(), hourFormatOf(settings_.AmPm));
  note.storedContent = storedContent_;
  return note;
}

}  // namespace kalvora
