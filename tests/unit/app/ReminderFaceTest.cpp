#include "ReminderFixture.h"
#include "app/ButtonNames.h"

namespace kalvora {
namespace {

constexpr Point kSnoozeMiddle{10, 25};
constexpr Point kDoneMiddle{30, 25};
constexpr Point kBeside{59, 5};

constexpr Point centreOf(const Rect& rect) {
  return {rect.x + rect.width / 2, rect.y + rect.height / 2};
}

/// Two reminders in a skin whose face has its buttons side by side above the eight others.
class ReminderFaces : public Form1Reminders {
 protected:
  ReminderFaces() {
    folder.write("skins/One/remind1.bmp", BmpBuilder(61, 40, 24, 0x667788).bytes());
    folder.write("skins/One/remind2.bmp", BmpBuilder(61, 40, 24, 0x8899AA).bytes());
    place(L"Snooze", 2);
    place(L"Done", 22);
    note("A.txt", "||first of the list");
    note("Gym.txt", "7|30|Run");
    note("Pills.tx1", "7|30|Two of them");
    store.values[L"Sounds/Snd_Hide"] = L"hide.wav";
  }
  void place(const wchar_t* section, int x) {
    skinValues.set(section, L"X", numberToText(x));
    skinValues.set(section, L"Y", L"21");
    skinValues.set(section, L"W", L"16");
    skinValues.set(section, L"H", L"8");
  }
  void remind() {
    form().Form_Load();
    minuteCheckAt(7, 30);
    settle();
    expectReminder(L"Gym", L"Run");
    sounds.played.clear();
  }
  void press(Point at, MouseButton mouse = MouseButton::Left) {
    form().Form_MouseDown(mouse, at);
    form().mouseUp(mouse, at);
  }
  void expectFace(bool visible) {
    for (const ButtonId id : kFaceButtons) {
      EXPECT_EQ(form().window().buttonVisible(id), visible);
      EXPECT_EQ(form().namedButtons()[static_cast<std::size_t>(id)].visible, visible);
    }
  }
  Pixel pixelAt(Point at) { return form().picture({60, 40}).at(at.x, at.y); }
};

TEST_F(ReminderFaces, itIsSeenExactlyWhileAReminderIsOnShow) {
  form().Form_Load();
  expectFace(false);
  minuteCheckAt(7, 30);
  expectFace(true);
  settle();
  expectFace(true);
  click(ButtonId::Buttons_Close);
  expectFace(true);
  settle();
  click(ButtonId::Buttons_Close);
  expectFace(false);
}

TEST_F(ReminderFaces, doneDoesWhatTheCloseButtonDoes) {
  remind();
  press(kDoneMiddle);
  EXPECT_EQ(sounds.played, (std::vector<std::wstring>{L"hide.wav", L"ring.wav"}));
  expectReminder(L"Pills", L"Two of them");
  settle();
  press(kDoneMiddle);
  expectBrowsing(L"A");
  settle();
  EXPECT_FALSE(view.visible);
}

TEST_F(ReminderFaces, doneIsPressedFromPressToReleaseAndNotByAReleaseBesideIt) {
  remind();
  EXPECT_EQ(pixelAt(kDoneMiddle), 0x667788U);
  form().Form_MouseDown(MouseButton::Left, kDoneMiddle);
  EXPECT_EQ(pixelAt(kDoneMiddle), 0x8899AAU);
  form().mouseMove(MouseButton::Left, kBeside);
  EXPECT_EQ(pixelAt(kDoneMiddle), 0x667788U);
  form().mouseUp(MouseButton::Left, kBeside);
  expectReminder(L"Gym", L"Run");
}

TEST_F(ReminderFaces, aReaderPressesDoneOnlyWhileItIsThere) {
  form().Form_Load();
  openWindow();
  form().pressButton(ButtonId::Done);
  settle();
  EXPECT_TRUE(view.visible);
  minuteCheckAt(7, 30);
  click(ButtonId::Buttons_Close);
  settle();
  minuteCheckAt(7, 31);
  settle();
  expectReminder(L"Gym", L"Run");
  form().pressButton(ButtonId::Done);
  expectReminder(L"Pills", L"Two of them");
}

TEST_F(ReminderFaces, oneThatIsJustComingOutIsNotPutAway) {
  remind();
  press(kDoneMiddle);
  press(kDoneMiddle);
  expectReminder(L"Pills", L"Two of them");
}

TEST_F(ReminderFaces, theSecondPressOfADoubleClickIsNotForTheOneThatCame) {
  store.values[L"Graph/Win1_Jump"] = L"0";
  remind();
  press(kDoneMiddle);
  settle();
  expectReminder(L"Pills", L"Two of them");
  form().Form_MouseDownAgain(MouseButton::Left, kDoneMiddle);
  form().mouseUp(MouseButton::Left, kDoneMiddle);
  expectReminder(L"Pills", L"Two of them");
}

TEST_F(ReminderFaces, aPressWhoseReminderWentMeanwhileDoesNothing) {
  remind();
  form().pressButton(ButtonId::Buttons_Close);
  settle();
  form().Form_MouseDown(MouseButton::Left, kDoneMiddle);
  form().pressButton(ButtonId::Buttons_Close);
  settle();
  openWindow();
  form().mouseUp(MouseButton::Left, kDoneMiddle);
  settle();
  EXPECT_TRUE(view.visible);
  expectBrowsing(L"A");
}

TEST_F(ReminderFaces, aPressUnderWhichAnotherReminderCameDoesNotPutThatAway) {
  remind();
  form().Form_MouseDown(MouseButton::Left, kDoneMiddle);
  form().pressButton(ButtonId::Buttons_Close);
  settle();
  expectReminder(L"Pills", L"Two of them");
  form().mouseUp(MouseButton::Left, kDoneMiddle);
  settle();
  expectReminder(L"Pills", L"Two of them");
  press(kDoneMiddle);
  expectBrowsing(L"A");
}

TEST_F(ReminderFaces, aSkinWithoutAFaceLeavesTheWindowToTheKeysAndTheCloseButton) {
  std::filesystem::remove(folder.path() / "skins/One/remind2.bmp");
  remind();
  expectFace(false);
  EXPECT_EQ(pixelAt(kDoneMiddle), 0x112233U);
  press(kDoneMiddle);
  expectReminder(L"Gym", L"Run");
  form().pressButton(ButtonId::Done);
  form().pressButton(ButtonId::Snooze);
  expectReminder(L"Gym", L"Run");
}

TEST_F(ReminderFaces, thatIsCoveredByAnotherNoteIsSeenAgainWithItsReminder) {
  remind();
  expectFace(true);
  form().showFirstNote();
  expectFace(false);
  form().act(MainCommand::Snooze);
  form().pressButton(ButtonId::Snooze);
  expectFace(false);
  form().act(MainCommand::Done);
  expectReminder(L"Pills", L"Two of them");
  expectFace(true);
  settle();
  form().act(MainCommand::Done);
  expectReminder(L"Gym", L"Run");
  expectFace(true);
}

/// The two buttons under the mouse alone.
class FaceButtons : public ReminderFaces {
 protected:
  FaceButtons() {
    window_.wear(loadSkin(files, skinValues, folder.path() / "skins/One"));
    window_.setMainButtonsVisible(Visible::No);
  }
  std::optional<ButtonClick> clicked(MouseButton mouse, Point from, Point to) {
    EXPECT_TRUE(bar_.mouseDown(mouse, from));
    return bar_.mouseUp(mouse, to);
  }

  SkinnedWindow window_;
  ButtonBar bar_{window_};
};

TEST_F(FaceButtons, aLeftClickMakesThemActAndARightClickAsksForTheMenuOfSnooze) {
  using Click = std::optional<ButtonClick>;
  const auto left = MouseButton::Left;
  const auto right = MouseButton::Right;
  EXPECT_EQ(clicked(left, kSnoozeMiddle, kSnoozeMiddle), (Click{{ButtonId::Snooze, left}}));
  EXPECT_EQ(clicked(left, kDoneMiddle, kDoneMiddle), (Click{{ButtonId::Done, left}}));
  EXPECT_EQ(clicked(right, kSnoozeMiddle, kSnoozeMiddle), (Click{{ButtonId::Snooze, right}}));
  EXPECT_EQ(clicked(right, kSnoozeMiddle, kBeside), std::nullopt);
  EXPECT_EQ(clicked(right, kDoneMiddle, kDoneMiddle), std::nullopt);
  EXPECT_EQ(clicked(MouseButton::Middle, kSnoozeMiddle, kSnoozeMiddle), std::nullopt);
}

TEST_F(FaceButtons, areNotPressedByTheSecondPressOfTwoWhoseFirstPressedWhatStoodThere) {
  const auto left = MouseButton::Left;
  EXPECT_TRUE(bar_.mouseDownAgain(left, kDoneMiddle));
  EXPECT_TRUE(bar_.mouseUp(left, kDoneMiddle)) << "without a first one it is a press";
  window_.setMainButtonsVisible(Visible::Yes);
  const Point save = centreOf(window_.buttonRect(ButtonId::Buttons_main_02));
  ASSERT_EQ(clicked(left, save, save), (ButtonClick{ButtonId::Buttons_main_02, left}));
  window_.setMainButtonsVisible(Visible::No);
  EXPECT_TRUE(bar_.mouseDownAgain(left, kDoneMiddle));
  EXPECT_EQ(bar_.mouseUp(left, kDoneMiddle), std::nullopt);
}

}  // namespace
}  // namespace kalvora
