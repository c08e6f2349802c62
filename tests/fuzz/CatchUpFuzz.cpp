// What the run before left for the one that catches up, of any texts: a line each for the last
// minute that it saw, for what waited and for what rang.
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

/// A start of the program at 7:30, with one note that is due then each day.
class Run {
 public:
  explicit Run(MemorySettingsStore& store) : catchUp_(comfort_, store) {
    comfort_.Catch_up = true;
    folder_.notes[kGym.fileName] = "7|30|x";
  }

  std::vector<DueNote> missed() {
    const auto read = [this](const std::vector<std::wstring>&) {
      return AlarmNoteReader(folder_, codePage_, "notes", folder_.listed(), knownKinds(comfort_));
    };
    return catchUp_.missedBefore(kNow, read, [](const std::wstring&) { return false; });
  }
  bool rings() {
    AlarmQueue due;
    due.append(kGym.fileName);
    return catchUp_.stillToRing(kNow, std::move(due)).pending() == 1;
  }
  void end() {
    catchUp_.checked(kNow);
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

void checkLeft(const std::wstring& seen, const std::wstring& waiting, const std::wstring& rung) {
  MemorySettingsStore store;
  store.save(kComfortSection, L"Seen", seen);
  store.save(kComfortSection, L"Waiting", waiting);
  store.save(kComfortSection, L"Rung", rung);
  const std::vector<DueNote> waited = textToDueNotes(waiting, kNow);
  const bool rang = tells(waited, kGym) || tells(textToDueNotes(rung, std::nullopt), kGym);
  Run run(store);
  checkMissed(run.missed(), waited);
  require(run.rings() == !rang, "what is due rings, but for what rang");
  run.end();
  require(store.get(kComfortSection, L"Seen", L"") == momentToText(kNow), "this minute was seen");
  Run next(store);
  require(next.missed().empty(), "nothing is missed of what was seen");
  require(!next.rings(), "nothing rings twice");
}

}  // namespace
}  // namespace kalvora

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kalvora;
  const Windows1252 codePage;
  std::string_view rest = bytesOf(data, size);
  const auto nextLine = [&] { return codePage.toText(takePart(rest, '\n')); };
  const std::wstring seen = nextLine();
  const std::wstring waiting = nextLine();
  checkLeft(seen, waiting, nextLine());
  return 0;
}
