#include "find/FindNotes.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "fakes/FakeFindHost.h"
#include "fakes/FakeFindNotesView.h"
#include "fakes/FakeNoteFolder.h"
#include "fakes/MemorySettingsStore.h"

namespace kalvora {
namespace {

class FindNotesTest : public testing::Test {
 protected:
  void type(const std::wstring& words) {
    view_.typed = words;
    form_.search();
  }
  std::wstring textOf(std::size_t row) const {
    return form_.text(row, FindColumn::Name) + L"|" + form_.text(row, FindColumn::Kind) + L"|" +
           form_.text(row, FindColumn::Text);
  }
  std::vector<std::wstring> rows() const {
    std::vector<std::wstring> texts;
    for (std::size_t row = 0; row < view_.rows; ++row) texts.push_back(textOf(row));
    return texts;
  }
  void fewNotes() {
    folder_.notes = {{L"Gym.tx1", "18|30|Mat and towel"},
                     {L"Rent.tx3", "24|||Pay it"},
                     {L"Swim.tx2", "7|0|0|1|0|0|0|0|0|Cap, towel"}};
    for (const auto& [name, bytes] : folder_.notes) folder_.written[name] = 1;
  }
  void manyNotes() {
    for (int i = 0; i < 1000; ++i) folder_.notes[std::to_wstring(1000 + i) + L".tx1"] = "9|00|x";
  }
  void readAll() {
    while (view_.interval < 1000) form_.tick();
  }

  FakeNoteFolder folder_;
  Windows1252 codePage_;
  MemorySettingsStore settings_;
  FakeFindNotesView view_;
  FakeFindHost host_;
  FindNotes form_{{{folder_, codePage_, "notes"}, settings_, view_, host_}};
};

using Rows = std::vector<std::wstring>;

TEST_F(FindNotesTest, showsAllNotesAtFirst) {
  fewNotes();
  form_.Form_Load();
  EXPECT_EQ(rows(),
            (Rows{L"Gym|Daily|Mat and towel", L"Rent|Monthly|Pay it", L"Swim|Weakly|Cap, towel"}));
  EXPECT_EQ(view_.notice, L"3 notes.");
  EXPECT_EQ(view_.interval, 1000);
}

TEST_F(FindNotesTest, searchesAsOneTypes) {
  fewNotes();
  form_.Form_Load();
  type(L"t");
  EXPECT_EQ(view_.notice, L"3 notes.");
  type(L"to");
  EXPECT_EQ(rows(), (Rows{L"Gym|Daily|Mat and towel", L"Swim|Weakly|Cap, towel"}));
  EXPECT_EQ(view_.scrolledTo, 0U);
  type(L"towel gym");
  EXPECT_EQ(rows(), Rows{L"Gym|Daily|Mat and towel"});
  EXPECT_EQ(view_.notice, L"1 note.");
  type(L"towel gyms");
  EXPECT_EQ(view_.notice, L"Nothing is found.");
  type(L"pay");
  EXPECT_EQ(rows(), Rows{L"Rent|Monthly|Pay it"}) << "other words look through all notes";
  EXPECT_EQ(folder_.listings, 1);
}

TEST_F(FindNotesTest, beginsWithTheWordsThatAreThere) {
  fewNotes();
  view_.typed = L"cap";
  form_.Form_Load();
  EXPECT_EQ(rows(), Rows{L"Swim|Weakly|Cap, towel"});
}

TEST_F(FindNotesTest, aRowOpensItsNoteAtThePlace) {
  fewNotes();
  form_.Form_Load();
  type(L"TOWEL");
  form_.openRow(1);
  EXPECT_EQ(host_.opened, Rows{L"Swim.tx2"});
  EXPECT_EQ(host_.places.back(), (PlaceInNote{5, L"towel"}));
  form_.openRow(2);
  EXPECT_EQ(host_.opened.size(), 1U) << "there is no such row";
}

TEST_F(FindNotesTest, aNameAloneOpensItsNoteAtNoPlace) {
  fewNotes();
  form_.Form_Load();
  type(L"swim");
  form_.openRow(0);
  EXPECT_EQ(host_.opened, Rows{L"Swim.tx2"});
  EXPECT_EQ(host_.places.back(), PlaceInNote());
}

TEST_F(FindNotesTest, whatIsReadCanBeSearchedWhileTheRestIsRead) {
  manyNotes();
  form_.Form_Load();
  EXPECT_EQ(view_.notice, L"Reading notes\x2026 400 of 1000");
  EXPECT_LT(view_.interval, 50);
  EXPECT_EQ(view_.rows, 400U);
  type(L"13");
  EXPECT_EQ(view_.rows, 113U);
  view_.selected = 100;
  form_.activated();
  form_.tick();
  EXPECT_EQ(view_.notice, L"Reading notes\x2026 800 of 1000");
  EXPECT_EQ(view_.rows, 117U);
  EXPECT_EQ(view_.selected, 100U);
  type(L"131");
  readAll();
  EXPECT_EQ(view_.rows, 11U);
  EXPECT_EQ(view_.notice, L"11 notes.");
  EXPECT_EQ(folder_.reads.size(), 1000U);
}

TEST_F(FindNotesTest, whatIsFoundStandsWhileNotesAreReadAgain) {
  manyNotes();
  form_.Form_Load();
  readAll();
  type(L"199");
  view_.selected = 5;
  folder_.notes.erase(L"1991.tx1");
  form_.activated();
  EXPECT_EQ(view_.rows, 11U) << "one of them is gone, but not read again yet";
  type(L"1995");
  EXPECT_EQ(rows(), Rows{L"1995|Daily|x"});
  view_.selected = 0;
  readAll();
  EXPECT_EQ(view_.selected, 0U);
  type(L"199");
  EXPECT_EQ(view_.rows, 10U);
}

TEST_F(FindNotesTest, theSelectedNoteStaysSelectedWhereverItIs) {
  fewNotes();
  form_.Form_Load();
  view_.selected = 2;
  folder_.notes[L"Bins.tx2"] = "7|0|0|1|0|0|0|0|0|Out";
  form_.activated();
  EXPECT_EQ(view_.rows, 4U);
  EXPECT_EQ(view_.selected, 3U);
  EXPECT_EQ(view_.scrolledTo, std::nullopt);
  folder_.notes.erase(L"Swim.tx2");
  form_.activated();
  EXPECT_EQ(view_.selected, std::nullopt);
}

TEST_F(FindNotesTest, whatTheProgramChangesIsSeenAtTheNextLook) {
  fewNotes();
  form_.Form_Load();
  type(L"towel");
  folder_.notes[L"Rent.tx3"] = "24|||For the towel";
  folder_.written.erase(L"Rent.tx3");
  form_.tick();
  EXPECT_EQ(view_.rows, 2U) << "nobody said that anything changed";
  ++host_.changes;
  form_.tick();
  EXPECT_EQ(rows()[1], L"Rent|Monthly|For the towel");
  form_.tick();
  EXPECT_EQ(folder_.listings, 2);
  EXPECT_EQ(folder_.reads.size(), 4U) << "only what was written is read again";
}

TEST_F(FindNotesTest, aKindThatTheUserNoLongerHasGoes) {
  folder_.notes = {{L"Trip.tx5", "2026|12|1|6|0|x"}, {L"Gym.tx1", "18|30|x"}};
  form_.Form_Load();
  EXPECT_EQ(view_.rows, 2U);
  host_.kinds = NoteKinds(kNoteKinds).first(5);
  form_.activated();
  EXPECT_EQ(rows(), Rows{L"Gym|Daily|x"});
}

TEST_F(FindNotesTest, aFolderThatGoesAwayLeavesTheListAndIsTold) {
  fewNotes();
  form_.Form_Load();
  folder_.away = true;
  form_.activated();
  EXPECT_EQ(view_.rows, 3U);
  EXPECT_EQ(view_.notice, L"The folder of the notes cannot be read now. It is looked at again.");
  const int listings = folder_.listings;
  for (int second = 0; second < 59; ++second) form_.tick();
  EXPECT_EQ(folder_.listings, listings) << "not each second";
  folder_.away = false;
  form_.tick();
  EXPECT_EQ(view_.notice, L"3 notes.");
}

TEST_F(FindNotesTest, aFolderThatIsAwayFromTheBeginningIsTold) {
  fewNotes();
  folder_.away = true;
  form_.Form_Load();
  EXPECT_EQ(view_.notice, L"The folder of the notes cannot be read now. It is looked at again.");
  folder_.away = false;
  form_.activated();
  EXPECT_EQ(view_.rows, 3U);
}

TEST_F(FindNotesTest, notesThatCannotBeReadAreTold) {
  fewNotes();
  folder_.written.clear();
  folder_.locked = L"Gym.tx1";
  form_.Form_Load();
  EXPECT_EQ(view_.notice,
            L"2 notes. \x201C"
            L"Gym\x201D cannot be read and is left out.");
  folder_.notes[L"Large.tx1"] = std::string(kLargestNoteSize + 1, 'x');
  form_.activated();
  EXPECT_EQ(view_.notice, L"2 notes. 2 notes cannot be read and are left out.");
}

TEST_F(FindNotesTest, itsSizeIsRememberedWhereItIsAnother) {
  form_.Form_Load();
  form_.unload();
  EXPECT_TRUE(settings_.values.empty());
  form_.Form_Load();
  view_.place = {700, 400};
  form_.unload();
  EXPECT_EQ(settings_.values, (std::map<std::wstring, std::wstring>{{L"Find/Width", L"700"}}));
  view_.place = {640, 400};
  form_.Form_Load();
  EXPECT_EQ(view_.place, (Size{700, 400}));
}

TEST_F(FindNotesTest, aSizeThatCannotBeStoredKeepsNoWindowOpen) {
  form_.Form_Load();
  view_.place = {700, 400};
  settings_.refuses = true;
  form_.unload();
  EXPECT_EQ(view_.unloads, 1);
}

TEST_F(FindNotesTest, aClosedWindowDoesNothingAndHoldsNoNotes) {
  fewNotes();
  form_.Form_Load();
  form_.unload();
  const int listings = folder_.listings;
  form_.tick();
  form_.activated();
  form_.search();
  form_.unload();
  form_.openRow(0);
  EXPECT_EQ(folder_.listings, listings);
  EXPECT_EQ(view_.unloads, 1);
  EXPECT_EQ(form_.text(0, FindColumn::Name), L"");
  EXPECT_TRUE(host_.opened.empty());
}

TEST_F(FindNotesTest, openedAgainItReadsAnew) {
  fewNotes();
  form_.Form_Load();
  form_.unload();
  folder_.notes.erase(L"Rent.tx3");
  form_.Form_Load();
  EXPECT_EQ(view_.rows, 2U);
  EXPECT_EQ(view_.notice, L"2 notes.");
}

}  // namespace
}  // namespace kalvora
