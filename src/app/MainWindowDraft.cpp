#include "app/MainWindowDraft.h"

#include "base/Errors.h"

namespace kalvora {

MainWindowDraft::MainWindowDraft(const NoteStorage& storage, const Clock& clock, Form1View& view,
                                 const Settings& settings, const AlarmLine& alarmLine,
                                 const NoteAsRead& read)
    : copies_(storage.copies),
      view_(view),
      settings_(settings),
      alarmLine_(alarmLine),
      read_(read),
      live_(storage.folder, storage.files, storage.codePage, storage.copies,
            [this] { return typed(); }),
      timer_(clock, [&view](int interval) { view.startTimer(TimerId::Draft, interval); }) {}

void MainWindowDraft::begin() noexcept {
  inOwnKind_ = settings_.comfort.Keep_typing;
  live_.begin();
}

void MainWindowDraft::giveUp() noexcept {
  keep();
  begin();
}

void MainWindowDraft::followOptions() {
  if (inOwnKind_ == settings_.comfort.Keep_typing) return;
  const bool nothingTyped = !live_.changed();
  inOwnKind_ = !inOwnKind_;
  if (nothingTyped) live_.begin();
}

void MainWindowDraft::Draft_Timer() {
  view_.stopTimer(TimerId::Draft);
  timer_.stopped();
  keep();
  if (live_.isMissing()) timer_.tryAgain();
}

PausedDraft MainWindowDraft::pause() {
  view_.stopTimer(TimerId::Draft);
  timer_.stopped();
  pausedFilling_ = filling_;
  return live_.pause();
}

void MainWindowDraft::resume(const PausedDraft& paused) {
  live_.resume(paused);
  filling_ = pausedFilling_;
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

TypedNote MainWindowDraft::typed(bool inOwnKind) const {
  const std::wstring title = view_.text(FieldId::Text1);
  const std::wstring time = view_.text(FieldId::Text3);
  const std::wstring text = view_.text(FieldId::Text2);
  const HourFormat format = hourFormatOf(settings_.AmPm);
  if (inOwnKind) {
    return typedInOwnKind(read_, title, time, text, alarmLine_.half(), format);
  }
  TypedNote note = typedFastNote(title, time, text, alarmLine_.half(), format);
  note.storedContent = read_.content;
  return note;
}

}  // namespace kalvora
