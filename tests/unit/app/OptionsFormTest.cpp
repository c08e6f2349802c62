#include "app/OptionsForm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/Numbers.h"
#include "fakes/FakeOptionsView.h"
#include "fakes/MemorySettingsStore.h"
#include "options/ComfortTable.h"
#include "options/OptionsInputError.h"

namespace kalvora {
namespace {

constexpr CheckId display(int item) {
  return {CheckBox::Display_chk, item};
}

class OptionsFormTest : public testing::Test {
 protected:
  void save(PositionBoxes position = PositionBoxes::Taken) {
    settings = enteredOptions(form, settings, position);
    storeSettings(store, settings);
  }

  Settings settings;
  FakeOptionsView form;
  MemorySettingsStore store;
};

/// A control of the dialog, what the user makes of it, and where and how that is stored.
struct Way {
  std::variant<CheckId, TextId> control;
  std::wstring entered;  // "True" and "False" for a check box
  std::wstring key;
  std::wstring stored;
};

std::vector<Way> ways() {
  return {
      {display(0), L"True", L"Graph/ShWatS", L"True"},
      {display(1), L"True", L"Graph/AShT", L"True"},
      {display(2), L"False", L"Graph/WysRZF1", L"False"},
      {display(3), L"True", L"Graph/ZRF1", L"True"},
      {display(4), L"True", L"Graph/Always Save win pos", L"True"},
      {TextId{TextBox::WindowTime}, L"70000", L"Graph/Window1_interval", L"70000"},
      {TextId{TextBox::WindowSize}, L"33", L"Graph/Win1_Jump", L"33"},
      {TextId{TextBox::NotesTime}, L"15", L"Graph/Window2_interval", L"15"},
      {TextId{TextBox::NotesSize}, L"44", L"Graph/Win2_Jump", L"44"},
      {TextId{TextBox::WinPos, 0}, L"123", L"Graph/Window_X", L"123"},
      {TextId{TextBox::WinPos, 1}, L"456", L"Graph/Window_Y", L"456"},
      {CheckId{CheckBox::Sound_ch_all}, L"True", L"Sounds/Use_Sounds", L"True"},
      {TextId{TextBox::Sound_path, 0}, L"a.wav", L"Sounds/Snd_Show", L"a.wav"},
      {TextId{TextBox::Sound_path, 1}, L"b.wav", L"Sounds/Snd_Hide", L"b.wav"},
      {TextId{TextBox::Sound_path, 2}, L"c.wav", L"Sounds/Snd_Notes_Show", L"c.wav"},
      {TextId{TextBox::Sound_path, 3}, L"d.wav", L"Sounds/Snd_Notes_Hide", L"d.wav"},
      {TextId{TextBox::Sound_path, 4}, L"e.wav", L"Sounds/Snd_Alarm", L"e.wav"},
      {TextId{TextBox::Sound_path, 5}, L"f.wav", L"Sounds/Snd_Button_Press", L"f.wav"},
      {TextId{TextBox::Sound_path, 6}, L"g.wav", L"Sounds/Snd_Button_Delete", L"g.wav"},
      {CheckId{CheckBox::AmPmCheck}, L"False", L"Sys/AmPm", L"False"},
      {CheckId{CheckBox::AlwOnTop}, L"False", L"Sys/AlwOnTop", L"False"},
      {CheckId{CheckBox::Fast_delete_msg_check}, L"False", L"Sys/Fast_delete_msg", L"False"},
  };
}

void enter(FakeOptionsView& form, const Way& way) {
  if (const auto* check = std::get_if<CheckId>(&way.control)) {
    form.setChecked(*check, textToBoolean(way.entered));
  } else {
    form.setText(std::get<TextId>(way.control), way.entered);
  }
}

std::wstring shownBy(const FakeOptionsView& form, const Way& way) {
  if (const auto* check = std::get_if<CheckId>(&way.control)) {
    return booleanToText(form.checked(*check));
  }
  return form.text(std::get<TextId>(way.control));
}

TEST_F(OptionsFormTest, eachTickOfComfortIsShownAndTaken) {
  for (int item = 0; item < static_cast<int>(comfortTicks().size()); ++item) {
    const auto member = comfortTicks()[static_cast<std::size_t>(item)].member;
    settings.comfort = {};
    settings.comfort.*member = true;
    Options_to_form(settings, form);
    for (int other = 0; other < static_cast<int>(comfortTicks().size()); ++other) {
      EXPECT_EQ(form.checked({CheckBox::Comfort, other}), other == item) << item << ", " << other;
    }
    const Comfort shown = settings.comfort;
    settings.comfort = {};
    save();
    EXPECT_EQ(settings.comfort, shown);
  }
}

TEST_F(OptionsFormTest, eachControlReachesItsKeyAndNoOther) {
  for (const Way& way : ways()) {
    Settings held;
    FakeOptionsView opened;
    Options_to_form(held, opened);
    MemorySettingsStore before;
    storeSettings(before, held);
    enter(opened, way);
    MemorySettingsStore after;
    storeSettings(after, enteredOptions(opened, held, PositionBoxes::Taken));
    before.values[way.key] = way.stored;
    EXPECT_EQ(after.values, before.values) << std::string(way.key.begin(), way.key.end());
  }
}

TEST_F(OptionsFormTest, eachKeyReachesItsControlAgain) {
  for (const Way& way : ways()) {
    const bool isSwitch = std::holds_alternative<CheckId>(way.control) &&
                          std::get<CheckId>(way.control).box == CheckBox::Display_chk;
    if (isSwitch) continue;  // the display switches fill in a way of their own, below
    MemorySettingsStore stored;
    stored.values[way.key] = way.stored;
    Settings loaded;
    EXPECT_EQ(Load_options_KV(stored, {{1024, 768}, {200, 161}}, loaded, [](bool) {}), L"");
    FakeOptionsView fresh;
    Options_to_form(loaded, fresh);
    EXPECT_EQ(shownBy(fresh, way), way.entered) << std::string(way.key.begin(), way.key.end());
  }
}

TEST_F(OptionsFormTest, allControlsTogetherReachTheStoreAndComeBack) {
  for (const Way& way : ways()) enter(form, way);
  save();
  for (const Way& way : ways()) EXPECT_EQ(store.values[way.key], way.stored);
  Settings loaded;
  EXPECT_EQ(Load_options_KV(store, {{1024, 768}, {200, 161}}, loaded, [](bool) {}), L"");
  EXPECT_EQ(loaded, settings);
}

TEST_F(OptionsFormTest, theTableHoldsEachControlOnce) {
  EXPECT_EQ(optionsRows().size(), ways().size());
  for (const Way& way : ways()) {
    EXPECT_EQ(std::ranges::count_if(
                  optionsRows(), [&](const OptionsRow& row) { return row.control == way.control; }),
              1);
  }
}

TEST_F(OptionsFormTest, savesInTheOrderOfTheSettingsTable) {
  Options_to_form(settings, form);
  save();
  std::vector<std::wstring> keys;
  for (const std::wstring& call : store.calls) {
    if (call.starts_with(L"save")) keys.push_back(call.substr(0, call.find(L'=')));
  }
  std::vector<std::wstring> expected;
  for (const SettingRow& row : settingRows()) {
    expected.push_back(L"save " + std::wstring(row.section) + L"/" + std::wstring(row.key));
  }
  EXPECT_EQ(keys, expected);
}

TEST_F(OptionsFormTest, allFiveSwitchesOnShowsAllFiveChecked) {
  settings.ShWatS = settings.AShT = settings.WysRZF1 = settings.ZRF1 = true;
  settings.alwaysSaveWinPos = true;
  Options_to_form(settings, form);
  for (int item = 0; item < kDisplayCheckCount; ++item) EXPECT_TRUE(form.checked(display(item)));
}

TEST_F(OptionsFormTest, anySwitchThatIsOffClearsTheFirstBox) {
  for (const auto off : kDisplaySwitches) {
    settings = {};
    for (const auto member : kDisplaySwitches) settings.*member = member != off;
    form.setChecked(display(0), true);
    Options_to_form(settings, form);
    EXPECT_FALSE(form.checked(display(0)));
  }
}

TEST_F(OptionsFormTest, theOtherDisplayBoxesAreNeverCleared) {
  for (int item = 1; item < kDisplayCheckCount; ++item) form.setChecked(display(item), true);
  for (const auto member : kDisplaySwitches) settings.*member = false;
  Options_to_form(settings, form);
  for (int item = 1; item < kDisplayCheckCount; ++item) EXPECT_TRUE(form.checked(display(item)));
}

TEST_F(OptionsFormTest, openingAndConfirmingLosesDisplayAtStart) {
  settings.ShWatS = true;
  settings.AShT = false;
  Options_to_form(settings, form);
  EXPECT_FALSE(form.checked(display(0)));
  save();
  EXPECT_FALSE(settings.ShWatS);
  EXPECT_EQ(store.values[L"Graph/ShWatS"], L"False");
}

TEST_F(OptionsFormTest, theIconAndTheSkinAreNotTheDialogsToTake) {
  settings.iconFilename = L"bell.ico";
  settings.Last_skin = 3;
  Options_to_form(settings, form);
  save();
  EXPECT_EQ(store.values[L"Graph/Icon filename"], L"bell.ico");
  EXPECT_EQ(store.values[L"Sys/Last_skin"], L"3");
}

TEST_F(OptionsFormTest, aHiddenWindowsPositionBoxesAreIgnored) {
  settings.Window_X = 11;
  settings.Window_Y = 22;
  Options_to_form(settings, form);
  form.setText({TextBox::WinPos, 0}, L"900");
  form.setText({TextBox::WinPos, 1}, L"not a number");
  save(PositionBoxes::Ignored);
  EXPECT_EQ(settings.Window_X, 11);
  EXPECT_EQ(settings.Window_Y, 22);
  EXPECT_EQ(store.values[L"Graph/Window_X"], L"11");
}

TEST_F(OptionsFormTest, aPositionOf9999IsStoredAsItIs) {
  Options_to_form(settings, form);
  form.setText({TextBox::WinPos, 0}, L"9999");
  save();
  EXPECT_EQ(store.values[L"Graph/Window_X"], L"9999");
}

struct Refused {
  TextId box;
  std::wstring text;
};

TEST_F(OptionsFormTest, aValueThatIsNoNumberChangesNothingAtAll) {
  const std::vector<Refused> cases = {
      {{TextBox::WindowTime}, L"soon"}, {{TextBox::WindowTime}, L"2147483648"},
      {{TextBox::WindowSize}, L""},     {{TextBox::WindowSize}, L"32768"},
      {{TextBox::NotesTime}, L"10 ms"}, {{TextBox::NotesSize}, L"x"},
      {{TextBox::WinPos, 0}, L"99999"}, {{TextBox::WinPos, 1}, L""},
  };
  for (const Refused& refused : cases) {
    settings = {};
    Options_to_form(settings, form);
    const Settings before = settings;
    form.setChecked(display(3), true);
    form.setText({TextBox::Sound_path, 0}, L"new.wav");
    form.setText(refused.box, refused.text);
    try {
      save();
      FAIL() << "nothing was refused";
    } catch (const OptionsInputError& error) {
      EXPECT_EQ(error.box(), refused.box);
      EXPECT_NE(error.message().find(nameOf(refused.box)), std::wstring::npos);
      EXPECT_NE(error.message().find(refused.text), std::wstring::npos);
    }
    EXPECT_EQ(settings, before);
    EXPECT_TRUE(store.calls.empty());
    form.setChecked(display(3), false);
    form.setText({TextBox::Sound_path, 0}, L"");
  }
}

}  // namespace
}  // namespace kalvora
