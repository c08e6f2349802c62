// What the run before left for the one that catches up, of any texts: a line each for the last
// minute that it saw, for what waited, for what rang and for what could not be read.
#include <algorithm>
#include <functional>

#include "FuzzCheck.h"
#include "alarms/CatchUp.h"
#include "base/CodePage.h"
#include "fakes/FakeNoteFolder.h"
#include "fakes/MemorySettingsStore.h"

namespace kalvora {
namespace {

const LocalMinute kNow = LocalMinute(std::chrono::local_days(std::chrono::year(2026) / 3 / 2)) +
                         std::chrono::hours(7) + std::chrono::minutes(30);
const DueNote kGym{kNow, L"Gym.tx1"};

/// A run of the program with one note that is due at 7:30 each day.
class Run {
 public:
  explicit Run(MemorySettingsStore& store) : catchUp_(comfort_, store) {
    comfort_.Catch_up = true;
    folder_.notes[kGym.fileName] = "7|30|x";
  }

  std::vector<DueNote> missedBefore(LocalMinute now) {
    const auto read = [this](const std::vector<std::wstring>&) {
      return AlarmNoteReader(folder_, codePage_, "notes", folder_.listed(), knownKinds(comfort_));
    };
    return catchUp_.missedBefore(now, read, [](const std::wstring&) { return false; });
  }
  bool ringsAt(LocalMinute now) {
    AlarmQueue due;
    due.append(kGym.fileName);
    return catchUp_.stillToRing(now, std::move(due)).pending() == 1;
  }
  void check(LocalMinute now) {
    catchUp_.checked(now);
    catchUp_.remember({});
  }

 private:
  FakeNoteFolder folder_;
  Windows1252 codePage_;
  Comfort comfort_;
  CatchUp catchUp_;
};

bool tells(const std::vector<DueNote>& notes, const DueNote& note) {
  return std::ranges::find(notes, note) != notes.end();
}

void checkMissed(const std::vector<DueNote>& missed, const std::vector<DueNote>& waited) {
  require(std::ranges::is_sorted(missed, std::less<>()), "the oldest comes first");
  for (const DueNote& note : waited) {
    const auto named = [&](const DueNote& other) { return other.fileName == note.fileName; };
    require(std::ranges::count_if(missed, named) == 1, "what waited is shown once");
  }
}

/// What of the last week's days came due after the last minute that was seen, and did not ring, is
/// told: the note once, with no earlier moment.
void checkTold(const std::vector<DueNote>& missed, LocalMinute seen,
               const std::vector<DueNote>& rang) {
  for (std::chrono::days day(1); day <= std::chrono::days(7); ++day) {
    const DueNote due{kNow - day, kGym.fileName};
    if (due.moment <= seen) return;
    const auto isTold = [&](const DueNote& other) {
      return other.fileName == due.fileName && other.moment >= due.moment;
    };
    require(tells(rang, due) || std::ranges::any_of(missed, isTold), "what was missed is told");
  }
}

/// What rang, or waits, as far as a clock that goes back by a day can make it wrong.
void checkDaysAfter(Run& run, const std::vector<DueNote>& rang) {
  for (std::chrono::days day(1); day <= std::chrono::days(3); ++day) {
    for (const std::chrono::minutes before : {std::chrono::minutes(1), std::chrono::minutes(0)}) {
      const LocalMinute now = kNow + day - before;
      run.missedBefore(now);
      if (before.count() == 0 && !tells(rang, {now, kGym.fileName})) {
        require(run.ringsAt(now), "what is due on a later day rings");
      }
      run.check(now);
    }
  }
}

struct Left {
  std::wstring seen;
  std::wstring waiting;
  std::wstring rung;
  std::wstring unread;
};

void checkLeft(const Left& left) {
  MemorySettingsStore store;
  store.save(kComfortSection, L"Seen", left.seen);
  store.save(kComfortSection, L"Waiting", left.waiting);
  store.save(kComfortSection, L"Rung", left.rung);
  store.save(kComfortSection, L"Unread", left.unread);
  const std::vector<DueNote> waited = textToDueNotes(left.waiting, kNow);
  std::vector<DueNote> rang = textToDueNotes(left.rung, std::nullopt);
  rang.insert(rang.end(), waited.begin(), waited.end());
  Run run(store);
  const std::vector<DueNote> missed = run.missedBefore(kNow);
  checkMissed(missed, waited);
  const std::optional<LocalMinute> seen = textToMoment(left.seen);
  if (seen) checkTold(missed, *seen, rang);
  require(run.ringsAt(kNow) == !tells(rang, kGym), "what is due rings, but for what rang");
  run.check(kNow);
  require(store.get(kComfortSection, L"Seen", L"") == momentToText(kNow), "this minute was seen");
  Run next(store);
  require(next.missedBefore(kNow).empty(), "nothing is missed of what was seen");
  require(!next.ringsAt(kNow), "nothing rings twice");
  next.check(kNow);
  checkDaysAfter(next, rang);
}

}  // namespace
}  // namespace kalvora

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kalvora;
  const Windows1252 codePage;
  std::string_view rest = bytesOf(data, size);
  const auto nextLine = [&] { return codePage.toText(takePart(rest, '\n')); };
  Left left;
  for (std::wstring* const line : {&left.seen, &left.waiting, &left.rung, &left.unread}) {
    *line = nextLine();
  }
  checkLeft(left);
  return 0;
}
