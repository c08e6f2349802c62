#include "notes/LiveDraft.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "unit/notes/SafetyCopiesFixture.h"

namespace kalvora {
namespace {

namespace fs = std::filesystem;

class LiveDraftTest : public SafetyCopiesFixture {
 protected:
  LiveDraftTest() {
    shown_ = {NoteKind::Fast, L"Gym", ClockFields{L"7", L"30", L"Mat"}, {}, {}};
    give("Gym.txt", "7|30|Mat");
    draft_.begin();
  }
  void type(std::wstring_view text) { std::get<ClockFields>(shown_.fields).content = text; }
  void keep(std::wstring_view text) {
    type(text);
    draft_.keep();
  }
  /// The contents of all drafts, the newest first.
  std::vector<std::string> kept() const {
    std::vector<std::string> contents;
    for (const SafetyCopy& copy : copies_.newestFirst()) {
      if (copy.isDraft) contents.push_back(copies_.read(copy));
    }
    return contents;
  }
  using Contents = std::vector<std::string>;

  TypedNote shown_;
  Windows1252 codePage_;
  LiveDraft draft_{notes_, files_, codePage_, copies_, [this] { return shown_; }};
};

TEST_F(LiveDraftTest, whatIsTypedIsKept) {
  keep(L"Mat and towel");
  EXPECT_EQ(kept(), Contents{"7|30|Mat and towel"});
}

TEST_F(LiveDraftTest, untouchedFieldsNeedNone) {
  give("Gym.txt", "another program wrote this meanwhile");
  draft_.keep();
  EXPECT_FALSE(fs::exists(backup_));
}

TEST_F(LiveDraftTest, oneEditingHasOneFile) {
  keep(L"M");
  ++clock_.time.minute;
  keep(L"Mi");
  shown_.name = L"Milk";
  keep(L"Mil");
  EXPECT_EQ(kept(), Contents{"7|30|Mil"});
}

TEST_F(LiveDraftTest, theNextEditingHasItsOwn) {
  keep(L"one");
  draft_.begin();
  ++clock_.time.minute;
  keep(L"two");
  EXPECT_EQ(kept(), (Contents{"7|30|two", "7|30|one"}));
}

TEST_F(LiveDraftTest, whatTheUserTakesBackIsNotKept) {
  keep(L"Mat and towel");
  keep(L"Mat");
  EXPECT_EQ(kept(), Contents{});
}

TEST_F(LiveDraftTest, whatStandsInTheNoteItselfNeedsNone) {
  keep(L"Mat and towel");
  give("Gym.txt", "7|30|Mat and towel, and water");
  keep(L"Mat and towel, and water");
  EXPECT_EQ(kept(), Contents{});
}

TEST_F(LiveDraftTest, whatTheNewestDraftOfTheNoteHoldsIsNotKeptTwice) {
  keep(L"one");
  type(L"Mat");
  draft_.begin();
  ++clock_.time.minute;
  keep(L"one");
  EXPECT_EQ(kept(), Contents{"7|30|one"});
  keep(L"one and two");
  EXPECT_EQ(kept(), (Contents{"7|30|one and two", "7|30|one"}));
}

TEST_F(LiveDraftTest, whatIsTypedAgainIsAsYoungAsThat) {
  keep(L"one");
  type(L"Mat");
  draft_.begin();
  const auto leaveOthers = [this](int count) {
    for (int i = 0; i < count; ++i) {
      clock_.time.minute += i % 10 == 9 ? 1 : 0;
      const Draft other{NoteKind::Fast, L"Other", std::to_string(clock_.time.minute + i), true};
      copies_.leaveDraft(copies_.keepDraft(other, {}));
    }
  };
  leaveOthers(199);
  keep(L"one");
  draft_.begin();
  leaveOthers(20);
  EXPECT_EQ(std::ranges::count(kept(), "7|30|one"), 1) << "it was the oldest of them";
}

TEST_F(LiveDraftTest, whatAnotherWindowIsTypingIsNoPlaceForIt) {
  LiveDraft other(notes_, files_, codePage_, copies_, [this] { return shown_; });
  other.begin();
  keep(L"one");
  other.keep();
  EXPECT_EQ(kept(), (Contents{"7|30|one", "7|30|one"}));
  keep(L"one and two");
  EXPECT_EQ(kept(), (Contents{"7|30|one", "7|30|one and two"}));
}

TEST_F(LiveDraftTest, aSaveTakesTheDraftAway) {
  keep(L"Mat and towel");
  draft_.saved();
  draft_.keep();
  EXPECT_EQ(kept(), Contents{});
}

TEST_F(LiveDraftTest, aSaveTakesAnEqualDraftOfAnEarlierEditingAway) {
  keep(L"Mat and towel");
  type(L"Mat");
  draft_.begin();
  type(L"Mat and towel");
  draft_.saved();
  EXPECT_EQ(kept(), Contents{});
}

TEST_F(LiveDraftTest, onAFullDiskOlderDraftsMakeRoomForWhatIsTypedButNoCopyDoes) {
  keep(L"what was typed at another time");
  draft_.begin();
  ++clock_.time.minute;
  giveAndRemove("Old.txt", std::string(30, 'x'));
  disk_.room = 5;
  keep(L"Mat and towel");
  EXPECT_EQ(kept(), Contents{"7|30|Mat and towel"});
  draft_.begin();
  disk_.room = 0;
  keep(std::wstring(30, L'y'));
  EXPECT_EQ(kept(), Contents{"7|30|Mat and towel"}) << "it went in vain, and came back";
  EXPECT_EQ(copies_.newestFirst().size(), 2U) << "the copy and the draft";
}

TEST_F(LiveDraftTest, theBytesOfWhatIsNotChangedStayAsInASave) {
  give("Gym.txt", "7|30|one\ntwo");
  shown_.storedContent = "one\ntwo";
  type(L"one\ntwo");
  draft_.begin();
  keep(L"one\r\ntwo");
  EXPECT_EQ(kept(), Contents{}) << "a save would change nothing";
  keep(L"one\r\ntwo\r\nthree");
  EXPECT_EQ(kept(), Contents{"7|30|one\ntwo\r\nthree"});
}

TEST_F(LiveDraftTest, aSaveThatCouldNotStoreEveryLetterLeavesTheDraft) {
  type(L"\u65E5");
  draft_.saved();
  EXPECT_EQ(kept(), Contents{"7|30|\xEF\xBB\xBF\xE6\x97\xA5"});
}

TEST_F(LiveDraftTest, aDraftThatVanishedIsMadeAnew) {
  keep(L"Mat and towel");
  fs::remove_all(backup_);
  keep(L"Mat and towel");
  EXPECT_EQ(kept(), Contents{"7|30|Mat and towel"});
}

TEST_F(LiveDraftTest, whereNoneCanBeMadeTheCopiesHearOfItAndTheNextTryCounts) {
  disk_.refuses = true;
  keep(L"Mat and towel");
  EXPECT_TRUE(copies_.takeDraftFault().starts_with(L"full: "));
  disk_.refuses = false;
  keep(L"Mat and towel");
  EXPECT_EQ(copies_.takeDraftFault(), L"");
  EXPECT_EQ(kept(), Contents{"7|30|Mat and towel"});
}

TEST_F(LiveDraftTest, oneIsMissingUntilWhatIsTypedStandsSomewhere) {
  keep(L"Mat and towel");
  disk_.refuses = true;
  const auto miss = [this] {
    keep(L"Mat and towel, and water");
    EXPECT_TRUE(draft_.isMissing());
    EXPECT_NE(copies_.takeDraftFault(), L"") << "each time anew";
  };
  miss();
  keep(L"Mat and towel");
  EXPECT_FALSE(draft_.isMissing()) << "it stands in the draft";
  miss();
  give("Gym.txt", "7|30|Mat and towel, and water");
  keep(L"Mat and towel, and water");
  EXPECT_FALSE(draft_.isMissing()) << "it stands in the note";
  give("Gym.txt", "7|30|Mat");
  miss();
  keep(L"Mat");
  EXPECT_FALSE(draft_.isMissing()) << "it was taken back";
}

TEST_F(LiveDraftTest, whereNothingIsOnShowNothingIsKept) {
  draft_.end();
  keep(L"Mat and towel");
  draft_.saved();
  EXPECT_FALSE(fs::exists(backup_));
}

TEST_F(LiveDraftTest, aNoteThatCannotBeReadHindersNoDraft) {
  struct Locked : StandardFileSystem {
    std::string read(const fs::path& file, std::size_t /*limit*/) const override {
      throw FileError(L"locked: ", file);
    }
  } locked;
  LiveDraft draft(notes_, locked, codePage_, copies_, [this] { return shown_; });
  draft.begin();
  give("Gym.txt", "7|30|Mat and towe_");
  type(L"Mat and towel");
  draft.keep();
  EXPECT_EQ(kept(), Contents{"7|30|Mat and towel"});
}

}  // namespace
}  // namespace kalvora
