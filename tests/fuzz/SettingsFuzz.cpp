// Settings of any texts, a line each in the order of the settings table; a line that is missing is
// a missing value. Each line, and all of them, is a text of what was put off, too.
#include <algorithm>
#include <chrono>
#include <functional>

#include "FuzzCheck.h"
#include "alarms/Snoozes.h"
#include "app/Settings.h"
#include "base/CodePage.h"
#include "base/Errors.h"
#include "base/Numbers.h"
#include "fakes/MemorySettingsStore.h"

namespace kalvora {
namespace {

constexpr PlacementSizes kSizes{{1024, 768}, {200, 161}};

void fill(MemorySettingsStore& store, std::string_view input) {
  const Windows1252 codePage;
  for (const SettingRow& row : settingRows()) {
    if (input.empty()) return;
    store.save(row.section, row.key, codePage.toText(takePart(input, '\n')));
  }
}

bool took(std::wstring_view text, bool value) {
  return textToBoolean(text) == value;
}
bool took(std::wstring_view text, std::int16_t value) {
  return textToInt16(text) == value || textToInt16(text) == kPlaceNotSet;
}
bool took(std::wstring_view text, std::int32_t value) {
  return textToInt32(text) == value;
}
bool took(std::wstring_view text, const std::wstring& value) {
  return text == value;
}

/// Every row holds what its text says, or its default where that says nothing. How many say
/// nothing.
int checkTaken(const MemorySettingsStore& store, const Settings& loaded) {
  int unreadable = 0;
  for (const SettingRow& row : settingRows()) {
    const std::wstring text = store.get(row.section, row.key, row.fallback);
    const auto holds = [&](std::wstring_view what) {
      return std::visit([&](auto member) { return took(what, loaded.*member); }, row.member);
    };
    try {
      require(holds(text), "a setting is what its text says");
    } catch (const Failure&) {
      ++unreadable;
      require(holds(row.fallback), "a setting that cannot be read is its default");
    }
  }
  return unreadable;
}

void checkSavedAgain(const Settings& loaded) {
  MemorySettingsStore saved;
  storeSettings(saved, loaded);
  require(saved.values.size() == settingRows().size(), "every row is saved");
  Settings again;
  require(Load_options_KV(saved, kSizes, again, [](bool) {}).empty(), "nothing is to be told");
  require(again == loaded, "what is saved is loaded again");
}

void checkLoading(std::string_view input) {
  MemorySettingsStore store;
  fill(store, input);
  Settings loaded;
  loaded.Window_X = loaded.Window_Y = -7;
  int applied = 0;
  const std::wstring told = Load_options_KV(store, kSizes, loaded, [&](bool) { ++applied; });
  require(applied == 1, "always-on-top is applied once");
  require(loaded.Window_X != kPlaceNotSet && loaded.Window_Y != kPlaceNotSet, "the place is set");
  require(told.empty() == (checkTaken(store, loaded) == 0), "what cannot be read is told");
  checkSavedAgain(loaded);
}

/// The number of a text, in every size: what fits into 16 bits fits into the others.
void checkNumber(std::wstring_view text) {
  try {
    const std::int16_t number = textToInt16(text);
    require(textToInt32(text) == number, "a 16-bit number is a 32-bit one");
    require(textToInt16(numberToText(number)) == number, "a number's text is that number");
    const float single = textToSingle(text);
    require(textToSingle(singleToText(single)) == single, "a single's text is that single");
  } catch (const ConversionError&) {
  } catch (const OverflowError&) {
  }
}

/// What can be read of it is kept as it is, whatever is put off beside it.
void checkPutOff(const std::wstring& text) {
  MemorySettingsStore store;
  store.save(L"Snooze", L"Put_off", text);
  store.save(L"Snooze", L"Snooze_minutes", text);
  Snoozes snoozes(store);
  const std::chrono::minutes length = snoozes.length();
  require(length >= std::chrono::minutes(1) && length <= std::chrono::days(1), "a length");
  std::vector<DueNote> all = snoozes.all();
  require(std::ranges::is_sorted(all, std::less<>()), "by moment");
  require(store.get(L"Snooze", L"Put_off", L"") == text, "reading stores nothing");
  const DueNote gym{LocalMinute(std::chrono::local_days(std::chrono::year(2026) / 3 / 2)), L"?"};
  snoozes.add(gym);
  if (std::ranges::find(all, gym) == all.end()) all.push_back(gym);
  std::ranges::sort(all, std::less<>());
  require(Snoozes(store).all() == all, "what is stored is read again");
  snoozes.noteDeleted(L"?");
  std::erase_if(all, [](const DueNote& note) { return note.fileName == L"?"; });
  require(Snoozes(store).all() == all, "what is deleted is gone");
}

}  // namespace
}  // namespace kalvora

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kalvora;
  const std::string_view input = bytesOf(data, size);
  checkLoading(input);
  std::string_view rest = input;
  while (!rest.empty()) {
    const std::wstring line = Windows1252().toText(takePart(rest, '\n'));
    checkNumber(line);
    checkPutOff(line);
  }
  checkPutOff(Windows1252().toText(input));
  return 0;
}
