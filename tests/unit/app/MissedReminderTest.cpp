// Reminders that are caught up on, in the main window.

#include <utility>

#include "ReminderFixture.h"

namespace kalvora {
namespace {

class MissedReminders : public Form1Reminders {
 protected:
  MissedReminders() {
    store.values[L"Comfort/Catch_up"] = L"True";
    store.values[L"Comfort/Seen"] = L"2026-11-19 12:00";
    note("A.txt", "||first of the list");
    note("Gym.txt", "5|30|Run");
    note("Rent.tx3", "20|||Pay it");
  }

  void expectMissed(std::wstring_view title, std::wstring_view date) {
    EXPECT_TRUE(view.visible);
    EXPECT_EQ(text(FieldId::Text1), title);
    EXPECT_TRUE(titleStripReads(L" MISSED"));
    EXPECT_TRUE(rowSays(RowId::lit_czas, date));
    expectFields(Editing::Locked);
    expectMainButtons(false);
  }
};

TEST_F(MissedReminders, comeAtTheStartTheOldestFirstWithTheMomentAtWhichTheyWereDueLast) {
  form().Form_Load();
  settle();
  expectMissed(L"Rent", L"2026-11-20");
  click(ButtonId::Buttons_Close);
  settle();
  expectMissed(L"Gym", L"2026-11-21 5:30");
  click(ButtonId::Buttons_Close);
  settle();
  EXPECT_FALSE(view.visible);
  EXPECT_EQ(store.values[L"Comfort/Waiting"], L"");
  EXPECT_EQ(store.values[L"Comfort/Seen"], L"2026-11-21 06:00");
}

TEST_F(MissedReminders, comeAgainAtTheNextStartUntilTheyArePutAway) {
  form().Form_Load();
  EXPECT_EQ(store.values[L"Comfort/Waiting"],
            L"2026-11-20 00:00|Rent.tx3|2026-11-21 05:30|Gym.txt|");
  Form1 next(ports());
  next.Form_Load();
  EXPECT_EQ(putAwayAll(next), (Titles{L"Rent", L"Gym"}));
  Form1 last(ports());
  last.Form_Load();
  EXPECT_EQ(putAwayAll(last), Titles{});
}

TEST_F(MissedReminders, comeWhenTheComputerWakes) {
  store.values[L"Comfort/Seen"] = L"2026-11-21 06:00";
  form().Form_Load();
  EXPECT_FALSE(view.visible);
  note("Tea.txt", "6|20|Now");
  form().Update_All_Al();
  setTime(7, 0, 44);
  form().clockChanged();
  settle();
  expectMissed(L"Tea", L"2026-11-21 6:20");
}

TEST_F(MissedReminders, aClickOnTheTrayBeforeTheStartIsOverLosesNothing) {
  store.values[L"Comfort/Seen"] = L"2026-11-21 06:00";
  store.values[L"Comfort/Waiting"] = L"2026-11-21 05:30|Gym.txt|";
  folder.write("notes/A.txt", std::string(40000, 'x'));
  bool clicked = false;
  view.onError = [this, &clicked] {
    if (std::exchange(clicked, true)) return;
    doubleClickTray();
    form().Update_All_Al();
  };
  form().Form_Load();
  EXPECT_FALSE(view.errors.empty());
  view.onError = nullptr;
  EXPECT_EQ(putAwayAll(), Titles{L"Gym"});
}

TEST_F(MissedReminders, aClockThatIsSetBeforeTheStartIsOverLosesNothing) {
  folder.write("notes/A.txt", std::string(40000, 'x'));
  view.onError = [this] { form().clockChanged(); };
  form().Form_Load();
  EXPECT_FALSE(view.errors.empty());
  EXPECT_EQ(putAwayAll(), (Titles{L"Rent", L"Gym"}));
}

}  // namespace
}  // namespace kalvora
