// A note that is left is saved as it was typed, by each way of leaving it.

#include "KeepTypingFixture.h"

namespace kalvora {
namespace {

class KeepTyping : public KeepTypingFixture, public testing::WithParamInterface<WayOfLeaving> {
 protected:
  void SetUp() override { start(); }
  void leave() { GetParam().leave(*this); }
  bool attended() const { return GetParam().attended; }
  /// That nothing happened, and the user can go on typing.
  void expectStayed(std::wstring_view title, std::wstring_view typed) {
    EXPECT_EQ(text(FieldId::Text1), title);
    EXPECT_EQ(text(FieldId::Text2), typed);
    EXPECT_TRUE(view.visible);
    EXPECT_FALSE(view.unloaded);
    EXPECT_EQ(others.unloads, 0);
  }
};

INSTANTIATE_TEST_SUITE_P(Ways, KeepTyping, testing::ValuesIn(waysOfLeaving()),
                         [](const auto& way) { return std::string(way.param.name); });

TEST_P(KeepTyping, aChangedTextIsSavedWithAllOtherFieldsAsTheyWere) {
  typeText(L"Mat and towel");
  leave();
  EXPECT_EQ(contentOf("Gym.tx2"), "07|5|0|1|0|0|0|1|0|Mat and towel");
  EXPECT_EQ(noteNames(), (std::vector<std::string>{"Before.txt", "Gym.tx2", "Zoo.txt"}));
  EXPECT_EQ(safetyCopies(), std::vector<std::string>{std::string(kGym)});
  EXPECT_EQ(draftCount(), 0U);
  EXPECT_TRUE(view.questions.empty());
  EXPECT_TRUE(reporter.messages.empty());
}

TEST_P(KeepTyping, aChangedTimeIsSaved) {
  typeTime(L"8:15");
  leave();
  EXPECT_EQ(contentOf("Gym.tx2"), "8|15|0|1|0|0|0|1|0|Mat");
}

TEST_P(KeepTyping, aDraftOfItGoes) {
  typeText(L"Mat and towel");
  form().keepTyped();
  ASSERT_EQ(draftCount(), 1U);
  leave();
  EXPECT_EQ(draftCount(), 0U);
}

TEST_P(KeepTyping, anUnchangedNoteIsLeftAlone) {
  const auto file = folder.path() / "notes" / "Gym.tx2";
  const auto before = std::filesystem::last_write_time(file) - std::chrono::hours(1);
  std::filesystem::last_write_time(file, before);
  typeText(L"Mat and towel");
  typeText(L"Mat");
  leave();
  EXPECT_EQ(std::filesystem::last_write_time(file), before);
  EXPECT_TRUE(safetyCopies().empty());
}

TEST_P(KeepTyping, aRenamedNoteIsRenamedAndItsFollowersWithIt) {
  typeTitle(L"Sport");
  leave();
  EXPECT_EQ(noteNames(), (std::vector<std::string>{"Before.txt", "Sport.tx2", "Zoo.txt"}));
  EXPECT_EQ(contentOf("Sport.tx2"), kGym);
  EXPECT_EQ(follower.heard.back(), L"Gym.tx2 > Sport.tx2");
  EXPECT_EQ(safetyCopies(), std::vector<std::string>{std::string(kGym)});
}

TEST_P(KeepTyping, anotherNoteOfThatNameIsNeverWrittenOver) {
  note("Yoga.tx2", "|||||||||breath");
  typeTitle(L"Yoga");
  typeText(L"Mat and towel");
  view.answer = Answer::Cancel;
  leave();
  EXPECT_EQ(contentOf("Yoga.tx2"), "|||||||||breath");
  if (attended()) {
    expectStayed(L"Yoga", L"Mat and towel");
    ASSERT_EQ(view.questions.size(), 1U);
    EXPECT_EQ(view.questions[0].title, L"Not saved");
    EXPECT_TRUE(view.questions[0].text.starts_with(L"There is already a note of this name: Yoga"));
    EXPECT_EQ(contentOf("Gym.tx2"), kGym);
    EXPECT_EQ(draftCount(), 1U);
  } else {
    EXPECT_TRUE(view.questions.empty());
    EXPECT_EQ(contentOf("Yoga (2).tx2"), "07|5|0|1|0|0|0|1|0|Mat and towel");
    EXPECT_EQ(contentOf("Gym.tx2"), std::nullopt);
  }
}

TEST_P(KeepTyping, aNoteWithoutANameKeepsItsOldOneOrAsks) {
  typeTitle(L"");
  typeText(L"Mat and towel");
  view.answer = Answer::Cancel;
  leave();
  if (attended()) {
    expectStayed(L"", L"Mat and towel");
    EXPECT_EQ(contentOf("Gym.tx2"), kGym);
  } else {
    EXPECT_EQ(contentOf("Gym.tx2"), "07|5|0|1|0|0|0|1|0|Mat and towel");
  }
}

TEST_P(KeepTyping, lettersThatCannotBeStoredAreAskedAboutOrBecomeADraft) {
  typeText(L"Mat \x4E2D");
  view.answer = Answer::Cancel;
  leave();
  EXPECT_EQ(contentOf("Gym.tx2"), kGym);
  if (attended()) {
    expectStayed(L"Gym", L"Mat \x4E2D");
    EXPECT_EQ(view.questions.size(), 1U);
  } else {
    EXPECT_TRUE(view.questions.empty());
    EXPECT_EQ(draftCount(), 1U);
  }
}

TEST_P(KeepTyping, lettersThatMayBeReplacedAreAndTheDraftKeepsThem) {
  typeText(L"Mat \x4E2D");
  leave();
  EXPECT_EQ(contentOf("Gym.tx2"), attended() ? "07|5|0|1|0|0|0|1|0|Mat ?" : kGym);
  EXPECT_EQ(view.questions.size(), attended() ? 1U : 0U);
  EXPECT_EQ(draftCount(), 1U);
}

TEST_P(KeepTyping, aTimeThatIsNoneIsToldOrBecomesADraft) {
  typeTime(L"8:15:20");
  view.answer = Answer::Cancel;
  leave();
  EXPECT_EQ(contentOf("Gym.tx2"), kGym);
  EXPECT_EQ(draftCount(), 1U);
  if (attended()) expectStayed(L"Gym", L"Mat");
}

TEST_P(KeepTyping, whatTheDiskDoesNotTakeIsADraftAndMayBeLeft) {
  typeText(L"Mat and towel");
  writer.refusesToWrite = true;
  view.answer = Answer::Cancel;
  leave();
  EXPECT_EQ(contentOf("Gym.tx2"), kGym);
  EXPECT_EQ(draftCount(), 1U);
  EXPECT_TRUE(reporter.messages.empty());
  if (!attended()) return;
  expectStayed(L"Gym", L"Mat and towel");
  view.answer = Answer::Ok;
  leave();
  EXPECT_EQ(view.questions.size(), 2U);
  EXPECT_TRUE(!view.visible || view.unloaded || text(FieldId::Text2) != L"Mat and towel");
  EXPECT_EQ(draftCount(), 1U);
}

TEST_P(KeepTyping, whatSomebodyElseWroteMeanwhileStaysWhereNothingWasTypedAndIsASafetyCopy) {
  typeText(L"Mat and towel");
  note("Gym.tx2", "7|6|1|1|1|1|1|1|1|of somebody else");
  leave();
  EXPECT_EQ(contentOf("Gym.tx2"), "7|6|1|1|1|1|1|1|1|Mat and towel");
  EXPECT_EQ(safetyCopies(), std::vector<std::string>{"7|6|1|1|1|1|1|1|1|of somebody else"});
}

TEST_P(KeepTyping, whatSomebodyElseDeletedMeanwhileIsThereAgain) {
  typeText(L"Mat and towel");
  std::filesystem::remove(folder.path() / "notes" / "Gym.tx2");
  leave();
  EXPECT_EQ(contentOf("Gym.tx2"), "07|5|0|1|0|0|0|1|0|Mat and towel");
}

}  // namespace
}  // namespace kalvora
