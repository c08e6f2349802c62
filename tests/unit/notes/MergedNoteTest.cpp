// What is saved of a note of each kind that somebody else wrote meanwhile.

#include <gtest/gtest.h>

#include "base/CodePage.h"
#include "notes/LeftNote.h"
#include "notes/NoteWriter.h"

namespace kalvora {
namespace {

struct Meeting {
  NoteKind kind;
  const char* read;   // by the window
  const char* typed;  // there
  const char* now;    // in the file
  const char* saved;
};

void PrintTo(const Meeting& meeting, std::ostream* out) {
  *out << meeting.typed << " meets " << meeting.now;
}

class MergedNotes : public testing::TestWithParam<Meeting> {
 protected:
  /// A note as a window would show the file, and a save store it.
  TypedNote shown(const char* bytes) const {
    const NoteAsRead read = noteAsRead(GetParam().kind, bytes, codePage_);
    return {GetParam().kind, L"Gym", read.fields, {}, read.content};
  }
  LeftNote left() const {
    LeftNote left{shown(GetParam().typed), shown(GetParam().read),
                  noteAsRead(GetParam().kind, GetParam().read, codePage_), L"Gym"};
    left.typed.storedContent = left.read.content;
    return left;
  }
  std::string merged(const LeftNote& left) const {
    const TypedNote note = mergedWith(left, noteAsRead(GetParam().kind, GetParam().now, codePage_));
    return joinFields(note.fields, codePage_, note.storedContent);
  }

  Windows1252 codePage_;
};

TEST_P(MergedNotes, takeWhatWasNotTypedOver) {
  EXPECT_EQ(merged(left()), GetParam().saved);
}

TEST_P(MergedNotes, doSoAlsoWhereNobodyKnowsWhatWasShownAtFirst) {
  LeftNote unknown = left();
  unknown.begun.reset();
  EXPECT_EQ(merged(unknown), GetParam().saved);
}

/// What a window makes of a file is not always what the file holds.
class NotesShownOtherwise : public testing::Test {
 protected:
  NoteAsRead noteOf(const char* bytes) const {
    return noteAsRead(NoteKind::Daily, bytes, codePage_);
  }
  TypedNote windowWith(const char* bytes) const {
    const NoteAsRead note = noteOf(bytes);
    return {NoteKind::Daily, L"Gym", note.fields, {}, note.content};
  }
  /// A window showed "07" as "7", and the text was typed over.
  std::string savedOver(const char* now, Untyped untyped) const {
    const LeftNote left{windowWith("7|5|b"), windowWith("7|5|a"), noteOf("07|5|a"), L"Gym",
                        untyped};
    const TypedNote note = mergedWith(left, noteOf(now));
    return joinFields(note.fields, codePage_, note.storedContent);
  }

  Windows1252 codePage_;
};

TEST_F(NotesShownOtherwise, keepTheirFileWhereNothingWasTyped) {
  EXPECT_EQ(savedOver("8|15|a", Untyped::AsInFile), "8|15|b");
  EXPECT_EQ(savedOver("07|5|a", Untyped::AsInFile), "07|5|b");
}

TEST_F(NotesShownOtherwise, areSavedAsTheyAreShownUnlessSomebodyElseWroteThem) {
  EXPECT_EQ(savedOver("8|15|a", Untyped::AsShown), "8|15|b");
  EXPECT_EQ(savedOver("07|5|a", Untyped::AsShown), "7|5|b");
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, MergedNotes,
    testing::Values(Meeting{NoteKind::Daily, "7|5|a", "7|5|b", "8|5|a", "8|5|b"},
                    Meeting{NoteKind::Daily, "7|5|a", "7|6|a", "8|5|c", "7|6|c"},
                    Meeting{NoteKind::Fast, "||a", "||b", "||c", "||b"},
                    Meeting{NoteKind::Fast, "||a\nb", "||a\nb", "||a\nb\nc", "||a\nb\nc"},
                    Meeting{NoteKind::Fast, "7|5|a", "7|5|a", "||a", "||a"},
                    Meeting{NoteKind::Weekly, "7|5|0|0|0|0|0|0|0|a", "7|5|1|0|0|0|0|0|1|a",
                            "7|5|0|1|0|0|0|0|0|a", "7|5|1|1|0|0|0|0|1|a"},
                    Meeting{NoteKind::Monthly, "1|2|3|a", "9|2|3|a", "1|2|4|b", "9|2|4|b"},
                    Meeting{NoteKind::Yearly, "1|2|3|4|a", "9|2|3|4|a", "1|5|6|4|a", "9|2|6|4|a"},
                    Meeting{NoteKind::Once, "2027|3|28|9|0|a", "2027|3|29|9|0|a", "2027|4|28|8|0|a",
                            "2027|3|29|8|0|a"}));

}  // namespace
}  // namespace kalvora
