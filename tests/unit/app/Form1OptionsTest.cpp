#include <gmock/gmock.h>

#include "Form1Fixture.h"
#include "fakes/FakeOptionsView.h"
#include "fakes/FakeOtherWindows.h"

namespace kalvora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The main window, out on the screen and with the note area rolled down, beside the options.
class Form1Options : public Form1Test {
 protected:
  Form1Options() {
    store.values[L"Graph/Window_X"] = L"300";
    store.values[L"Graph/Window_Y"] = L"200";
    form().attach(others);
    form().Form_Load();
    form().pichook_MouseMove(515);
    settle();
  }

  void dragTo(int x, int y) {
    view.onDrag = [x, y](FakeForm1View& dragged) {
      dragged.rect.x = x;
      dragged.rect.y = y;
    };
    form().Form_MouseDown(MouseButton::Left, {59, 39});
    view.onDrag = nullptr;
  }

  void applyPosition(std::wstring_view left, std::wstring_view top) {
    FakeOptionsView dialog;
    form().optionsHost().Options_to_form(dialog);
    dialog.setText({TextBox::WinPos, 0}, left);
    dialog.setText({TextBox::WinPos, 1}, top);
    form().optionsHost().Save_options_KV(dialog);
  }

  FakeOtherWindows others;
};

TEST_F(Form1Options, storeASkinOnceItIsWorn) {
  writeSmallSkin(folder, "skins/Zebra");
  store.calls.clear();
  form().optionsHost().setCurrentSkin(1);
  form().optionsHost().Load_skin_to_form();
  EXPECT_THAT(store.calls, ElementsAre(L"save Sys/Last_skin=1"));
}

TEST_F(Form1Options, doNotStoreASkinThatCannotBeWorn) {
  folder.write("skins/Zebra/main1.bmp", "no picture");
  store.calls.clear();
  form().optionsHost().setCurrentSkin(1);
  form().optionsHost().Load_skin_to_form();
  EXPECT_TRUE(view.unloaded);
  EXPECT_THAT(store.calls, IsEmpty());
}

TEST_F(Form1Options, areToldAtEachTickWhereTheWindowStands) {
  form().optionsHost().startOpt_win_pos_tim();
  view.rect.x = 321;
  view.rect.y = -4;
  tick(TimerId::Opt_win_pos_tim);
  EXPECT_THAT(others.followed, ElementsAre(Point{321, -4}));
}

TEST_F(Form1Options, areToldOfADropOnlyWhileTheySetThePosition) {
  dragTo(400, 300);
  EXPECT_THAT(others.dropped, IsEmpty());
  form().optionsHost().beginSetPosition();
  dragTo(410, 310);
  EXPECT_THAT(others.dropped, ElementsAre(Point{410, 310}));
  form().optionsHost().endSetPosition();
  dragTo(420, 320);
  EXPECT_EQ(others.dropped.size(), 1U);
}

TEST_F(Form1Options, areToldWhereADroppedWindowSnappedTo) {
  form().optionsHost().beginSetPosition();
  dragTo(10, 310);
  EXPECT_THAT(others.dropped, ElementsAre(Point{0, 310}));
}

TEST_F(Form1Options, moveTheWindowToStayWhenItRolls) {
  applyPosition(L"500", L"400");
  EXPECT_EQ(view.rect, (Rect{500, 400, 60, 40}));
  click(ButtonId::Buttons_Down);
  settle();
  EXPECT_EQ(view.rect, (Rect{500, 400, 60, 20}));
}

TEST_F(Form1Options, moveTheWindowToSlideOutFromItsNewPlace) {
  applyPosition(L"500", L"400");
  form().pichook_MouseMove(515);
  tick(TimerId::Timer1);
  EXPECT_EQ(view.rect.y, 400);
  settle();
  EXPECT_EQ(view.rect.y, 400);
}

}  // namespace
}  // namespace kalvora
