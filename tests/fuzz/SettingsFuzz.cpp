// Settings of any texts, a line each in the order of the settings table; a line that is missing is
// a missing value.
#include "FuzzCheck.h"
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

/// The rows that hold the same as in `other`, from the first one on.
std::size_t equalRows(const Settings& a, const Settings& b, std::size_t from, std::size_t to) {
  std::size_t row = from;
  const auto same = [&](auto member) { return a.*member == b.*member; };
  while (row < to && std::visit(same, settingRows()[row].member)) ++row;
  return row - from;
}

/// A failure leaves the row that failed and those after it as they were.
void checkFailure(const MemorySettingsStore& store, const Settings& held, const Settings& loaded) {
  const std::size_t asked = store.calls.size();
  const std::size_t rows = settingRows().size();
  require(asked >= 1 && asked <= rows, "each row is asked for once");
  require(equalRows(held, loaded, asked - 1, rows) == rows - asked + 1,
          "the rows from the failure on are as they were");
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

/// Every row holds what its text says. A text that says nothing throws here, and ends the program.
void checkTaken(const MemorySettingsStore& store, const Settings& loaded) {
  for (const SettingRow& row : settingRows()) {
    const std::wstring text = store.get(row.section, row.key, row.fallback);
    const auto holds = [&](auto member) { return took(text, loaded.*member); };
    require(std::visit(holds, row.member), "a setting is what its text says");
  }
}

void checkSavedAgain(const Settings& loaded) {
  MemorySettingsStore saved;
  storeSettings(saved, loaded);
  require(saved.values.size() == settingRows().size(), "every row is saved");
  Settings again;
  Load_options_KV(saved, kSizes, again, [](bool) {});
  require(again == loaded, "what is saved is loaded again");
}

void checkLoading(std::string_view input) {
  MemorySettingsStore store;
  fill(store, input);
  store.calls.clear();
  Settings held;
  held.Window_X = held.Window_Y = -7;
  Settings loaded = held;
  int applied = 0;
  try {
    Load_options_KV(store, kSizes, loaded, [&](bool) { ++applied; });
  } catch (const ConversionError& error) {
    require(!error.message().empty(), "a failure is told");
    return checkFailure(store, held, loaded);
  } catch (const OverflowError& error) {
    require(!error.message().empty(), "a failure is told");
    return checkFailure(store, held, loaded);
  }
  require(applied == 1, "always-on-top is applied once");
  require(loaded.Window_X != kPlaceNotSet && loaded.Window_Y != kPlaceNotSet, "the place is set");
  checkTaken(store, loaded);
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

}  // namespace
}  // namespace kalvora

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kalvora;
  const std::string_view input = bytesOf(data, size);
  checkLoading(input);
  std::string_view rest = input;
  while (!rest.empty()) checkNumber(Windows1252().toText(takePart(rest, '\n')));
  return 0;
}
