// The copies of notes for one date: they outlast the time in which the user does not have any.

#include "unit/notes/SafetyCopiesFixture.h"

namespace kalvora {
namespace {

using Names = std::vector<std::wstring>;

class OnceCopies : public SafetyCopiesFixture {
 protected:
  /// As many as there may be, of the hour before.
  void fillWithCopies() {
    for (std::size_t i = 0; i < SafetyCopies::kMostCopies; ++i) {
      LocalTime when = clock_.time;
      --when.hour;
      when.minute = static_cast<int>(i / 60);
      when.second = static_cast<int>(i % 60);
      folder_.write(backup_ / (L"Gym" + momentText(when) + L".tx1"), std::to_string(i));
    }
  }
};

TEST_F(OnceCopies, areCopiesAsThoseOfEveryKind) {
  comfort_.Once_notes = true;
  giveAndRemove("Dentist.tx5", "2027|3|8|7|30|x");
  EXPECT_EQ(copyNames(), Names{L"Dentist 2027-03-08 06-29-05.tx5"});
  const auto copies = copies_.newestFirst();
  ASSERT_EQ(copies.size(), 1U);
  EXPECT_EQ(copies[0].kind, NoteKind::Once);
  EXPECT_EQ(copies[0].name, L"Dentist");
  EXPECT_EQ(copies_.read(copies[0]), "2027|3|8|7|30|x");
}

TEST_F(OnceCopies, areTheUsersOwnFilesForWhoHasNoSuchNotes) {
  comfort_.Once_notes = true;
  giveAndRemove("Dentist.tx5", "2027|3|8|7|30|x");
  comfort_.Once_notes = false;
  EXPECT_TRUE(copies_.newestFirst().empty());
  fillWithCopies();
  clock_.time.day += 1;
  giveAndRemove("Gym.tx1", "one more");
  EXPECT_EQ(copies_.newestFirst().size(), SafetyCopies::kMostCopies) << "one made room";
  comfort_.Once_notes = true;
  const auto copies = copies_.newestFirst();
  ASSERT_EQ(copies.size(), SafetyCopies::kMostCopies + 1);
  EXPECT_EQ(copies[1].name, L"Dentist");
  EXPECT_EQ(copies_.read(copies[1]), "2027|3|8|7|30|x");
}

TEST_F(OnceCopies, ofAFileWithoutANameAreNamedAsThoseOfAnUnknownFileThen) {
  giveAndRemove(".tx5", "mine");
  EXPECT_EQ(contentOf(backup_ / ".tx5 2027-03-08 06-29-05"), "mine");
  comfort_.Once_notes = true;
  giveAndRemove(".tx5", "2027|3|8|7|30|x");
  EXPECT_EQ(contentOf(backup_ / " 2027-03-08 06-29-05.tx5"), "2027|3|8|7|30|x");
  EXPECT_EQ(copies_.newestFirst().size(), 1U);
}

TEST_F(OnceCopies, thatAreDraftsAreNotLostEither) {
  comfort_.Once_notes = true;
  TypedNote typed;
  typed.kind = NoteKind::Once;
  typed.name = L"Dentist";
  typed.fields = OnceFields{L"2027", L"3", L"8", L"7", L"30", L"typed"};
  const Windows1252 codePage;
  const auto place = copies_.keepDraft(draftOf(typed, codePage), {});
  copies_.leaveDraft(place);
  comfort_.Once_notes = false;
  EXPECT_TRUE(copies_.newestFirst().empty());
  comfort_.Once_notes = true;
  ASSERT_EQ(copies_.newestFirst().size(), 1U);
  EXPECT_TRUE(copies_.newestFirst()[0].isDraft);
  EXPECT_EQ(contentOf(place), "2027|3|8|7|30|typed");
}

}  // namespace
}  // namespace kalvora
