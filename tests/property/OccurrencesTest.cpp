#include "alarms/Occurrences.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "alarms/DayReminders.h"
#include "alarms/TimeTable.h"
#include "fakes/FakeNoteFolder.h"

namespace kalvora {
namespace {

using namespace std::chrono;

/// Which notes are due when.
using Calendar = std::map<LocalMinute, std::set<std::wstring>>;

LocalMinute startOf(int ofYear) {
  return local_days(year{ofYear} / January / 1);
}

/// Asks time table and queue as the program does that runs all the time and looks for the notes of
/// days at each midnight.
class MinuteByMinute {
 public:
  MinuteByMinute(const FakeNoteFolder& folder, LocalMinute from, LocalMinute to) : folder_(folder) {
    for (local_days day = floor<days>(from); day < to; day += days(1)) begin(day, from, to);
  }
  Calendar calendar;

 private:
  void begin(local_days day, LocalMinute from, LocalMinute to) {
    const year_month_day date(day);
    AlarmNoteReader notes(folder_, codePage_, "notes", folder_.listed(), kNoteKinds);
    AlarmQueue ofDay;
    DayReminders().queueDueOn(static_cast<int>(static_cast<unsigned>(date.day())),
                              static_cast<int>(static_cast<unsigned>(date.month())), notes, ofDay);
    if (day >= from) note(day, std::move(ofDay));
    TimeTable table;
    table.turnTo({static_cast<int>(weekday(day).c_encoding()), date});
    table.rebuild(notes);
    if (table.text().empty()) return;
    for (LocalMinute minute = day; minute < day + days(1); minute += minutes(1)) {
      if (minute < from || minute >= to) continue;
      const hh_mm_ss time(minute - LocalMinute(day));
      AlarmQueue due;
      table.queueDue(static_cast<int>(time.hours().count()),
                     static_cast<int>(time.minutes().count()), due);
      note(minute, std::move(due));
    }
  }

  void note(LocalMinute moment, AlarmQueue due) {
    while (due.pending() > 0) {
      const std::wstring name = due.takeNext();
      // A colon too many in a note's time makes the table name a note that there is not.
      if (folder_.notes.contains(name)) calendar[moment].insert(name);
    }
  }

  const FakeNoteFolder& folder_;
  const Windows1252 codePage_{};
};

/// What the engine says. A moment that it tells twice fails.
Calendar foretold(const FakeNoteFolder& folder, LocalMinute from, LocalMinute to) {
  const Windows1252 codePage;
  Calendar calendar;
  for (const auto& [name, bytes] : folder.notes) {
    const std::optional<DueRule> rule =
        dueRuleOf(*kindOfFileName(name, kNoteKinds), bytes, codePage);
    if (!rule) continue;
    for (const LocalMinute moment : occurrences(*rule, from, to)) {
      EXPECT_TRUE(calendar[moment].insert(name).second);
    }
  }
  return calendar;
}

const std::vector<std::wstring> kExtensions = {L".tx1", L".tx2", L".tx3",
                                               L".tx4", L".txt", L".tx5"};

/// Each is tried as every kind.
const std::vector<std::string> kBodies = {"7|5|",
                                          "23|59|",
                                          "0|0|",
                                          "24|0|",
                                          "|",
                                          "9 x7|1 5|",
                                          "7:30|5|",
                                          "6|7|1|0|1|0|1|0|1|",
                                          "31|3|1|",
                                          "29|1|5|2|",
                                          "2|3|2|1|",
                                          "29|21|7|",
                                          "1|0|21|1|",
                                          "x|1|",
                                          "30|x|1|",
                                          "|31|3|2|",
                                          "|0|30|3|",
                                          "2027|1|1|0|0|",
                                          "2028|2|29|7|5|",
                                          "2028|12|31|23|59|",
                                          "2027|2|29|7|5|",
                                          "2028|2|31|7|5|",
                                          "2027|13|1|7|5|",
                                          "2027|0|1|7|5|",
                                          "2028|4|1|24|0|",
                                          "2028|4|1|7|60|",
                                          "2028|4|1||5|",
                                          "2028|4|1|7||",
                                          "2028|4||7|5|",
                                          "2028|+4|1|7|5|",
                                          "2028|4.4|1|7|5|",
                                          "2028|4|1|7:30|5|",
                                          "2028|4|1",
                                          "27|4|1|7|5|",
                                          "99999|4|1|7|5|",
                                          "2026|12|31|7|5|"};

TEST(OccurrencesProperty, agreeWithTimeTableAndQueueMinuteByMinuteOverYears) {
  FakeNoteFolder folder;
  for (std::size_t i = 0; i < kBodies.size(); ++i) {
    for (const std::wstring& extension : kExtensions) {
      folder.notes[L"n" + std::to_wstring(i) + extension] = kBodies[i];
    }
  }
  const LocalMinute from = startOf(2027);
  const LocalMinute to = startOf(2029);  // with a 29 February
  const Calendar expected = MinuteByMinute(folder, from, to).calendar;
  ASSERT_GT(expected.size(), 2000U);
  EXPECT_TRUE(foretold(folder, from, to) == expected);
}

/// Some moment from 1999 to 2040.
LocalMinute someMoment() {
  return startOf(1999) + minutes(*rc::gen::inRange(0, 41 * 365 * 24 * 60));
}

/// Likely a number that means something.
std::string someField() {
  const auto anything = rc::gen::map(
      rc::gen::container<std::vector<char>>(
          rc::gen::element('0', '1', '2', '7', '9', ' ', 'x', '-', ':', '.', '\0')),
      [](const std::vector<char>& field) { return std::string(field.begin(), field.end()); });
  const auto number =
      rc::gen::map(rc::gen::inRange(-2, 34), [](int n) { return std::to_string(n); });
  const auto bit = rc::gen::element<std::string>("0", "1", "");
  return *rc::gen::weightedOneOf<std::string>({{8, number}, {6, bit}, {1, anything}});
}

/// The first fields of a note for one date, which is likely within a span of that many days.
std::string someDate(LocalMinute from, int span) {
  const year_month_day date(floor<days>(from) + days(*rc::gen::inRange(-1, span + 1)));
  return std::to_string(static_cast<int>(date.year())) + '|' +
         std::to_string(static_cast<unsigned>(date.month())) + '|' +
         std::to_string(static_cast<unsigned>(date.day()) + *rc::gen::element(0U, 0U, 0U, 1U)) +
         '|';
}

RC_GTEST_PROP(OccurrencesProperty, agreeWithTimeTableAndQueueForAnyNotes, ()) {
  FakeNoteFolder folder;
  constexpr int kDays = 40;
  const LocalMinute from = someMoment();
  const LocalMinute to = from + minutes(*rc::gen::inRange(0, kDays * 24 * 60));
  for (int notes = *rc::gen::inRange(1, 12); notes > 0; --notes) {
    const std::wstring extension = *rc::gen::elementOf(kExtensions);
    const bool dated = extension == L".tx5" && *rc::gen::inRange(0, 4) > 0;
    std::string bytes = dated ? someDate(from, kDays) : std::string();
    for (int fields = *rc::gen::inRange(0, 11); fields > 0; --fields) bytes += someField() + '|';
    folder.notes[L"n" + std::to_wstring(notes) + extension] = bytes + "x";
  }
  RC_ASSERT(foretold(folder, from, to) == MinuteByMinute(folder, from, to).calendar);
}

/// A note as numbers, and once more when it is due: day by day, in plain words. Day 0 is a missing
/// one, which counts down from 99.
struct PlainNote {
  NoteKind kind;
  int hour, minute;
  std::vector<int> weekdays;
  int day, month, daysBefore, everyDays;
  int year;  // of one for one date

  std::string bytes() const {
    const auto field = [](int number) { return std::to_string(number) + '|'; };
    std::string ticks;
    for (const int tick : weekdays) ticks += field(tick);
    switch (kind) {
      case NoteKind::Weekly:
        return field(hour) + field(minute) + ticks;
      case NoteKind::Monthly:
        return dayField() + field(daysBefore) + field(everyDays);
      case NoteKind::Yearly:
        return dayField() + field(month - 1) + field(daysBefore) + field(everyDays);
      case NoteKind::Once:
        return field(year) + field(month) + dayField() + field(hour) + field(minute);
      default:
        return field(hour) + field(minute);
    }
  }

  std::string dayField() const { return (day == 0 ? "" : std::to_string(day)) + '|'; }

  bool ringsOn(local_days date) const {
    const year_month_day calendarDate(date);
    const int today = static_cast<int>(static_cast<unsigned>(calendarDate.day()));
    if (kind == NoteKind::Weekly) return weekdays[weekday(date).c_encoding()] == 1;
    if (kind == NoteKind::Daily || kind == NoteKind::Fast) return true;
    const bool ofMonth = calendarDate.month() == std::chrono::month(static_cast<unsigned>(month));
    if (kind == NoteKind::Once) {
      return calendarDate.year() == std::chrono::year(year) && ofMonth && day == today;
    }
    if (kind == NoteKind::Yearly && !ofMonth) return false;
    const int own = day == 0 ? 99 : day;
    if (own == today) return true;
    for (int back = 0; back <= daysBefore; ++back) {
      const int wrapped = back < own ? own - back : own - back + 31;
      if (wrapped - back * (everyDays - 1) == today) return true;
    }
    return false;
  }

  std::vector<LocalMinute> moments(LocalMinute from, LocalMinute to) const {
    const bool hasTime = hasClockTime(kind);
    std::vector<LocalMinute> found;
    if (hasTime && (hour > 23 || minute > 59)) return found;
    for (LocalMinute moment = from; moment < to; moment += minutes(1)) {
      const local_days date = floor<days>(moment);
      const minutes wanted = hasTime ? minutes(60 * hour + minute) : minutes(0);
      if (moment - LocalMinute(date) == wanted && ringsOn(date)) found.push_back(moment);
    }
    return found;
  }
};

RC_GTEST_PROP(OccurrencesProperty, agreeWithASlowRestatement, ()) {
  const LocalMinute from = someMoment();
  const year_month_day began(floor<days>(from));
  const PlainNote note{*rc::gen::elementOf(kNoteKinds),
                       *rc::gen::inRange(0, 26),
                       *rc::gen::inRange(0, 62),
                       *rc::gen::container<std::vector<int>>(7, rc::gen::inRange(0, 2)),
                       *rc::gen::inRange(0, 33),
                       *rc::gen::inRange(1, 13),
                       *rc::gen::inRange(-1, 100),
                       *rc::gen::inRange(-2, 8),
                       static_cast<int>(began.year()) + *rc::gen::inRange(0, 2)};
  const LocalMinute to = from + minutes(*rc::gen::inRange(0, 400 * 24 * 60));
  const Windows1252 codePage;
  const std::optional<DueRule> rule = dueRuleOf(note.kind, note.bytes(), codePage);
  const auto found = rule ? occurrences(*rule, from, to) : std::vector<LocalMinute>{};
  RC_ASSERT(found == note.moments(from, to));
}

}  // namespace
}  // namespace kalvora
