#include "app/Settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "base/Errors.h"
#include "fakes/MemorySettingsStore.h"
#include "options/ComfortTable.h"

namespace kalvora {
namespace {

constexpr PlacementSizes kSizes = {{1024, 768}, {200, 161}};

/// Every call of a test, and what was told about the top of the z-order.
class LoadOptions : public testing::Test {
 protected:
  /// What the user is to be told.
  std::wstring load(const PlacementSizes& sizes = kSizes) {
    return Load_options_KV(store_, sizes, settings_, [this](bool alwaysOnTop) {
      store_.calls.push_back(alwaysOnTop ? L"OnTop" : L"RemOntop");
    });
  }

  MemorySettingsStore store_;
  Settings settings_;
};

/// The table as the user's manual has it: section, key, default and stored text of other values.
struct Expected {
  std::wstring name;
  std::wstring fallback;
  std::wstring other;
};

std::vector<Expected> expectedRows() {
  return {
      {L"Graph/ShWatS", L"FALSE", L"True"},
      {L"Graph/AShT", L"FALSE", L"True"},
      {L"Graph/WysRZF1", L"TRUE", L"False"},
      {L"Graph/ZRF1", L"FALSE", L"True"},
      {L"Graph/Always Save win pos", L"FALSE", L"True"},
      {L"Graph/Window1_interval", L"10", L"65536"},
      {L"Graph/Window2_interval", L"10", L"70000"},
      {L"Graph/Win1_Jump", L"10", L"3"},
      {L"Graph/Win2_Jump", L"20", L"4"},
      {L"Graph/Window_X", L"9999", L"-40"},
      {L"Graph/Window_Y", L"9999", L"2000"},
      {L"Graph/Icon filename", L"", L"Bell.ico"},
      {L"Sounds/Use_Sounds", L"FALSE", L"True"},
      {L"Sounds/Snd_Show", L"", L"C:\\a\\show.wav"},
      {L"Sounds/Snd_Hide", L"", L"hide.wav"},
      {L"Sounds/Snd_Notes_Show", L"", L"notes show.wav"},
      {L"Sounds/Snd_Notes_Hide", L"", L"notes hide.wav"},
      {L"Sounds/Snd_Alarm", L"", L"\u017Calarm.wav"},
      {L"Sounds/Snd_Button_Press", L"", L"press.wav"},
      {L"Sounds/Snd_Button_Delete", L"", L"delete.wav"},
      {L"Sys/AmPm", L"TRUE", L"False"},
      {L"Sys/AlwOnTop", L"TRUE", L"False"},
      {L"Sys/Fast_delete_msg", L"TRUE", L"False"},
      {L"Sys/Last_skin", L"0", L"7"},
  };
}

TEST_F(LoadOptions, readEveryKeyInTheOrderOfTheTableAndSaveNothing) {
  EXPECT_EQ(load(), L"");
  std::vector<std::wstring> expected;
  for (const Expected& row : expectedRows()) {
    expected.push_back(L"get " + row.name);
    if (row.name == L"Sys/AlwOnTop") expected.push_back(L"OnTop");
  }
  for (const ComfortTick& tick : comfortTicks()) {
    expected.push_back(L"get Comfort/" + std::wstring(tick.key));
  }
  EXPECT_EQ(store_.calls, expected);
}

TEST_F(LoadOptions, tableHasTheDefaults) {
  const auto expected = expectedRows();
  ASSERT_EQ(settingRows().size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(settingRows()[i].fallback, expected[i].fallback) << i;
  }
}

TEST_F(LoadOptions, firstStartHasTheDefaultsOfTheTable) {
  settings_.AmPm = false;
  settings_.Win2_Jump = 1;
  EXPECT_EQ(load(), L"");
  EXPECT_EQ(settings_.Window1_interval, 10);
  EXPECT_EQ(settings_.Win1_Jump, 10);
  EXPECT_EQ(settings_.Window2_interval, 10);
  EXPECT_EQ(settings_.Win2_Jump, 20);
  EXPECT_TRUE(settings_.AmPm);
  EXPECT_TRUE(settings_.AlwOnTop);
  EXPECT_TRUE(settings_.Fast_delete_msg);
  EXPECT_FALSE(settings_.ShWatS);
  EXPECT_TRUE(settings_.WysRZF1);
  EXPECT_FALSE(settings_.Use_Sounds);
  EXPECT_EQ(settings_.iconFilename, L"");
  EXPECT_EQ(settings_.Last_skin, 0);
}

TEST_F(LoadOptions, untouchedSettingsAreThoseOfAFirstStart) {
  EXPECT_EQ(load(), L"");
  Settings fresh;
  fresh.Window_X = settings_.Window_X;
  fresh.Window_Y = settings_.Window_Y;
  EXPECT_EQ(settings_, fresh);
}

TEST_F(LoadOptions, firstStartIsFlushWithTheRightEdgeAndCentredVertically) {
  EXPECT_EQ(load(), L"");
  EXPECT_EQ(settings_.Window_X, 824);
  EXPECT_EQ(settings_.Window_Y, 304);  // 303.5 goes to the even neighbour
  EXPECT_EQ(load({{1280, 1024}, {200, 161}}), L"");
  EXPECT_EQ(settings_.Window_X, 1080);
  EXPECT_EQ(settings_.Window_Y, 432);  // 431.5
  EXPECT_EQ(load({{800, 600}, {200, 161}}), L"");
  EXPECT_EQ(settings_.Window_X, 600);
  EXPECT_EQ(settings_.Window_Y, 220);  // 219.5
  EXPECT_EQ(load({{1366, 767}, {200, 161}}), L"");
  EXPECT_EQ(settings_.Window_X, 1166);
  EXPECT_EQ(settings_.Window_Y, 303);
  EXPECT_EQ(load({{160, 120}, {200, 161}}), L"");
  EXPECT_EQ(settings_.Window_X, -40);
  EXPECT_EQ(settings_.Window_Y, -20);  // -20.5
}

TEST_F(LoadOptions, placeOf9999IsComputedAgainEachOnItsOwn) {
  store_.values = {{L"Graph/Window_X", L"9999"}, {L"Graph/Window_Y", L"12"}};
  EXPECT_EQ(load(), L"");
  EXPECT_EQ(settings_.Window_X, 824);
  EXPECT_EQ(settings_.Window_Y, 12);
  store_.values = {{L"Graph/Window_X", L"12"}, {L"Graph/Window_Y", L"9999"}};
  EXPECT_EQ(load(), L"");
  EXPECT_EQ(settings_.Window_X, 12);
  EXPECT_EQ(settings_.Window_Y, 304);
}

TEST_F(LoadOptions, savedPlaceOf9999MakesTheNextStartComputeIt) {
  saveWindowPosition(store_, 9999, 9999);
  EXPECT_EQ(load(), L"");
  EXPECT_EQ(settings_.Window_X, 824);
  EXPECT_EQ(settings_.Window_Y, 304);
}

TEST_F(LoadOptions, placeOutsideTheScreenStandsAsItIs) {
  store_.values = {{L"Graph/Window_X", L"-3000"}, {L"Graph/Window_Y", L"32767"}};
  EXPECT_EQ(load(), L"");
  EXPECT_EQ(settings_.Window_X, -3000);
  EXPECT_EQ(settings_.Window_Y, 32767);
}

TEST_F(LoadOptions, screenTooWideFor16BitsOverflows) {
  EXPECT_THROW((void)load({{40000, 768}, {200, 161}}), OverflowError);
}

TEST_F(LoadOptions, takeOtherTextFormsOfNumbersAndBooleans) {
  store_.values = {{L"Graph/ShWatS", L"tRuE"},
                   {L"Graph/AShT", L"-1"},
                   {L"Graph/WysRZF1", L"0"},
                   {L"Graph/Window1_interval", L" 100000 "},
                   {L"Graph/Win1_Jump", L"2.5"}};
  EXPECT_EQ(load(), L"");
  EXPECT_TRUE(settings_.ShWatS);
  EXPECT_TRUE(settings_.AShT);
  EXPECT_FALSE(settings_.WysRZF1);
  EXPECT_EQ(settings_.Window1_interval, 100000);
  EXPECT_EQ(settings_.Win1_Jump, 2);
}

TEST_F(LoadOptions, alwaysOnTopOffIsAppliedToo) {
  store_.values = {{L"Sys/AlwOnTop", L"False"}};
  EXPECT_EQ(load(), L"");
  EXPECT_EQ(std::ranges::count(store_.calls, L"RemOntop"), 1);
  EXPECT_EQ(std::ranges::count(store_.calls, L"OnTop"), 0);
}

TEST_F(LoadOptions, brokenNumberIsToldAndItsDefaultHoldsAndTheOthersAreRead) {
  for (const Expected& row : expectedRows()) store_.values[row.name] = row.other;
  EXPECT_EQ(load(), L"");
  Settings expected = settings_;
  expected.Win1_Jump = Settings().Win1_Jump;
  store_.values[L"Graph/Win1_Jump"] = L"ten";
  settings_ = Settings();
  settings_.Win1_Jump = 77;
  EXPECT_EQ(load(),
            L"The setting \"Win1_Jump\" in \"Graph\": This is not a number that can be used here: "
            L"\"ten\"\r\n\r\nThe default is used instead. To mend it, open the options, choose it "
            L"again and "
            L"press OK.");
  EXPECT_EQ(settings_, expected);
}

TEST_F(LoadOptions, everyBrokenSettingHasItsDefaultAndOneMessageNamesThem) {
  for (const Expected& row : expectedRows()) store_.values[row.name] = L"[{(";
  const std::wstring told = load();
  EXPECT_TRUE(told.starts_with(L"The setting \"ShWatS\" in \"Graph\": "));
  EXPECT_EQ(std::ranges::count(told, L'\n'), 17) << "a line each, all but the texts, and the end";
  EXPECT_NE(told.find(L"\r\nThe setting \"Last_skin\" in \"Sys\": "), std::wstring::npos);
  EXPECT_TRUE(told.ends_with(
      L"\r\n\r\nThe defaults are used instead. To mend them, open the options, choose them again "
      L"and press OK."));
  MemorySettingsStore empty;
  Settings defaults;
  EXPECT_EQ(Load_options_KV(empty, kSizes, defaults, [](bool) {}), L"");
  for (const auto path : kSoundPaths) defaults.*path = L"[{(";
  defaults.iconFilename = L"[{(";
  EXPECT_EQ(settings_, defaults);
}

TEST_F(LoadOptions, placeThatCannotBeReadIsComputed) {
  store_.values = {{L"Graph/Window_X", L"40000"}, {L"Graph/Window_Y", L"top"}};
  const std::wstring told = load();
  EXPECT_NE(told.find(L"\"Window_X\" in \"Graph\": The number 40000 is too large."),
            std::wstring::npos);
  EXPECT_NE(told.find(L"\"Window_Y\""), std::wstring::npos);
  EXPECT_EQ(settings_.Window_X, 1024 - 200);
  EXPECT_EQ(settings_.Window_Y, 304);
}

TEST_F(LoadOptions, emptyNumberAndNumberTooLargeForItsPlaceAreTold) {
  for (const wchar_t* text : {L"", L"3000000000"}) {
    store_.values = {{L"Graph/Window1_interval", text}};
    EXPECT_NE(load().find(L"\"Window1_interval\" in \"Graph\""), std::wstring::npos);
    EXPECT_EQ(settings_.Window1_interval, 10);
  }
}

TEST_F(LoadOptions, alwaysOnTopIsAppliedOnceAlsoWhereItCannotBeRead) {
  store_.values = {{L"Sys/AlwOnTop", L"perhaps"}};
  EXPECT_NE(load().find(L"\"AlwOnTop\""), std::wstring::npos);
  EXPECT_EQ(std::ranges::count(store_.calls, L"OnTop"), 1);
  EXPECT_EQ(std::ranges::count(store_.calls, L"RemOntop"), 0);
}

TEST(SaveOptions, writeEveryKeyInTheOrderOfTheTable) {
  MemorySettingsStore store;
  Settings settings;
  for (const Expected& row : expectedRows()) store.values[row.name] = row.other;
  EXPECT_EQ(Load_options_KV(store, kSizes, settings, [](bool) {}), L"");
  store.values.clear();
  store.calls.clear();
  storeSettings(store, settings);
  std::vector<std::wstring> expected;
  for (const Expected& row : expectedRows()) {
    expected.push_back(L"save " + row.name + L"=" + row.other);
  }
  std::erase_if(store.calls, [](const std::wstring& call) { return call.starts_with(L"get"); });
  EXPECT_EQ(store.calls, expected);
}

TEST(SaveOptions, whatIsSavedIsLoaded) {
  MemorySettingsStore store;
  Settings saved;
  saved.ZRF1 = true;
  saved.Window1_interval = std::numeric_limits<std::int32_t>::max();
  saved.Window2_interval = std::numeric_limits<std::int32_t>::min();
  saved.Window_X = std::numeric_limits<std::int16_t>::min();
  saved.Window_Y = std::numeric_limits<std::int16_t>::max();
  saved.Snd_Alarm = L"  ring.wav ";
  saved.AlwOnTop = false;
  storeSettings(store, saved);
  Settings loaded;
  EXPECT_EQ(Load_options_KV(store, kSizes, loaded, [](bool) {}), L"");
  EXPECT_EQ(loaded, saved);
}

TEST(SaveOptions, aStoreThatTakesNothingIsToldOnceWithALineForEachSetting) {
  MemorySettingsStore store;
  store.refuses = true;
  const auto told = [](const auto& work) -> std::wstring {
    try {
      work();
    } catch (const Failure& failure) {
      return failure.message();
    }
    return L"nothing";
  };
  EXPECT_EQ(std::ranges::count(told([&] { storeSettings(store, Settings{}); }), L'\n'), 23);
  EXPECT_EQ(told([&] { saveWindowPosition(store, 1, 2); }),
            L"This setting cannot be saved: Window_X\r\nThis setting cannot be saved: Window_Y");
}

TEST(SaveOptions, windowPositionIsTheTwoPlacesOnly) {
  MemorySettingsStore store;
  saveWindowPosition(store, -5, 32767);
  EXPECT_EQ(store.calls,
            (std::vector<std::wstring>{L"save Graph/Window_X=-5", L"save Graph/Window_Y=32767"}));
}

/// The members of one type in the order of the table.
template <typename Member, typename Wanted>
std::vector<Member> membersInTableOrder(const Wanted& wanted) {
  std::vector<Member> members;
  for (const SettingRow& row : settingRows()) {
    const Member* const member = std::get_if<Member>(&row.member);
    if (member != nullptr && wanted(row)) members.push_back(*member);
  }
  return members;
}

TEST(SettingLists, displaySwitchesAreTheBooleansOfTheirSectionInOrder) {
  const auto members = membersInTableOrder<bool Settings::*>(
      [](const SettingRow& row) { return row.section == L"Graph"; });
  EXPECT_EQ(members, std::vector(kDisplaySwitches.begin(), kDisplaySwitches.end()));
}

TEST(SettingLists, soundPathsAreTheTextsOfTheirSectionInOrder) {
  const auto members = membersInTableOrder<std::wstring Settings::*>(
      [](const SettingRow& row) { return row.section == L"Sounds"; });
  EXPECT_EQ(members, std::vector(kSoundPaths.begin(), kSoundPaths.end()));
}

}  // namespace
}  // namespace kalvora
