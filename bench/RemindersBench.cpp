// How long the reminders take natively: rebuilding time table and queue from a folder of notes,
// beside the remind calendar over the same reminders; all that is due within a year, beside its
// month; and the minute check over a table.

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "alarms/AlarmCheck.h"
#include "alarms/DueNote.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeNoteFolder.h"
#include "fakes/MemorySettingsStore.h"
#include "posix/StandardFileSystem.h"

namespace kalvora {
namespace {

namespace fs = std::filesystem;

const std::string kText =
    "Call the workshop about the bicycle.\r\nAsk for the price of new brakes, and when it will be "
    "ready.\r\n";

constexpr std::array<const char*, 12> kMonths = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                                 "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

/// One reminder in the two forms.
struct Reminder {
  std::string name;  // of the note, with its extension
  std::string note;
  std::string script;
};

std::string clockTime(int i) {
  const int minute = i % 60;
  std::string text = std::to_string(i % 24);
  text += ':';
  text += static_cast<char>('0' + minute / 10);
  text += static_cast<char>('0' + minute % 10);
  return text;
}

std::string clockFields(int i) {
  return std::to_string(i % 24) + "|" + std::to_string(i % 60) + "|";
}

/// The five kinds in turn, with all hours, minutes and days.
Reminder reminderOf(int i) {
  const std::string name = "Reminder " + std::to_string(i);
  const std::string msg = " MSG " + name + "\n";
  const std::string day = std::to_string(i % 28 + 1);
  const std::string before = std::to_string(i % 6 + 1);
  switch (i % 5) {
    case 0:
      return {name + ".txt", clockFields(i) + kText, "REM AT " + clockTime(i) + msg};
    case 1:
      return {name + ".tx1", clockFields(i) + kText, "REM AT " + clockTime(i) + msg};
    case 2:
      return {name + ".tx2", clockFields(i) + "0|1|0|0|0|1|0|" + kText,
              "REM Mon Fri AT " + clockTime(i) + msg};
    case 3:
      return {name + ".tx3", day + "|" + before + "|1|" + kText,
              "REM " + day + " +" + before + msg};
    default:
      return {name + ".tx4", day + "|" + std::to_string(i % 12) + "|" + before + "|1|" + kText,
              "REM " + std::string(kMonths[static_cast<std::size_t>(i % 12)]) + " " + day + " +" +
                  before + msg};
  }
}

void write(const fs::path& file, const std::string& bytes) {
  std::ofstream out(file, std::ios::binary);
  out << bytes;
  out.close();
  if (!out) throw std::runtime_error("cannot write " + file.string());
}

/// The two folders of `count` reminders, made anew.
class Folders {
 public:
  explicit Folders(int count)
      : count_(count), root_(fs::path(KALVORA_BENCH_FOLDER) / std::to_string(count)) {
    fs::remove_all(root_);
    fs::create_directories(notes());
    fs::create_directories(scripts());
    for (int i = 0; i < count; ++i) {
      const Reminder reminder = reminderOf(i);
      write(notes() / reminder.name, reminder.note);
      write(scripts() / (std::to_string(i) + ".rem"), reminder.script);
    }
  }
  ~Folders() {
    std::error_code ignored;
    fs::remove_all(root_, ignored);
  }
  Folders(const Folders&) = delete;
  Folders& operator=(const Folders&) = delete;

  fs::path notes() const { return root_ / "notes"; }
  fs::path scripts() const { return root_ / "scripts"; }
  int count() const { return count_; }

 private:
  int count_;
  fs::path root_;
};

/// A window that shows nothing.
class SilentHost : public AlarmHost {
 public:
  bool shown() const override { return true; }
  bool comingOut() const override { return false; }
  void comeOut() override {}
  void odczytaj(std::wstring_view) override {}
  void holdTitle(std::wstring_view, std::wstring_view) override {}
  void showMoment(const DueNote&) override {}
  void lockNote() override {}
  void unlockNote() override {}
  void Odczytaj_na_przycisku() override {}
  void showError(std::wstring_view, std::wstring_view) override {
    throw std::runtime_error("a note of the benchmark is refused");
  }
};

FakeClock clockOfToday() {
  const std::time_t now = std::time(nullptr);
  std::tm parts{};
  localtime_r(&now, &parts);
  FakeClock clock;
  clock.time = {parts.tm_year + 1900, parts.tm_mon + 1, parts.tm_mday, parts.tm_wday, 12, 0, 0};
  return clock;
}

void rebuild(benchmark::State& state, const Folders& folders) {
  const StandardFileSystem files;
  const Windows1252 codePage;
  const FakeClock clock = clockOfToday();
  SilentHost host;
  const Comfort comfort;
  MemorySettingsStore store;
  int found = 0;
  for (auto _ : state) {
    // A start happens once to each.
    AlarmCheck alarms({files, codePage, clock, folders.notes(), comfort, store}, host);
    alarms.updateAtStart(std::make_shared<const FolderListing>(files.list(folders.notes(), L"*")));
    found = alarms.pending();
  }
  if (found == 0) state.SkipWithError("the table does not hold what it should");
}

/// All that is due within a year, from the files on.
void year(benchmark::State& state, const Folders& folders) {
  const StandardFileSystem files;
  const Windows1252 codePage;
  const LocalMinute today = minuteOf(clockOfToday().now());
  std::size_t found = 0;
  for (auto _ : state) {
    AlarmNoteReader notes(files, codePage, folders.notes(),
                          std::make_shared<const FolderListing>(files.list(folders.notes(), L"*")),
                          kNoteKinds);
    found = dueBetween(notes, today, today + std::chrono::days(365)).size();
  }
  if (found == 0) state.SkipWithError("nothing is due");
}

/// `calendar` chooses what it prints: nothing for today's reminders, "-s" for those of a month.
void remindCalendar(benchmark::State& state, const Folders& folders, std::string calendar) {
  std::string program = "remind";
  std::string quiet = "-q";
  std::string noRun = "-r";
  std::string folder = folders.scripts().string();
  std::vector<char*> arguments = {program.data(), quiet.data(), noRun.data()};
  if (!calendar.empty()) arguments.push_back(calendar.data());
  arguments.insert(arguments.end(), {folder.data(), nullptr});
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  for (auto _ : state) {
    pid_t child = 0;
    int status = -1;
    const bool started =
        posix_spawnp(&child, program.c_str(), &actions, nullptr, arguments.data(), environ) == 0;
    if (!started || waitpid(child, &status, 0) != child || status != 0) {
      state.SkipWithError("the calendar program failed: is the package remind installed?");
      break;
    }
  }
  posix_spawn_file_actions_destroy(&actions);
}

/// A table of `count` entries, of which two ring in the checked minute.
void minuteCheck(benchmark::State& state, int count) {
  FakeNoteFolder folder;
  for (int i = 0; i < count; ++i) {
    const std::string time = i == 0 || i == count - 1 ? "12|1|" : clockFields(i % 720);
    folder.notes[L"Reminder " + std::to_wstring(i) + L".tx1"] = time;
  }
  const Windows1252 codePage;
  const FakeClock clock(LocalTime{2026, 3, 2, 1, 12, 1, 1});
  SilentHost host;
  const Comfort comfort;
  MemorySettingsStore store;
  AlarmCheck alarms({folder, codePage, clock, "notes", comfort, store}, host);
  alarms.Update_All_Al();
  const int found = alarms.pending();
  if (found != 2) state.SkipWithError("the table does not hold what it should");
  for (auto _ : state) {
    state.PauseTiming();
    alarms.Update_All_Al_komp();  // empties the queue
    state.ResumeTiming();
    alarms.Sprawdzaj_alarmy();
  }
}

void registerAll(const std::vector<std::unique_ptr<Folders>>& folders) {
  for (const auto& one : folders) {
    const int count = one->count();
    const std::string suffix = "/" + std::to_string(count);
    const Folders* notes = one.get();
    const auto add = [&](const std::string& name, auto&& function) {
      return benchmark::RegisterBenchmark((name + suffix).c_str(), function)
          ->UseRealTime()
          ->Unit(benchmark::kMicrosecond);
    };
    add("rebuild", [notes](benchmark::State& state) { rebuild(state, *notes); });
    add("remind", [notes](benchmark::State& state) { remindCalendar(state, *notes, ""); });
    add("check", [count](benchmark::State& state) { minuteCheck(state, count); });
    if (one != folders.back()) continue;
    add("year", [notes](benchmark::State& state) { year(state, *notes); });
    // A month takes the other calendar minutes.
    add("remindMonth", [notes](benchmark::State& state) {
      remindCalendar(state, *notes, "-s");
    })->Repetitions(2);
  }
}

int run(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  std::vector<std::unique_ptr<Folders>> folders;
  for (const int count : {10000, 30000}) folders.push_back(std::make_unique<Folders>(count));
  registerAll(folders);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}

}  // namespace
}  // namespace kalvora

int main(int argc, char** argv) {
  return kalvora::run(argc, argv);
}
