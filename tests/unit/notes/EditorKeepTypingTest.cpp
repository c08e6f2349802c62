// A page of the note editor that is left is saved as it was typed, by each way of leaving it.

#include <functional>

#include "unit/notes/EditorFixture.h"

namespace kalvora {
namespace {

class EditorUser : public EditorFixture {
 public:
  static constexpr std::string_view kGym = "7|5|0|1|0|0|0|1|0|Mat";
  static constexpr std::string_view kTyped = "7|5|0|1|0|0|0|1|0|Mat and towel";

  EditorUser() {
    host_.keeps = true;
    give(L"Gym.tx2", std::string(kGym));
    give(L"Yoga.tx2", "|||||||||breath");
    give(L"Pills.tx1", "8||Two");
    editor_.tbsOptions_Click(NoteKind::Weekly);
    pick(NoteKind::Weekly, L"Gym");
  }

  void typeText(const std::wstring& typed) {
    view_.at(contentBox(NoteKind::Weekly)).text = typed;
    editor_.fieldChanged();
  }
  void typeName(const std::wstring& typed) { type(nameBox(NoteKind::Weekly), typed); }
  std::size_t draftCount() const {
    return static_cast<std::size_t>(
        std::ranges::count_if(copies_.newestFirst(), &SafetyCopy::isDraft));
  }
  std::optional<std::string> bytesOf(const std::wstring& file) const {
    const auto found = files_.content.find(file);
    return found == files_.content.end() ? std::nullopt : std::optional(found->second);
  }

  using EditorFixture::editor_;
  using EditorFixture::pick;
};

struct WayToLeaveAPage {
  const char* name;
  bool attended;  // a question can be asked
  std::function<void(EditorUser&)> leave;
};

void PrintTo(const WayToLeaveAPage& way, std::ostream* out) {
  *out << way.name;
}

const WayToLeaveAPage kWays[] = {
    {"AnotherName", true, [](EditorUser& user) { user.pick(NoteKind::Weekly, L"Yoga"); }},
    {"WhatComes", true, [](EditorUser& user) { user.editor_.showNote(NoteKind::Weekly, L"Yoga"); }},
    {"WhatComesOfAnotherKind", true,
     [](EditorUser& user) { user.editor_.showNote(NoteKind::Daily, L"Pills"); }},
    {"AnotherPage", true,
     [](EditorUser& user) { user.editor_.tbsOptions_Click(NoteKind::Yearly); }},
    {"CtrlTab", true,
     [](EditorUser& user) {
       user.editor_.Form_KeyDown(All_Notes_frm::kTabKey, HeldKeys::CtrlAlone);
     }},
    {"New", true, [](EditorUser& user) { user.editor_.cmdNew(NoteKind::Weekly); }},
    {"Close", true, [](EditorUser& user) { user.editor_.cmdOK(); }},
    {"Exit", true, [](EditorUser& user) { user.editor_.leave(); }},
    {"SessionEnds", false, [](EditorUser& user) { user.editor_.saveQuietly(); }},
};

class EditorKeepTyping : public EditorUser, public testing::WithParamInterface<WayToLeaveAPage> {
 protected:
  void leave() { GetParam().leave(*this); }
  bool attended() const { return GetParam().attended; }
  void expectStayed(const std::wstring& typedName, const std::wstring& typed) {
    EXPECT_EQ(name(NoteKind::Weekly), typedName);
    EXPECT_EQ(text(contentBox(NoteKind::Weekly)), typed);
    EXPECT_EQ(loadedNote(NoteKind::Weekly), L"Gym");
    EXPECT_EQ(view_.page, NoteKind::Weekly);
    EXPECT_EQ(view_.unloads, 0);
    EXPECT_TRUE(host_.calls.empty());
  }
};

INSTANTIATE_TEST_SUITE_P(Ways, EditorKeepTyping, testing::ValuesIn(kWays),
                         [](const auto& way) { return std::string(way.param.name); });

TEST_P(EditorKeepTyping, aChangedPageIsSaved) {
  typeText(L"Mat and towel");
  leave();
  EXPECT_EQ(bytesOf(L"Gym.tx2"), kTyped);
  EXPECT_TRUE(view_.questions.empty());
  EXPECT_EQ(draftCount(), 0U);
}

TEST_P(EditorKeepTyping, anUnchangedPageIsNot) {
  files_.steps.clear();
  typeText(L"Mat and towel");
  typeText(L"Mat");
  leave();
  EXPECT_TRUE(files_.steps.empty());
}

TEST_P(EditorKeepTyping, aRenamedNoteIsRenamed) {
  typeName(L"Aikido");
  leave();
  EXPECT_EQ(bytesOf(L"Aikido.tx2"), kGym);
  EXPECT_EQ(bytesOf(L"Gym.tx2"), std::nullopt);
  EXPECT_EQ(names(NoteKind::Weekly), (std::vector<std::wstring>{L"Aikido", L"Yoga"}));
}

TEST_P(EditorKeepTyping, anotherNoteOfThatNameIsNeverWrittenOver) {
  typeName(L"Yoga");
  typeText(L"Mat and towel");
  view_.answer = false;
  leave();
  EXPECT_EQ(bytesOf(L"Yoga.tx2"), "|||||||||breath");
  if (attended()) {
    expectStayed(L"Yoga", L"Mat and towel");
    EXPECT_EQ(view_.questions.size(), 1U);
    EXPECT_EQ(bytesOf(L"Gym.tx2"), kGym);
  } else {
    EXPECT_EQ(bytesOf(L"Yoga (2).tx2"), kTyped);
    EXPECT_EQ(bytesOf(L"Gym.tx2"), std::nullopt);
  }
}

TEST_P(EditorKeepTyping, lettersThatCannotBeStoredAreAskedAboutOrBecomeADraft) {
  typeText(L"Mat \x4E2D");
  view_.answer = false;
  leave();
  EXPECT_EQ(bytesOf(L"Gym.tx2"), kGym);
  EXPECT_EQ(view_.questions.size(), attended() ? 1U : 0U);
  if (attended()) return expectStayed(L"Gym", L"Mat \x4E2D");
  EXPECT_EQ(draftCount(), 1U);
}

TEST_P(EditorKeepTyping, lettersThatMayBeReplacedAreAndTheDraftKeepsThem) {
  typeText(L"Mat \x4E2D");
  leave();
  EXPECT_EQ(bytesOf(L"Gym.tx2"), attended() ? "7|5|0|1|0|0|0|1|0|Mat ?" : kGym);
  EXPECT_EQ(view_.questions.size(), attended() ? 1U : 0U);
  EXPECT_EQ(draftCount(), 1U);
}

TEST_P(EditorKeepTyping, anHourThatIsNoneIsToldOrBecomesADraft) {
  type({ControlArray::CzasW, 0}, L"99999");
  view_.answer = false;
  leave();
  EXPECT_EQ(bytesOf(L"Gym.tx2"), kGym);
  EXPECT_EQ(draftCount(), 1U);
  if (attended()) expectStayed(L"Gym", L"Mat");
}

TEST_P(EditorKeepTyping, whatTheDiskDoesNotTakeIsADraftAndMayBeLeft) {
  typeText(L"Mat and towel");
  files_.steps.clear();
  files_.failingStep = 1;
  leave();
  EXPECT_EQ(bytesOf(L"Gym.tx2"), kGym);
  EXPECT_EQ(view_.questions.size(), attended() ? 1U : 0U);
  EXPECT_EQ(draftCount(), 1U);
}

TEST_P(EditorKeepTyping, withoutTheWishNothingIsSaved) {
  host_.keeps = false;
  typeText(L"Mat and towel");
  leave();
  EXPECT_EQ(bytesOf(L"Gym.tx2"), kGym);
  EXPECT_TRUE(view_.questions.empty());
}

class EditorKeepTypingNotes : public EditorUser {};

TEST_F(EditorKeepTypingNotes, aNewPageIsCalledByItsFirstWordsUnlessItIsEmpty) {
  editor_.cmdNew(NoteKind::Weekly);
  editor_.cmdNew(NoteKind::Weekly);
  typeText(L"Shoes\r\nand socks");
  editor_.cmdNew(NoteKind::Weekly);
  EXPECT_EQ(bytesOf(L"Shoes.tx2"), "||0|0|0|0|0|0|0|Shoes\r\nand socks");
  EXPECT_EQ(names(NoteKind::Weekly), (std::vector<std::wstring>{L"Gym", L"Shoes", L"Yoga"}));
}

TEST_F(EditorKeepTypingNotes, aNoteForOneDateThatWasOnlyBegunIsNoNote) {
  editor_.tbsOptions_Click(NoteKind::Once);
  editor_.cmdNew(NoteKind::Once);
  editor_.cmdOK();
  EXPECT_TRUE(names(NoteKind::Once).empty());
}

TEST_F(EditorKeepTypingNotes, norIsOneWithoutWordsWhateverItsTime) {
  editor_.tbsOptions_Click(NoteKind::Once);
  for (const bool isTyped : {false, true}) {
    editor_.cmdNew(NoteKind::Once);
    if (isTyped) view_.at({ControlArray::OnceTime, 0}).text = L"23";
    editor_.cmdSave(NoteKind::Once);
  }
  EXPECT_EQ(draftCount(), 0U);
  editor_.cmdOK();
  EXPECT_TRUE(names(NoteKind::Once).empty());
  EXPECT_EQ(draftCount(), 1U) << "the time is not lost";
}

TEST_F(EditorKeepTypingNotes, whatIsLeftUnsavedIsNotSavedLater) {
  typeName(L"Yoga");
  editor_.tbsOptions_Click(NoteKind::Daily);
  ASSERT_EQ(view_.questions.size(), 1U);
  editor_.saveQuietly();
  editor_.cmdOK();
  EXPECT_EQ(view_.questions.size(), 1U);
  EXPECT_EQ(bytesOf(L"Gym.tx2"), kGym);
  EXPECT_EQ(bytesOf(L"Yoga (2).tx2"), std::nullopt);
  EXPECT_EQ(draftCount(), 1U);
}

TEST_F(EditorKeepTypingNotes, wordsBehindABarAreReplacedIfTheUserWantsAndStayADraft) {
  typeText(L"Mat | towel");
  editor_.saveQuietly();
  EXPECT_EQ(bytesOf(L"Gym.tx2"), kGym);
  view_.answer = false;
  editor_.tbsOptions_Click(NoteKind::Daily);
  EXPECT_EQ(view_.page, NoteKind::Weekly);
  view_.answer = true;
  editor_.tbsOptions_Click(NoteKind::Daily);
  EXPECT_EQ(bytesOf(L"Gym.tx2"), "7|5|0|1|0|0|0|1|0|Mat ? towel");
  EXPECT_EQ(text(contentBox(NoteKind::Weekly)), L"Mat ? towel");
  ASSERT_EQ(draftCount(), 1U);
  view_.onChoose = [](const auto&) { return std::optional<std::size_t>(0); };
  editor_.cmdRestore();
  EXPECT_EQ(bytesOf(L"Gym (2).tx2"), "7|5|0|1|0|0|0|1|0|Mat ? towel") << "all of it can be read";
}

TEST_F(EditorKeepTypingNotes, whatAnotherProgramWroteMeanwhileStaysWhereNothingWasTyped) {
  typeText(L"Mat and towel");
  files_.content[L"Gym.tx2"] = "9|45|0|1|1|0|0|1|0|of somebody else";
  editor_.tbsOptions_Click(NoteKind::Daily);
  EXPECT_EQ(bytesOf(L"Gym.tx2"), "9|45|0|1|1|0|0|1|0|Mat and towel");
  EXPECT_EQ(text({ControlArray::CzasW, 0}), L"9");
  EXPECT_TRUE(view_.ticked({ControlArray::Check1, 2}));
}

TEST_F(EditorKeepTypingNotes, theNameThatWasClickedIsOnThePageAfterwards) {
  typeName(L"Zumba");
  pick(NoteKind::Weekly, L"Yoga");
  EXPECT_EQ(name(NoteKind::Weekly), L"Yoga");
  EXPECT_EQ(loadedNote(NoteKind::Weekly), L"Yoga");
  EXPECT_EQ(names(NoteKind::Weekly), (std::vector<std::wstring>{L"Yoga", L"Zumba"}));
}

TEST_F(EditorKeepTypingNotes, aClickOnItsOwnNameSavesItAndShowsIt) {
  typeName(L"Zumba");
  pick(NoteKind::Weekly, L"Gym");
  EXPECT_EQ(name(NoteKind::Weekly), L"Zumba");
  EXPECT_EQ(loadedNote(NoteKind::Weekly), L"Zumba");
}

TEST_F(EditorKeepTypingNotes, aDeletedNoteComesBackOnlyWhereMoreIsTyped) {
  typeText(L"Mat and towel");
  editor_.cmdDel(NoteKind::Weekly);
  editor_.cmdOK();
  EXPECT_EQ(bytesOf(L"Gym.tx2"), std::nullopt);
  editor_.Form_Load();
  editor_.tbsOptions_Click(NoteKind::Weekly);
  pick(NoteKind::Weekly, L"Yoga");
  editor_.cmdDel(NoteKind::Weekly);
  typeText(L"breath in");
  editor_.cmdOK();
  EXPECT_EQ(bytesOf(L"Yoga.tx2"), "||0|0|0|0|0|0|0|breath in");
}

TEST_F(EditorKeepTypingNotes, withoutTheWishAPageDoesNotGoWithItsNote) {
  host_.keeps = false;
  files_.content[L"Gym.tx2"] = "|||||||||of somebody else";
  files_.content[L"Zumba.tx2"] = "|||||||||new";
  editor_.noteWritten(L"Gym.tx2");
  editor_.noteWritten(L"Zumba.tx2");
  editor_.noteRenamed(L"Gym.tx2", L"Sport.tx2");
  editor_.noteDeleted(L"Gym.tx2");
  EXPECT_EQ(name(NoteKind::Weekly), L"Gym");
  EXPECT_EQ(text(contentBox(NoteKind::Weekly)), L"Mat");
  EXPECT_EQ(loadedNote(NoteKind::Weekly), L"Gym");
  EXPECT_EQ(names(NoteKind::Weekly), (std::vector<std::wstring>{L"Gym", L"Yoga"}));
}

TEST_F(EditorKeepTypingNotes, whatIsTypedInTheMainWindowIsOnThePage) {
  host_.onSaveMainWindow = [this] { files_.content[L"Yoga.tx2"] = "|||||||||breath out"; };
  pick(NoteKind::Weekly, L"Yoga");
  EXPECT_EQ(text(contentBox(NoteKind::Weekly)), L"breath out");
}

TEST_F(EditorKeepTypingNotes, thePageThatCannotBeSavedComesToTheFront) {
  editor_.tbsOptions_Click(NoteKind::Daily);
  typeName(L"Yoga");
  view_.answer = false;
  editor_.cmdOK();
  EXPECT_EQ(view_.page, NoteKind::Weekly);
  EXPECT_EQ(view_.unloads, 0);
}

}  // namespace
}  // namespace kalvora
