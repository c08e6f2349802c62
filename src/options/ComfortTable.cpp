#include "options/ComfortTable.h"

#include <array>

namespace kalvora {

namespace {

constexpr std::array kTicks = {
    // Asked by AlarmCheck, at each minute's check, and by ReminderDisplay.
    ComfortTick{L"Ring_while_out", L"&Remind me also while the window is out",
                &Comfort::Ring_while_out, L"Reminders"},
    // Asked by CatchUp, at the start and at each minute's check.
    ComfortTick{L"Catch_up",
                L"&Catch up on what came due while the computer slept or Kalvora was off",
                &Comfort::Catch_up},
    // Asked by AlarmCheck, at each minute's check.
    ComfortTick{L"Each_day", L"Look for &monthly and yearly notes every day", &Comfort::Each_day},
    // Asked by RepeatedMinutes, for each note that is due.
    ComfortTick{L"Once_a_minute", L"Ring a note &once in its minute", &Comfort::Once_a_minute},
    // Asked by knownKinds(): by the note editor when it is opened, by the main window at the next
    // note, by AlarmCheck at the next check.
    ComfortTick{L"Once_notes", L"&Notes for one date", &Comfort::Once_notes, L"Notes"},
    // Asked by NoteBrowser and All_Notes_frm, when a note is left, and by MainWindowDraft.
    ComfortTick{L"Keep_typing", L"&Keep what I type", &Comfort::Keep_typing},
};

}  // namespace

std::span<const ComfortTick> comfortTicks() {
  return kTicks;
}

}  // namespace kalvora
