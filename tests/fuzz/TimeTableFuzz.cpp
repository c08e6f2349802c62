// The time table and its scanners. The input is read twice: as the text of a table, and as a folder
// of notes, a line each: a letter A to F for the kind, the name up to the first "|", the bytes.
#include <chrono>
#include <string>

#include "FuzzCheck.h"
#include "alarms/AlarmQueue.h"
#include "alarms/TimeTable.h"
#include "alarms/TimeTableScanner.h"
#include "fakes/FakeNoteFolder.h"
#include "fakes/PlainScan.h"

namespace kalvora {
namespace {

constexpr int kMonday = 1;
constexpr std::chrono::year_month_day kToday{std::chrono::year{2026}, std::chrono::March,
                                             std::chrono::day{2}};
const Windows1252 kCodePage;

void checkPosition(const TimeTableScanner& scanner, const PlainScan& plain) {
  require(scanner.position() == plain.position, "the scanner stands where the plain one does");
  require(scanner.atEnd() == (plain.flag == -1), "both scanners see the end");
}

void checkNumber(TimeTableScanner& scanner, PlainScan& plain) {
  const int number = scanner.Czytaj_zmienna_na_kolejke(plain.text);
  require(number == plain.number(), "both scanners read the same number");
  checkPosition(scanner, plain);
}

void checkName(TimeTableScanner& scanner, PlainScan& plain) {
  const std::wstring_view name = scanner.Czytaj_zmienna_na_kolejke_plik(plain.text);
  require(name == plain.name(), "both scanners read the same name");
  checkPosition(scanner, plain);
}

/// As the program scans: two numbers and a name for each entry.
void checkEntries(const std::wstring& table) {
  PlainScan plain{table};
  TimeTableScanner scanner;
  std::size_t entries = 0;
  do {
    checkNumber(scanner, plain);
    checkNumber(scanner, plain);
    checkName(scanner, plain);
    ++entries;
  } while (!scanner.atEnd());
  require(entries <= table.size() / 3 + 1, "the end is reached");
}

/// Scans in any order, beyond the end too.
void checkAnyOrder(const std::wstring& table) {
  PlainScan plain{table};
  TimeTableScanner scanner;
  for (std::size_t i = 0; i < 64; ++i) {
    const bool asName = !table.empty() && (table[i % table.size()] & 1) != 0;
    asName ? checkName(scanner, plain) : checkNumber(scanner, plain);
  }
}

/// A file's name as Windows lets it be. ASCII only: a native path takes no other wide characters.
std::wstring fileName(std::string_view typed, std::size_t number, NoteKind kind) {
  std::wstring name = L"n" + std::to_wstring(number);
  for (const wchar_t c : kCodePage.toText(typed)) {
    const bool allowed =
        c >= L' ' && c <= L'~' && std::wstring_view(L"\\/:*?\"<>|").find(c) == std::wstring::npos;
    if (allowed) name += c;
  }
  return name + std::wstring(extensionOf(kind));
}

std::size_t kindNumber(char letter) {
  return (static_cast<unsigned char>(letter) - unsigned{'A'}) % kNoteKinds.size();
}

FakeNoteFolder folderOf(std::string_view input) {
  FakeNoteFolder folder;
  for (std::size_t number = 0; !input.empty(); ++number) {
    std::string_view note = takePart(input, '\n');
    if (note.empty()) continue;
    const NoteKind kind = kNoteKinds.at(kindNumber(note.front()));
    note.remove_prefix(1);
    const std::string_view typed = takePart(note, '|');
    folder.notes[fileName(typed, number, kind)] = std::string(note);
  }
  return folder;
}

/// The entries of a table's text for a time, each of which the program has to queue.
std::size_t dueCount(const std::wstring& table, int hour, int minute) {
  PlainScan plain{table};
  std::size_t due = 0;
  do {
    const int a = plain.number();
    const int b = plain.number();
    if (plain.name() != L"-1" && a == hour && b == minute) ++due;
  } while (plain.flag != -1);
  return due;
}

void checkTable(std::string_view input) {
  FakeNoteFolder folder = folderOf(input);
  folder.notes[L"zz.tx2"] = "7|30|1|1|1|1|1|1|1|";
  folder.notes[L"zz.tx5"] = "2026|3|2|7|30|";
  AlarmNoteReader notes(folder, kCodePage, "notes", folder.listed(), kNoteKinds);
  TimeTable table;
  table.turnTo({kMonday, kToday});
  table.rebuild(notes);
  AlarmQueue queue;
  table.queueDue(7, 30, queue);
  require(static_cast<std::size_t>(queue.pending()) == dueCount(table.text(), 7, 30),
          "every due entry is queued");
  std::wstring last;
  bool weeklyRings = false;
  while (queue.pending() > 0) {
    last = queue.takeNext();
    weeklyRings = weeklyRings || last == L"zz.tx2";
  }
  require(weeklyRings && last == L"zz.tx5", "a sound note rings");
  require(notes.takeFaults().size() <= folder.notes.size(), "a note has one fault at most");
  checkEntries(table.text());
}

}  // namespace
}  // namespace kalvora

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kalvora;
  const std::string_view input = bytesOf(data, size);
  const std::wstring text = kCodePage.toText(input);
  checkEntries(text);
  checkAnyOrder(text);
  checkTable(input);
  return 0;
}
