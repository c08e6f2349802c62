#include <gmock/gmock.h>

#include "Form1Fixture.h"
#include "fakes/FakeOptionsView.h"

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
};

/// The time of a note on show while the options change.
class TimeOnShow : public Form1Options {
 protected:
  void apply(bool twelveHours) {
    FakeOptionsView dialog;
    form().optionsHost().Options_to_form(dialog);
    dialog.setChecked({CheckBox::AmPmCheck}, twelveHours);
    form().optionsHost().Save_options_KV(dialog);
  }
  void showNote(const std::string& bytes) {
    note("a.txt", bytes);
    form().showFirstNote();
  }
  std::optional<std::string> saved() {
    click(ButtonId::Buttons_main_02);
    return contentOf("a.txt");
  }
  void typeTime(std::wstring_view time) { view.setText(FieldId::Text3, time); }
};

TEST_F(TimeOnShow, hasItsHalfOfTheDayAgainAtTheNextTickOfTheClock) {
  showNote("19|30|Supper");
  apply(true);
  EXPECT_EQ(text(FieldId::AmPmLabel), L"") << "cleared until then";
  tick(TimerId::Date_Update);
  EXPECT_EQ(text(FieldId::AmPmLabel), L"PM");
  EXPECT_EQ(saved(), "19|30|Supper");
}

TEST_F(TimeOnShow, keepsAHalfThatTheUserChoseAndDidNotSave) {
  showNote("7|30|Supper");
  form().AmPmLabel_Click();
  apply(true);
  tick(TimerId::Date_Update);
  EXPECT_EQ(text(FieldId::AmPmLabel), L"PM");
  EXPECT_EQ(saved(), "19|30|Supper");
}

TEST_F(TimeOnShow, isSavedWithItsHalfAlsoWhileTheLabelIsEmpty) {
  showNote("19|30|Supper");
  apply(true);
  EXPECT_EQ(saved(), "19|30|Supper");
}

TEST_F(TimeOnShow, hasNoHalfIn24HourTimeHoweverOftenTheClockTicks) {
  showNote("19|30|Supper");
  apply(false);
  tick(TimerId::Date_Update, 2);
  EXPECT_EQ(text(FieldId::AmPmLabel), L"");
}

TEST_F(TimeOnShow, storesTheSameHourAfter12HourTimeWasSwitchedOnAndOff) {
  for (int hour = 0; hour <= 24; ++hour) {
    const std::string bytes = std::to_string(hour) + "|05|A";
    showNote(bytes);
    apply(false);
    EXPECT_EQ(text(FieldId::Text3), std::to_wstring(hour) + L":05");
    EXPECT_EQ(saved(), bytes);
    showNote(bytes);
    apply(true);
    tick(TimerId::Date_Update);
    EXPECT_EQ(text(FieldId::Text3), std::to_wstring(hour > 12 ? hour - 12 : hour) + L":05");
    EXPECT_EQ(text(FieldId::AmPmLabel), hour > 12 ? L"PM" : L"AM");
    EXPECT_EQ(saved(), bytes);
  }
}

TEST_F(TimeOnShow, thatWasTypedAndNotSavedIsConvertedAndNothingElseIsTouched) {
  showNote("7|30|Breakfast");
  view.setText(FieldId::Text2, L"Late breakfast");
  typeTime(L"8:15");
  form().AmPmLabel_Click();
  view.setCaret(FieldId::Text3, 4);
  apply(false);
  EXPECT_EQ(text(FieldId::Text3), L"20:15");
  EXPECT_EQ(view.caret(FieldId::Text3), 5U) << "still behind the last digit";
  EXPECT_EQ(saved(), "20|15|Late breakfast");
  typeTime(L"21:00");
  view.setCaret(FieldId::Text3, 1);
  apply(true);
  EXPECT_EQ(text(FieldId::Text3), L"9:00");
  EXPECT_EQ(view.caret(FieldId::Text3), 1U);
}

TEST_F(TimeOnShow, thatIsNoneStaysAsItIs) {
  showNote("|30|A");
  for (const wchar_t* time : {L"", L":30", L"99999:30", L"::"}) {
    typeTime(time);
    for (const bool twelveHours : {false, true}) {
      EXPECT_NO_THROW(apply(twelveHours));
      EXPECT_EQ(text(FieldId::Text3), time);
    }
  }
}

TEST_F(TimeOnShow, ofAReminderIsConvertedToo) {
  note("Gym.txt", "19|30|Run");
  form().Update_All_Al();
  form().pichook_MouseMove(515);
  settle();
  clock.time.hour = 19;
  clock.time.minute = 30;
  clock.time.second = 1;
  tick(TimerId::Spr1m);
  settle();
  EXPECT_EQ(text(FieldId::Text3), L"7:30");
  apply(false);
  EXPECT_EQ(text(FieldId::Text3), L"19:30");
  EXPECT_EQ(view.at(FieldId::Text3).editing, Editing::Locked);
}

TEST_F(Form1Options, storeASkinOnceItIsWorn) {
  writeSmallSkin(folder, "skins/Zebra");
  store.calls.clear();
  form().optionsHost().wearSkin(1);
  EXPECT_THAT(store.calls, ElementsAre(L"save Sys/Last_skin=1"));
}

TEST_F(Form1Options, doNotStoreASkinThatCannotBeWorn) {
  folder.write("skins/Zebra/main1.bmp", "no picture");
  store.calls.clear();
  form().optionsHost().wearSkin(1);
  EXPECT_TRUE(view.unloaded);
  EXPECT_THAT(store.calls, IsEmpty());
}

TEST_F(Form1Options, areToldAtEachTickWhereTheWindowStands) {
  form().optionsHost().startOpt_win_pos_tim();
  view.rect.x = 321;
  view.rect.y = -4;
  tick(TimerId::Opt_win_pos_tim);
  EXPECT_THAT(others.followed, ElementsAre(Point{321, -4}));
  form().Nastepny_Load_Formy();
  settle();
  click(ButtonId::Buttons_Close);
  tick(TimerId::Opt_win_pos_tim);
  EXPECT_EQ(others.followed.size(), 1U) << "where it passes on its way out";
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
