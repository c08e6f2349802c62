#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "alarms/AlarmCheck.h"
#include "alarms/TimeTableScanner.h"
#include "fakes/FakeAlarmHost.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeNoteFolder.h"
#include "fakes/MemorySettingsStore.h"
#include "fakes/PlainScan.h"

namespace kalvora {
namespace {

struct Entry {
  std::int16_t hour;
  std::int16_t minute;
  std::wstring name;
  friend bool operator==(const Entry&, const Entry&) = default;
};

std::ostream& operator<<(std::ostream& out, const Entry& entry) {
  return out << entry.hour << ':' << entry.minute << '-'
             << std::string(entry.name.begin(), entry.name.end());
}

std::vector<Entry> scannedEntries(std::wstring_view table) {
  std::vector<Entry> entries;
  TimeTableScanner scanner;
  do {
    const std::int16_t hour = scanner.Czytaj_zmienna_na_kolejke(table);
    const std::int16_t minute = scanner.Czytaj_zmienna_na_kolejke(table);
    entries.push_back({hour, minute, std::wstring(scanner.Czytaj_zmienna_na_kolejke_plik(table))});
  } while (!scanner.atEnd());
  return entries;
}

std::wstring fieldOf(std::int16_t number) {
  return number < 0 ? std::wstring() : std::to_wstring(number);
}

/// A time, or nothing.
rc::Gen<std::int16_t> someNumber() {
  return rc::gen::map(rc::gen::inRange(-1, 32768),
                      [](int number) { return static_cast<std::int16_t>(number); });
}

rc::Gen<std::wstring> someName() {
  const std::wstring letters = L"abcXYZ019 ._()";
  return rc::gen::map(
      rc::gen::nonEmpty(rc::gen::container<std::vector<wchar_t>>(rc::gen::elementOf(letters))),
      [](const std::vector<wchar_t>& name) { return std::wstring(name.begin(), name.end()); });
}

RC_GTEST_PROP(AlarmTables, theScannersAgreeWithSplittingWellFormedTables, ()) {
  const auto entries = *rc::gen::nonEmpty(rc::gen::container<std::vector<Entry>>(
      rc::gen::construct<Entry>(someNumber(), someNumber(), someName())));
  std::wstring table;
  for (const Entry& entry : entries) {
    table += fieldOf(entry.hour) + L":" + fieldOf(entry.minute) + L"-" + entry.name + L"|";
  }
  RC_ASSERT(scannedEntries(table) == entries);
}

RC_GTEST_PROP(AlarmTables, theScannersReadAnyTextCharacterByCharacter, ()) {
  const auto letters = *rc::gen::container<std::vector<wchar_t>>(
      rc::gen::element(L'0', L'1', L'9', L':', L'-', L'|', L'a', L' ', L'\0'));
  const std::wstring table(letters.begin(), letters.end());
  PlainScan plain{table};
  TimeTableScanner scanner;
  for (int scans = 0; scans < 40; ++scans) {
    if (*rc::gen::inRange(0, 3) < 2) {
      RC_ASSERT(scanner.Czytaj_zmienna_na_kolejke(table) == plain.number());
    } else {
      RC_ASSERT(std::wstring(scanner.Czytaj_zmienna_na_kolejke_plik(table)) == plain.name());
    }
    RC_ASSERT(scanner.position() == plain.position);
    RC_ASSERT(scanner.atEnd() == (plain.flag == -1));
  }
}

RC_GTEST_PROP(AlarmTables, everyTableComesToItsEnd, (const std::vector<wchar_t>& letters)) {
  const std::wstring table(letters.begin(), letters.end());
  RC_ASSERT(scannedEntries(table).size() <= table.size() / 3 + 1);
}

RC_GTEST_PROP(AlarmTables, notesOfAnyBytesNeverKeepASoundOneFromRinging,
              (const std::vector<std::string>& contents)) {
  FakeNoteFolder folder;
  const std::wstring extensions[] = {L".txt", L".tx1", L".tx2", L".tx3", L".tx4"};
  for (std::size_t i = 0; i < contents.size(); ++i) {
    const bool likeFields = *rc::gen::arbitrary<bool>();
    std::string bytes = contents[i];
    if (likeFields) {
      const auto fields = *rc::gen::container<std::vector<char>>(
          rc::gen::element('0', '1', '3', '9', '|', '|', '-', 'x', '\0'));
      bytes.assign(fields.begin(), fields.end());
    }
    folder.notes[L"m" + std::to_wstring(i) + extensions[i % 5]] = bytes;
  }
  folder.notes[L"z.tx2"] = "7|30|1|1|1|1|1|1|1|";
  folder.notes[L"z.tx4"] = "2|2|||";
  const Windows1252 codePage;
  const FakeClock clock(LocalTime{2026, 3, 2, 1, 7, 30, 0});
  FakeAlarmHost host;
  const Comfort comfort;
  MemorySettingsStore store;
  AlarmCheck alarms({folder, codePage, clock, "notes", comfort, store}, host);
  alarms.Update_All_Al_komp();
  alarms.Update_All_Al();
  RC_ASSERT(host.calls.size() <= 2U);
  const std::vector<std::wstring> rang = host.putAwayAll(alarms);
  RC_ASSERT(std::ranges::count(rang, L"z.tx4") == 1);
  RC_ASSERT(rang.back().compare(L"z.tx2") == 0);
}

}  // namespace
}  // namespace kalvora
