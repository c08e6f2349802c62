#include <gmock/gmock.h>

#include "Form1Fixture.h"

namespace kalvora {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;

/// A window of 60 × 40 pixels, 20 rolled up, at home at (300, 200).
class StepsTooLarge : public Form1Test {
 protected:
  StepsTooLarge() {
    store.values[L"Graph/Window_X"] = L"300";
    store.values[L"Graph/Window_Y"] = L"200";
  }

  void takeSteps(const std::wstring& pixels) {
    store.values[L"Graph/Win1_Jump"] = pixels;
    store.values[L"Graph/Win2_Jump"] = pixels;
  }
  void tickGuarded(TimerId timer) {
    guard.run([&] { tick(timer); });
  }
};

TEST_F(StepsTooLarge, reachTheEndAtOnceAndAreToldWithWhatToMend) {
  takeSteps(L"2185");
  form().Form_Load();
  form().Nastepny_Load_Formy();
  tickGuarded(TimerId::Timer1);
  EXPECT_EQ(view.rect, (Rect{300, 200, 60, 40}));
  click(ButtonId::Buttons_Down);
  tickGuarded(TimerId::Timer2);
  EXPECT_EQ(view.rect.height, 20);
  ASSERT_EQ(reporter.messages.size(), 2U);
  EXPECT_THAT(reporter.messages[0], HasSubstr(L"\"Size of a step\" for the main window"));
  EXPECT_THAT(reporter.messages[1], HasSubstr(L"\"Size of a step\" for the notes"));
}

TEST_F(StepsTooLarge, doNotKeepTheNotesFromRollingDown) {
  takeSteps(L"3000");
  store.values[L"Graph/WysRZF1"] = L"False";
  store.values[L"Graph/AShT"] = L"True";
  form().Form_Load();
  form().Nastepny_Load_Formy();
  tickGuarded(TimerId::Timer1);
  tickGuarded(TimerId::Timer2);
  EXPECT_EQ(view.rect, (Rect{300, 200, 60, 40}));
}

TEST_F(StepsTooLarge, areNotYetThoseThatFit) {
  takeSteps(L"2184");
  form().Form_Load();
  form().Nastepny_Load_Formy();
  settle();
  EXPECT_THAT(reporter.messages, IsEmpty());
}

}  // namespace
}  // namespace kalvora
