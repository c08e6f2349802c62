#include "app/ReminderSnooze.h"

#include <array>

namespace kalvora {

namespace {

// In the order of the captions.
enum class SnoozeItem { In5Minutes, In15Minutes, In60Minutes, Tomorrow, OnDate };
constexpr std::array<std::wstring_view, 5> kSnoozeCaptions = {
    L"In &5 minutes", L"In &15 minutes", L"In &60 minutes", L"&Tomorrow at this time",
    L"&On a date\x2026"};

constexpr std::chrono::days kOneDay(1);

}  // namespace

bool ReminderSnooze::putOff() {
  const std::optional<unsigned> reminder = alarms_.reminderToPutOff();
  return reminder && alarms_.putOff(*reminder, now() + alarms_.snoozeLength());
}

bool ReminderSnooze::putOffByMenu(Point at) {
  // While the menu stands open, another one can come on show.
  const std::optional<unsigned> reminder = alarms_.reminderToPutOff();
  if (!reminder) return false;
  const std::optional<LocalMinute> moment = askMoment(at);
  return moment && alarms_.putOff(*reminder, *moment);
}

std::optional<LocalMinute> ReminderSnooze::askMoment(Point at) {
  const std::optional<std::size_t> chosen = view_.chooseFromMenu(at, kSnoozeCaptions);
  if (!chosen) return std::nullopt;
  switch (static_cast<SnoozeItem>(*chosen)) {
    case SnoozeItem::In5Minutes:
      return now() + std::chrono::minutes(5);
    case SnoozeItem::In15Minutes:
      return now() + std::chrono::minutes(15);
    case SnoozeItem::In60Minutes:
      return now() + std::chrono::minutes(60);
    case SnoozeItem::Tomorrow:
      return now() + kOneDay;
    case SnoozeItem::OnDate:
      break;
  }
  return askDate();
}

std::optional<LocalMinute> ReminderSnooze::askDate() {
  return view_.askMoment({now() + kOneDay, hourFormatOf(settings_.AmPm),
                          [this](LocalMinute moment) -> std::wstring_view {
                            if (moment > now()) return {};
                            return L"This moment has passed. Choose a later one.";
                          }});
}

}  // namespace kalvora
