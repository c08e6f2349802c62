#include <gtest/gtest.h>

#include <filesystem>

#include "Form1Fixture.h"

namespace kalvora {
namespace {

/// Reminders of notes that are gone when their turn comes.
class VanishedReminder : public Form1Test {
 protected:
  void SetUp() override {
    note("Browsing.txt", "||Nothing is due");
    note("Gym.txt", "7|30|Run");
    note("Pills.tx1", "7|30|Two of them");
    form().Form_Load();
  }

  void comeTo730() {
    clock.time.hour = 7;
    clock.time.minute = 30;
    clock.time.second = 1;
    tick(TimerId::Spr1m);
    settle();
  }

  void dismiss() {
    click(ButtonId::Buttons_Close);
    settle();
  }

  void remove(const char* name) { std::filesystem::remove(folder.path() / "notes" / name); }
};

TEST_F(VanishedReminder, namesItsNoteInsteadOfShowingTheOneBefore) {
  comeTo730();
  EXPECT_EQ(text(FieldId::Text2), L"Run");
  remove("Pills.tx1");
  dismiss();
  EXPECT_EQ(text(FieldId::Text1), L"Pills");
  EXPECT_EQ(text(FieldId::Text2), L"This note is gone.");
  EXPECT_EQ(text(FieldId::Text3), L"");
  EXPECT_TRUE(view.errors.empty());
}

TEST_F(VanishedReminder, handsTheWindowBackLikeAnyOther) {
  remove("Pills.tx1");
  comeTo730();
  dismiss();
  dismiss();
  EXPECT_EQ(text(FieldId::Text1), L"Browsing");
  EXPECT_EQ(text(FieldId::Text2), L"Nothing is due");
}

}  // namespace
}  // namespace kalvora
