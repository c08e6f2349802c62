#include <gtest/gtest.h>

#include <filesystem>

#include "Form1Fixture.h"

namespace kalvora {
namespace {

/// Reminders of notes that are gone, or cannot be read, when their turn comes.
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

TEST_F(VanishedReminder, isOneWhoseNameAFolderHasTaken) {
  comeTo730();
  remove("Pills.tx1");
  std::filesystem::create_directory(folder.path() / "notes" / "Pills.tx1");
  dismiss();
  EXPECT_EQ(text(FieldId::Text1), L"Pills");
  EXPECT_EQ(text(FieldId::Text2), L"This note is gone.");
}

TEST_F(VanishedReminder, orOneThatCannotBeReadIsNamedWithoutAMessage) {
  files.unreadable = L"Gym.txt";
  comeTo730();
  EXPECT_TRUE(view.visible);
  EXPECT_EQ(text(FieldId::Text1), L"Gym");
  EXPECT_TRUE(text(FieldId::Text2).starts_with(L"This note cannot be read."));
  EXPECT_EQ(text(FieldId::Text3), L"");
  EXPECT_TRUE(rowSays(RowId::lit, L" REMINDER"));
  EXPECT_EQ(view.at(FieldId::Text2).editing, Editing::Locked);
  dismiss();
  EXPECT_EQ(text(FieldId::Text2), L"Two of them");
  EXPECT_TRUE(view.errors.empty());
  EXPECT_EQ(contentOf("Gym.txt"), "7|30|Run");
}

TEST_F(VanishedReminder, orOneThatGrewTooLargeIsNamedWithoutAMessage) {
  note("Gym.txt", "7|30|" + std::string(40000, 'x'));
  comeTo730();
  EXPECT_EQ(text(FieldId::Text1), L"Gym");
  EXPECT_EQ(text(FieldId::Text2), L"This note is too large to be opened.");
  EXPECT_TRUE(view.errors.empty());
}

TEST_F(VanishedReminder, orOneThatCannotBeReadIsDeletedByAFastDelete) {
  files.unreadable = L"Gym.txt";
  comeTo730();
  click(ButtonId::Buttons_Delete);
  EXPECT_EQ(contentOf("Gym.txt"), std::nullopt);
  EXPECT_EQ(text(FieldId::Text2), L"Two of them");
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
