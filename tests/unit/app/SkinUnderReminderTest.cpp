#include <gmock/gmock.h>

#include "ReminderFixture.h"

namespace kalvora {
namespace {

using testing::SizeIs;

/// A reminder on show in a window of 60 × 40 pixels (20 rolled up) at (300, 200), beside skins
/// whose windows are larger and smaller. The first pixels of a full outline are cut away in each.
class SkinsUnderReminder : public Form1Reminders {
 protected:
  SkinsUnderReminder() {
    addSkin("Two", 120, 90, 30);
    addSkin("Wee", 40, 24, 10);
    store.values[L"Graph/Window_X"] = L"300";
    store.values[L"Graph/Window_Y"] = L"200";
    note("Gym.txt", "6|5|Run");
  }

  /// The outline of the whole window begins at 3, that of the rolled-up one at 5.
  void addSkin(const std::string& name, int width, int height, int rolledHeight) {
    writeSmallSkin(folder, "skins/" + name);
    folder.write("skins/" + name + "/shapem.bmp", cornerless(width, height, 3).bytes());
    folder.write("skins/" + name + "/shapet.bmp", cornerless(width, rolledHeight, 5).bytes());
  }
  static BmpBuilder cornerless(int width, int height, int corner) {
    BmpBuilder shape(width + 1, height, 24, kInk);
    for (int x = 0; x < corner; ++x) shape.set(x, 0, kWhite);
    return shape;
  }

  void remind() {
    form().Form_Load();
    minuteCheckAt(6, 5);
  }
  /// "One", "Two", "Wee" by name.
  void wear(std::int16_t skin) { form().optionsHost().wearSkin(skin); }
  int outline() const { return view.shape ? view.shape->front().left : 0; }
};

TEST_F(SkinsUnderReminder, theWindowTakesTheSizeOfTheSkinAndTheReminderGoesOn) {
  remind();
  settle();
  const std::ptrdiff_t before = timesBroughtOut();
  wear(1);
  EXPECT_EQ(view.rect, (Rect{300, 200, 120, 90}));
  EXPECT_EQ(outline(), 3);
  expectReminder(L"Gym", L"Run");
  wear(2);
  EXPECT_EQ(view.rect, (Rect{300, 200, 40, 24}));
  expectReminder(L"Gym", L"Run");
  EXPECT_EQ(timesBroughtOut(), before) << "it does not come out anew";
  click(ButtonId::Buttons_Close);
  tick(TimerId::Timer1);
  EXPECT_EQ(view.rect.x, 310) << "a step from where it stood";
  settle();
  EXPECT_FALSE(view.visible);
  expectFields(Editing::Allowed);
  expectMainButtons(true);
}

TEST_F(SkinsUnderReminder, aRolledUpWindowStaysRolledUp) {
  store.values[L"Graph/WysRZF1"] = L"False";
  remind();
  settle();
  wear(1);
  EXPECT_EQ(view.rect, (Rect{300, 200, 120, 30}));
  EXPECT_EQ(outline(), 5);
  EXPECT_EQ(view.at(FieldId::Text2).visibility, Visibility::Hidden);
  click(ButtonId::Buttons_Down);
  settle();
  EXPECT_EQ(view.rect, (Rect{300, 200, 120, 90}));
  EXPECT_EQ(outline(), 3);
}

TEST_F(SkinsUnderReminder, aSlideGoesOnToItsEnd) {
  for (const wchar_t* resizes : {L"True", L"False"}) {
    store.values[L"Graph/ZRF1"] = resizes;
    for (const std::int16_t skin : {std::int16_t{1}, std::int16_t{2}}) {
      store.values[L"Sys/Last_skin"] = L"0";
      Form1 sliding(ports());
      setTime(6, 5, 1);
      sliding.Form_Load();
      ASSERT_TRUE(reminderOnShow());
      for (int i = 0; i < 3; ++i) sliding.timerTick(TimerId::Timer1);
      sliding.optionsHost().wearSkin(skin);
      EXPECT_TRUE(view.runs(TimerId::Timer1));
      while (view.runs(TimerId::Timer1)) sliding.timerTick(TimerId::Timer1);
      EXPECT_EQ(view.rect, skin == 1 ? (Rect{300, 200, 120, 90}) : (Rect{300, 200, 40, 24}));
      EXPECT_EQ(outline(), 3);
      EXPECT_EQ(putAwayAll(sliding), Titles{L"Gym"});
    }
  }
}

TEST_F(SkinsUnderReminder, aRollGoesOnToItsEnd) {
  store.values[L"Graph/Win2_Jump"] = L"4";
  remind();
  settle();
  click(ButtonId::Buttons_Down);
  tick(TimerId::Timer2, 2);
  wear(1);
  EXPECT_EQ(view.rect, (Rect{300, 200, 120, 32})) << "as much of the notes as before";
  EXPECT_EQ(outline(), 3) << "the notes are to be seen until the end";
  settle();
  EXPECT_EQ(view.rect, (Rect{300, 200, 120, 30}));
  EXPECT_EQ(outline(), 5);
}

TEST_F(SkinsUnderReminder, aWindowNearTheRightEdgeStaysFlushWithIt) {
  store.values[L"Graph/Window_X"] = L"964";
  remind();
  settle();
  ASSERT_EQ(view.rect.right(), 1024);
  wear(1);
  EXPECT_EQ(view.rect, (Rect{904, 200, 120, 90}));
  wear(2);
  EXPECT_EQ(view.rect, (Rect{984, 200, 40, 24}));
}

TEST_F(SkinsUnderReminder, aSmallSkinOfAWindowPartlyOffTheScreenIsNotLost) {
  store.values[L"Graph/Window_X"] = L"-50";
  remind();
  settle();
  ASSERT_EQ(view.rect.x, -50);
  wear(2);
  EXPECT_EQ(view.rect, (Rect{984, 372, 40, 24}));
  EXPECT_THAT(view.errors, SizeIs(1));
}

TEST_F(SkinsUnderReminder, aWindowThatIsAwayStaysAway) {
  form().Form_Load();
  setTime(6, 5, 30);
  form().Update_All_Al();
  wear(1);
  EXPECT_FALSE(view.visible);
  EXPECT_EQ(view.rect, (Rect{0, 0, 0, 0}));
  openWindow();
  EXPECT_EQ(view.rect, (Rect{300, 200, 120, 90}));
  expectReminder(L"Gym", L"Run");
}

}  // namespace
}  // namespace kalvora
