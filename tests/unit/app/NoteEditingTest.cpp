#include "Form1Fixture.h"

namespace kalvora {
namespace {

using Names = std::vector<std::wstring>;

class NoteEditing : public Form1Test {
 protected:
  void type(std::wstring_view title, std::wstring_view content, std::wstring_view time = L"") {
    view.setText(FieldId::Text1, title);
    view.setText(FieldId::Text2, content);
    view.setText(FieldId::Text3, time);
  }

  void newNote() { click(ButtonId::Buttons_main_01); }
  void save() { click(ButtonId::Buttons_main_02); }

  std::wstring pathOf(const std::string& name) const {
    return (folder.path() / "notes" / name).wstring();
  }

  /// What is written for a time line typed beside the given half of the day.
  std::optional<std::string> savedTime(std::wstring_view time, std::wstring_view half) {
    newNote();
    type(L"t", L"", time);
    while (text(FieldId::AmPmLabel) != half) form().AmPmLabel_Click();
    std::filesystem::remove(folder.path() / "notes" / "t.txt");
    save();
    return contentOf("t.txt");
  }
};

TEST_F(NoteEditing, aNewNoteIsAnEmptySheetOfWhichNothingIsWrittenUntilItIsSaved) {
  note("a.txt", "7|30|Alpha");
  form().Form_Load();
  newNote();
  EXPECT_EQ(text(FieldId::Text1), L"Untiled");
  EXPECT_EQ(text(FieldId::Text2), L"");
  EXPECT_EQ(text(FieldId::Text3), L"7:30") << "the time is left for the user to change";
  click(ButtonId::Buttons_Delete);
  EXPECT_TRUE(view.questions.empty()) << "no file is on show";
  EXPECT_EQ(contentOf("Untiled.txt"), std::nullopt);
  EXPECT_EQ(contentOf("a.txt"), "7|30|Alpha");
}

TEST_F(NoteEditing, aSavedNewNoteIsAFileOfItsTitleAndTheOldOneStays) {
  note("a.txt", "||Alpha");
  form().Form_Load();
  newNote();
  type(L"Shopping list", L"Milk\r\nBread", L"18:05");
  save();
  EXPECT_EQ(contentOf("Shopping list.txt"), "18|05|Milk\r\nBread");
  EXPECT_EQ(contentOf("a.txt"), "||Alpha");
  EXPECT_TRUE(writer.removed.empty());
  EXPECT_EQ(titlesByPaging(), (Names{L"a", L"Shopping list"}));
}

TEST_F(NoteEditing, afterASaveTheNoteAtTheSamePlaceOfTheListIsShown) {
  note("m.txt", "||Mike");
  form().Form_Load();
  newNote();
  type(L"z", L"Zulu");
  save();
  EXPECT_EQ(text(FieldId::Text1), L"m") << "the new note came behind it";
  newNote();
  type(L"a", L"Alpha");
  save();
  EXPECT_EQ(text(FieldId::Text1), L"a") << "the new note came before it";
}

TEST_F(NoteEditing, aShorterTextReplacesTheNoteWhole) {
  note("a.txt", "7|30|A long old text");
  form().Form_Load();
  type(L"a", L"short");
  save();
  EXPECT_EQ(contentOf("a.txt"), "||short");
}

TEST_F(NoteEditing, anotherTitleRenamesTheNote) {
  note("a.txt", "||Alpha");
  form().Form_Load();
  type(L"b", L"Alpha");
  save();
  EXPECT_EQ(contentOf("a.txt"), std::nullopt);
  EXPECT_EQ(contentOf("b.txt"), "||Alpha");
  type(L"c", L"Alpha");
  save();
  EXPECT_EQ(contentOf("b.txt"), std::nullopt) << "it is the note on show since then";
  EXPECT_EQ(contentOf("c.txt"), "||Alpha");
}

TEST_F(NoteEditing, aNoteOfAnotherKindIsSavedAsAFastOneAndItsFileGoes) {
  note("a.tx2", "7|30|0000000|Alpha");
  form().Form_Load();
  type(L"a", L"Alpha", L"7:30");
  save();
  EXPECT_EQ(contentOf("a.tx2"), std::nullopt);
  EXPECT_EQ(contentOf("a.txt"), "7|30|Alpha");
}

TEST_F(NoteEditing, theSameTitleInOtherLetterCaseIsTheSameNote) {
  note("Milk.txt", "||A long old text");
  form().Form_Load();
  type(L"MILK", L"new");
  save();
  EXPECT_EQ(contentOf("MILK.txt"), "||new") << "no end of the old text stands behind it";
  EXPECT_TRUE(writer.removed.empty()) << "it would be the note itself";
  EXPECT_EQ(titlesByPaging(), Names{L"MILK"});
}

TEST_F(NoteEditing, whatWasNotChangedKeepsItsBytes) {
  const std::string odd("one\ntwo\rthree\r\nfo\0ur\r\r\n", 23);
  note("a.txt", "7|30|" + odd);
  note("b.tx2", "7|30|0|0|0|0|0|0|0|" + odd);
  form().Form_Load();
  save();
  EXPECT_EQ(contentOf("a.txt"), "7|30|" + odd);
  type(L"a", text(FieldId::Text2) + L"five\nsix", text(FieldId::Text3));
  save();
  EXPECT_EQ(contentOf("a.txt"), "7|30|" + odd + "five\r\nsix");
  click(ButtonId::Buttons_main_05);
  save();
  EXPECT_EQ(contentOf("b.txt"), "7|30|" + odd);
  newNote();
  type(L"c", L"one\ntwo", L"");
  save();
  EXPECT_EQ(contentOf("c.txt"), "||one\r\ntwo") << "a new note holds nothing of the last one";
}

TEST_F(NoteEditing, savingOverAnotherNotesNameKeepsThatNotesTail) {
  note("a.txt", "||new");
  note("b.txt", "||something longer");
  form().Form_Load();
  type(L"b", L"new");
  save();
  EXPECT_EQ(contentOf("b.txt"), "||newething longer");
  EXPECT_EQ(contentOf("a.txt"), std::nullopt);
}

TEST_F(NoteEditing, aNewNoteOverAnothersNameKeepsThatNotesTailAndRemovesNothing) {
  note("b.txt", "||something longer");
  form().Form_Load();
  newNote();
  type(L"b", L"new");
  save();
  EXPECT_EQ(contentOf("b.txt"), "||newething longer");
  EXPECT_TRUE(writer.removed.empty());
}

TEST_F(NoteEditing, aNoteWhoseFileVanishedMeanwhileIsSavedAllTheSame) {
  note("a.txt", "||Alpha");
  form().Form_Load();
  std::filesystem::remove(folder.path() / "notes" / "a.txt");
  type(L"b", L"Alpha");
  save();
  EXPECT_EQ(contentOf("b.txt"), "||Alpha");
}

TEST_F(NoteEditing, anEmptyTitleGivesAFileThatIsAllExtension) {
  note("a.txt", "||Alpha");
  form().Form_Load();
  newNote();
  type(L"", L"nameless");
  save();
  EXPECT_EQ(contentOf(".txt"), "||nameless");
}

TEST_F(NoteEditing, inTwelveHourTimePmAddsTwelveToTheHour) {
  note("a.txt", "||");
  form().Form_Load();
  EXPECT_EQ(savedTime(L"7:30", L"AM"), "7|30|");
  EXPECT_EQ(savedTime(L"7:30", L"PM"), "19|30|");
  EXPECT_EQ(savedTime(L"12:00", L"AM"), "12|00|");
  EXPECT_EQ(savedTime(L"12:00", L"PM"), "24|00|");
  EXPECT_EQ(savedTime(L"0:05", L"AM"), "0|05|");
}

TEST_F(NoteEditing, in24HourTimeTheHalfOfTheDayIsNotAsked) {
  store.values[L"Sys/AmPm"] = L"False";
  note("a.txt", "||");
  form().Form_Load();
  EXPECT_EQ(savedTime(L"7:30", L"PM"), "7|30|");
  EXPECT_EQ(savedTime(L"19:30", L""), "19|30|");
}

TEST_F(NoteEditing, everyHourIsTheSameAfterItWasShownAndSaved) {
  for (int hour = 0; hour <= 24; ++hour) {
    note("a.txt", std::to_string(hour) + "|5|A");
    Form1 shown(ports());
    shown.Form_Load();
    shown.Form_MouseDown(MouseButton::Left, middleOf(ButtonId::Buttons_main_02));
    shown.mouseUp(MouseButton::Left, middleOf(ButtonId::Buttons_main_02));
    EXPECT_EQ(contentOf("a.txt"), std::to_string(hour) + "|5|A");
  }
}

TEST_F(NoteEditing, theLabelOfTheHalfOfTheDayTurnsAtEachClick) {
  form().Form_Load();
  EXPECT_EQ(text(FieldId::AmPmLabel), L"AM");
  form().AmPmLabel_Click();
  EXPECT_EQ(text(FieldId::AmPmLabel), L"PM");
  form().AmPmLabel_Click();
  EXPECT_EQ(text(FieldId::AmPmLabel), L"AM");
  view.setText(FieldId::AmPmLabel, L"");
  form().AmPmLabel_Click();
  EXPECT_EQ(text(FieldId::AmPmLabel), L"AM");
}

TEST_F(NoteEditing, theTimeLineIsHourColonMinuteOrPartOfIt) {
  note("a.txt", "||");
  form().Form_Load();
  EXPECT_EQ(savedTime(L"", L"AM"), "||");
  EXPECT_EQ(savedTime(L"7", L"AM"), "7||");
  EXPECT_EQ(savedTime(L"7:", L"AM"), "7||");
  EXPECT_EQ(savedTime(L":30", L"AM"), "|30|");
  EXPECT_EQ(savedTime(L":", L"PM"), "||");
  EXPECT_EQ(savedTime(L"07:05", L"AM"), "7|05|");
}

TEST_F(NoteEditing, aTimeThatIsNoneIsToldAndNothingIsWritten) {
  note("a.txt", "7|30|Alpha");
  form().Form_Load();
  type(L"b", L"Bravo", L"7|3:0");
  EXPECT_THROW(save(), ConversionError);
  type(L"b", L"Bravo", L"7:30:15");
  EXPECT_THROW(save(), ConversionError) << "nothing of it is left out silently";
  type(L"b", L"Bravo", L"99999:0");
  EXPECT_THROW(save(), OverflowError);
  EXPECT_EQ(contentOf("a.txt"), "7|30|Alpha");
  EXPECT_EQ(contentOf("b.txt"), std::nullopt);
  EXPECT_EQ(text(FieldId::Text2), L"Bravo") << "what the user typed is still there";
  type(L"b", L"Bravo", L"7:30");
  save();
  EXPECT_EQ(contentOf("b.txt"), "7|30|Bravo");
  EXPECT_EQ(contentOf("a.txt"), std::nullopt) << "it was the note on show all the time";
}

TEST_F(NoteEditing, whatIsTypedIntoTitleAndTimeKeepsToItsCharactersAndTheCaretStays) {
  form().Form_Load();
  view.at(FieldId::Text1) = {L"a/b|c?d", {4, 4}, {}, Editing::Allowed, Visibility::Shown};
  form().Text1_Change();
  EXPECT_EQ(text(FieldId::Text1), L"abcd");
  EXPECT_EQ(view.caret(FieldId::Text1), 2U);
  view.at(FieldId::Text3) = {L"1x2:3y0", {3, 3}, {}, Editing::Allowed, Visibility::Shown};
  form().Text3_Change();
  EXPECT_EQ(text(FieldId::Text3), L"12:30");
  EXPECT_EQ(view.caret(FieldId::Text3), 2U);
}

TEST_F(NoteEditing, loneLineFeedsBecomeLineEnds) {
  form().Form_Load();
  type(L"a", L"one\ntwo\r\nthree\n");
  std::filesystem::create_directory(folder.path() / "notes");
  save();
  EXPECT_EQ(contentOf("a.txt"), "||one\r\ntwo\r\nthree\r\n");
}

TEST_F(NoteEditing, theLargestNoteIsSavedAndOneByteMoreIsRefusedAndNothingIsWritten) {
  note("a.txt", "||Alpha");
  form().Form_Load();
  type(L"a", std::wstring(32765, L'x'));
  save();
  EXPECT_EQ(contentOf("a.txt")->size(), 32767U);
  const std::wstring tooMuch(32766, L'y');
  type(L"b", tooMuch);
  try {
    save();
    ADD_FAILURE() << "a note that could not be opened again";
  } catch (const Failure& failure) {
    EXPECT_TRUE(failure.message().ends_with(L": " + pathOf("b.txt"))) << "tells which file";
  }
  EXPECT_EQ(contentOf("a.txt")->size(), 32767U);
  EXPECT_EQ(contentOf("b.txt"), std::nullopt);
  EXPECT_EQ(text(FieldId::Text2), tooMuch) << "the user can shorten it";
  type(L"b", L"short");
  save();
  EXPECT_EQ(contentOf("b.txt"), "||short");
  EXPECT_EQ(contentOf("a.txt"), std::nullopt) << "it was the note on show all the time";
}

}  // namespace
}  // namespace kalvora
