#include "app/MainCommands.h"

#include <set>

#include "unit/app/Form1Fixture.h"

namespace kalvora {
namespace {

TEST(MainCommands, haveTheKeysOfTheGuide) {
  EXPECT_EQ(commandOf({HeldWith::Ctrl, Key::N}), MainCommand::New);
  EXPECT_EQ(commandOf({HeldWith::Ctrl, Key::S}), MainCommand::Save);
  EXPECT_EQ(commandOf({HeldWith::Ctrl, Key::PageUp}), MainCommand::Previous);
  EXPECT_EQ(commandOf({HeldWith::Ctrl, Key::PageDown}), MainCommand::Next);
  EXPECT_EQ(commandOf({HeldWith::Ctrl, Key::Delete}), MainCommand::Delete);
  EXPECT_EQ(commandOf({HeldWith::CtrlShift, Key::Delete}), MainCommand::FastDelete);
  EXPECT_EQ(commandOf({HeldWith::Nothing, Key::F6}), MainCommand::Roll);
  EXPECT_EQ(commandOf({HeldWith::Ctrl, Key::F}), MainCommand::Find);
  EXPECT_EQ(commandOf({HeldWith::Nothing, Key::F4}), MainCommand::WhatComes);
  EXPECT_EQ(commandOf({HeldWith::Nothing, Key::F10}), MainCommand::OpenMenu);
  EXPECT_EQ(commandOf({HeldWith::Nothing, Key::F7}), MainCommand::Snooze);
  EXPECT_EQ(commandOf({HeldWith::Shift, Key::F7}), MainCommand::SnoozeMenu);
  EXPECT_EQ(commandOf({HeldWith::Nothing, Key::F8}), MainCommand::Done);
}

TEST(MainCommands, haveNoOtherKeys) {
  EXPECT_EQ(commandOf({HeldWith::Nothing, Key::N}), std::nullopt) << "a letter";
  EXPECT_EQ(commandOf({HeldWith::Nothing, Key::Delete}), std::nullopt) << "the text's own";
  EXPECT_EQ(commandOf({HeldWith::Shift, Key::Delete}), std::nullopt) << "cuts";
  EXPECT_EQ(commandOf({HeldWith::CtrlShift, Key::S}), std::nullopt);
  EXPECT_EQ(commandOf({HeldWith::Ctrl, Key::F4}), std::nullopt);
  EXPECT_EQ(commandOf({HeldWith::Shift, Key::F8}), std::nullopt);
}

TEST(MainCommands, theirKeysAreWrittenAsOnKeyboards) {
  EXPECT_EQ(keyOf(MainCommand::Next), L"Ctrl+PgDn");
  EXPECT_EQ(keysOf(MainCommand::FastDelete), L"Ctrl+Shift+Del");
  EXPECT_EQ(keyOf(MainCommand::SnoozeMenu), L"Shift+F7");
  EXPECT_EQ(keysOf(MainCommand::SnoozeMenu), L"Shift+F7, menu key, Shift+F10");
  EXPECT_EQ(keysOf(MainCommand::TurnHalf), L"Up, Down");
}

TEST(MainCommands, thatEndAReminderAreNotForOneThatNobodyRead) {
  for (const MainCommand command :
       {MainCommand::Snooze, MainCommand::SnoozeMenu, MainCommand::Done, MainCommand::FastDelete}) {
    EXPECT_TRUE(endsReminder(command));
  }
  EXPECT_FALSE(endsReminder(MainCommand::Delete)) << "a reminder hides its button";
  EXPECT_FALSE(endsReminder(MainCommand::Next));
}

TEST(MainCommands, everyButtonHasOneOfItsOwn) {
  std::set<MainCommand> commands;
  for (const ButtonId button : kAllButtons) {
    commands.insert(commandOf(button));
    EXPECT_EQ(buttonOf(commandOf(button)), button);
  }
  EXPECT_EQ(commands.size(), kButtonCount);
  EXPECT_EQ(buttonOf(MainCommand::Find), std::nullopt);
}

class KeyCommandsTest : public Form1Test {
 protected:
  KeyCommandsTest() {
    note("a.txt", "7|30|Alpha");
    note("b.txt", "||Bravo");
    form().Form_Load();
    form().Nastepny_Load_Formy();
    settle();
  }
};

TEST_F(KeyCommandsTest, doWhatTheButtonsDo) {
  ASSERT_EQ(text(FieldId::Text1), L"a");
  form().act(MainCommand::Next);
  EXPECT_EQ(text(FieldId::Text1), L"b");
  form().act(MainCommand::Previous);
  EXPECT_EQ(text(FieldId::Text1), L"a");
  form().act(MainCommand::New);
  EXPECT_EQ(text(FieldId::Text1), L"Untiled");
  view.setText(FieldId::Text1, L"c");
  form().act(MainCommand::Save);
  EXPECT_TRUE(contentOf("c.txt"));
}

TEST_F(KeyCommandsTest, deleteAsTheBinsDo) {
  form().act(MainCommand::Delete);
  EXPECT_FALSE(contentOf("a.txt"));
  EXPECT_FALSE(view.runs(TimerId::Timer1));
  form().act(MainCommand::FastDelete);
  EXPECT_FALSE(contentOf("b.txt"));
  EXPECT_TRUE(view.runs(TimerId::Timer1)) << "it puts the window away";
}

TEST_F(KeyCommandsTest, rollTheNotesAndThenLeaveThemAlone) {
  form().act(MainCommand::Roll);
  settle();
  ASSERT_TRUE(form().window().fieldsHidden());
  form().act(MainCommand::Delete);
  form().act(MainCommand::Next);
  EXPECT_TRUE(contentOf("a.txt"));
  EXPECT_EQ(text(FieldId::Text1), L"a");
  form().act(MainCommand::Roll);
  settle();
  EXPECT_FALSE(form().window().fieldsHidden());
}

TEST_F(KeyCommandsTest, openTheOtherWindows) {
  form().act(MainCommand::Find);
  form().act(MainCommand::WhatComes);
  form().act(MainCommand::OpenMenu);
  EXPECT_EQ(others.finds, 1);
  EXPECT_EQ(others.whatComes, 1);
  const Rect place = view.place();
  EXPECT_EQ(others.menuPlaces,
            (std::vector<Point>{{place.x + place.width / 2, place.y + place.height / 2}}));
}

TEST_F(KeyCommandsTest, turnTheHalfOfTheDayOnlyWhereThereIsOne) {
  EXPECT_TRUE(form().takes(MainCommand::TurnHalf));
  form().act(MainCommand::TurnHalf);
  EXPECT_EQ(text(FieldId::AmPmLabel), L"PM");
}

TEST_F(KeyCommandsTest, turnNoHalfThatIsLockedOrNotSeen) {
  form().act(MainCommand::Roll);
  settle();
  EXPECT_FALSE(form().takes(MainCommand::TurnHalf));
  form().act(MainCommand::Roll);
  settle();
  EXPECT_TRUE(form().takes(MainCommand::TurnHalf));
  form().closeByKeyboard();
  settle();
  clock.time = {2026, 11, 21, 6, 7, 30, 1};
  form().timerTick(TimerId::Spr1m);
  settle();
  ASSERT_TRUE(form().showsReminder());
  EXPECT_FALSE(form().takes(MainCommand::TurnHalf)) << "a reminder is not written on";
  EXPECT_TRUE(form().takes(MainCommand::Done));
}

TEST_F(KeyCommandsTest, meanNothingOfAReminderWithoutOne) {
  for (const MainCommand command :
       {MainCommand::Snooze, MainCommand::SnoozeMenu, MainCommand::Done}) {
    EXPECT_FALSE(form().takes(command));
  }
  for (const MainCommand command : {MainCommand::New, MainCommand::Find, MainCommand::OpenMenu}) {
    EXPECT_TRUE(form().takes(command));
  }
}

TEST_F(Form1Test, inTwentyFourHoursTheKeysTurnNoHalfOfTheDay) {
  store.values[L"Sys/AmPm"] = L"False";
  form().Form_Load();
  EXPECT_FALSE(form().takes(MainCommand::TurnHalf));
}

}  // namespace
}  // namespace kalvora
