// Bringing back notes that were changed or deleted.

#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "base/Errors.h"
#include "fakes/FakeAll_Notes_frmView.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeNoteFollower.h"
#include "fakes/FakePlatform.h"
#include "fakes/TempFolder.h"
#include "notes/All_Notes_frm.h"
#include "notes/KeepingFileWriter.h"
#include "posix/StandardFileSystem.h"
#include "posix/StandardFileWriter.h"

namespace kalvora {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::wstring>;
using Notes = std::map<std::wstring, std::string>;
using enum ControlArray;

class NoteRestoring : public testing::Test {
 protected:
  NoteRestoring() {
    fs::create_directory(notes_);
    editor_.Form_Load();
  }

  void give(const wchar_t* name, std::string_view bytes) { folder_.write(notes_ / name, bytes); }
  void remove(const wchar_t* name) { writer_.remove(notes_ / name); }
  Notes notes() const {
    Notes notes;
    for (const std::wstring& name : files_.files(notes_, L"*")) {
      notes[name] = files_.read(notes_ / name, kLargestNoteSize + 1);
    }
    return notes;
  }
  void choose(std::size_t position) {
    view_.onChoose = [position](const auto&) { return std::optional(position); };
  }
  Names names(NoteKind kind) const { return view_.at(controlOf(File_list_box, kind)).items; }

  TempFolder folder_;
  fs::path notes_ = folder_.path() / "notes";
  StandardFileSystem files_;
  StandardFileWriter disk_;
  FakeClock clock_;
  SafetyCopies copies_{folder_.path() / "backup", files_, disk_, clock_,
                       [this] { return host_.kinds; }};
  FakeNoteFollower follower_;
  KeepingFileWriter writer_{notes_, disk_, copies_, follower_};
  Windows1252 codePage_;
  FakeAll_Notes_frmView view_;
  FakeEditorHost host_;
  All_Notes_frm editor_{{files_, writer_, codePage_, view_, host_, notes_, copies_, clock_}};
};

TEST_F(NoteRestoring, aDeletedNoteComesBackByteForByteAndIsListed) {
  const std::string bytes("7|30|a\r\nb\0\xFF|", 12);
  give(L"Gym.tx1", bytes);
  remove(L"Gym.tx1");
  choose(0);
  editor_.cmdRestore();
  EXPECT_EQ(notes(), (Notes{{L"Gym.tx1", bytes}}));
  EXPECT_EQ(names(NoteKind::Daily), Names{L"Gym"});
  // It stays in the list of copies, for another time.
  EXPECT_EQ(copies_.newestFirst().size(), 1U);
}

TEST_F(NoteRestoring, aTakenNameGetsANumberAndNothingIsOverwritten) {
  give(L"Gym.tx1", "old");
  writer_.writeSafely(notes_ / L"Gym.tx1", "new");
  choose(0);
  editor_.cmdRestore();
  editor_.cmdRestore();
  EXPECT_EQ(notes(),
            (Notes{{L"Gym.tx1", "new"}, {L"Gym (2).tx1", "old"}, {L"Gym (3).tx1", "old"}}));
  EXPECT_EQ(names(NoteKind::Daily), (Names{L"Gym (2)", L"Gym (3)", L"Gym"}));
}

TEST_F(NoteRestoring, aNoteOfAnotherKindTakesNoName) {
  give(L"Gym.tx1", "old");
  remove(L"Gym.tx1");
  give(L"Gym.tx2", "weekly");
  choose(0);
  editor_.cmdRestore();
  EXPECT_EQ(notes(), (Notes{{L"Gym.tx1", "old"}, {L"Gym.tx2", "weekly"}}));
}

TEST_F(NoteRestoring, thePageOfItsKindIsShownAndKeepsWhatWasTyped) {
  give(L"Gym.tx3", "1|2|3|old");
  remove(L"Gym.tx3");
  view_.setText(controlOf(FName, NoteKind::Monthly), L"typed");
  view_.setText(controlOf(Zawartosc, NoteKind::Monthly), L"typed too");
  choose(0);
  editor_.cmdRestore();
  EXPECT_EQ(view_.page, NoteKind::Monthly);
  EXPECT_EQ(view_.text(controlOf(FName, NoteKind::Monthly)), L"typed");
  EXPECT_EQ(view_.text(controlOf(Zawartosc, NoteKind::Monthly)), L"typed too");
  EXPECT_EQ(view_.selection(controlOf(File_list_box, NoteKind::Monthly)), -1);
}

TEST_F(NoteRestoring, theChosenOneOfTheOfferedCopiesComesBack) {
  for (const wchar_t* name : {L"a.txt", L"b.txt", L"c.txt"}) {
    give(name, fs::path(name).string());
    remove(name);
    ++clock_.time.minute;
  }
  choose(1);
  editor_.cmdRestore();
  ASSERT_EQ(view_.offered.size(), 3U);
  EXPECT_EQ(view_.offered[0].name, L"c");
  EXPECT_EQ(notes(), (Notes{{L"b.txt", "b.txt"}}));
}

TEST_F(NoteRestoring, whereNoneIsChosenNothingChanges) {
  give(L"Gym.tx1", "old");
  remove(L"Gym.tx1");
  editor_.cmdRestore();
  EXPECT_EQ(notes(), Notes{});
  EXPECT_EQ(view_.page, NoteKind::Daily);
}

TEST_F(NoteRestoring, aCopyThatIsGoneIsToldAndNothingChanges) {
  give(L"Gym.tx1", "old");
  remove(L"Gym.tx1");
  view_.onChoose = [this](const auto&) {
    fs::remove_all(folder_.path() / "backup");
    return std::optional<std::size_t>(0);
  };
  EXPECT_THROW(editor_.cmdRestore(), FileError);
  EXPECT_EQ(notes(), Notes{});
}

// Drafts.

class DraftRestoring : public NoteRestoring {
 protected:
  void keepDraft(const std::wstring& name, std::wstring_view text) {
    const TypedNote typed = typedFastNote(name, L"7:30", text, HalfOfDay::Am, HourFormat::Hours24);
    copies_.keepDraft(draftOf(typed, codePage_), {});
    choose(0);
  }
};

TEST_F(DraftRestoring, aDraftComesBackAsANoteOfItsNameAndStaysADraft) {
  give(L"Gym.txt", "old");
  keepDraft(L"Gym", L"typed|more");
  editor_.cmdRestore();
  EXPECT_EQ(notes(), (Notes{{L"Gym.txt", "old"}, {L"Gym (2).txt", "7|30|typed|more"}}));
  EXPECT_EQ(copies_.newestFirst().size(), 1U);
  EXPECT_TRUE(view_.questions.empty());
}

TEST_F(DraftRestoring, lettersThatANoteCannotStoreAreReplacedOnlyIfTheUserWants) {
  keepDraft(L"Gym", L"\u65E5 caf\u00E9");
  view_.answer = false;
  editor_.cmdRestore();
  EXPECT_EQ(notes(), Notes{});
  view_.answer = true;
  editor_.cmdRestore();
  EXPECT_EQ(notes(), (Notes{{L"Gym.txt", "7|30|? caf\xE9"}}));
  EXPECT_EQ(view_.questions.size(), 2U);
}

TEST_F(DraftRestoring, aDraftTooLargeForANoteIsToldAndShownWhole) {
  keepDraft(L"Gym", std::wstring(40000, L'x'));
  EXPECT_THROW(editor_.cmdRestore(), Failure);
  EXPECT_EQ(notes(), Notes{});
  ASSERT_EQ(view_.previews.size(), 1U);
  EXPECT_EQ(view_.previews[0], (NotePreview{L"at 7:30", std::wstring(40000, L'x')}));
}

TEST_F(DraftRestoring, theTextOfEachIsShown) {
  give(L"Gym.tx2", "8|15|0|1|0|0|0|0|0|old|er");
  remove(L"Gym.tx2");
  ++clock_.time.minute;
  keepDraft(L"Gym", L"\u65E5|typed");
  editor_.cmdRestore();
  EXPECT_EQ(view_.previews, (std::vector<NotePreview>{{L"at 7:30", L"\u65E5|typed"},
                                                      {L"at 8:15, Monday", L"old|er"}}));
}

TEST_F(DraftRestoring, ofOneThatIsGoneTheReasonIsShown) {
  keepDraft(L"Gym", L"typed");
  struct Gone : FakeAll_Notes_frmView {
    explicit Gone(fs::path folder) : backup(std::move(folder)) {}
    std::optional<std::size_t> chooseCopy(const std::vector<SafetyCopy>& copies,
                                          const CopyPreview& preview) override {
      fs::remove_all(backup);
      FakeAll_Notes_frmView::chooseCopy(copies, preview);
      return std::nullopt;
    }
    fs::path backup;
  } view(folder_.path() / "backup");
  All_Notes_frm editor({files_, writer_, codePage_, view, host_, notes_, copies_, clock_});
  editor.cmdRestore();
  ASSERT_EQ(view.previews.size(), 1U);
  EXPECT_TRUE(view.previews[0].text.starts_with(L"This file cannot be read: "));
}

// What the editor says after Delete.

class DeletedNotice : public NoteRestoring {
 protected:
  void pick(NoteKind kind) {
    editor_.Update_Files(kind, kind);
    view_.select(controlOf(File_list_box, kind), 0);
    editor_.File_list_box_Click(kind);
  }
  void deleteOne(const wchar_t* name) {
    give(name, "7|30|Mat");
    pick(NoteKind::Daily);
    editor_.cmdDel(NoteKind::Daily);
  }
};

TEST_F(DeletedNotice, tellsThatRestoreBringsTheNoteBack) {
  deleteOne(L"Gym.tx1");
  EXPECT_EQ(view_.notice, L"\x201CGym\x201D was deleted. Restore\x2026 brings it back.");
}

TEST_F(DeletedNotice, isNotGivenWhereNoCopyCanBeKeptAndTheNoteStays) {
  // Without a folder to keep copies in.
  folder_.write(L"backup", "a file");
  EXPECT_THROW(deleteOne(L"Gym.tx1"), FileError);
  EXPECT_EQ(view_.notice, L"");
  EXPECT_EQ(notes(), (Notes{{L"Gym.tx1", "7|30|Mat"}}));
}

TEST_F(DeletedNotice, aLongNameIsCutSoThatTheRestIsSeen) {
  deleteOne(L"The quick brown fox jumps over the lazy dog.tx1");
  EXPECT_EQ(
      view_.notice,
      L"\x201CThe quick brown fox jump\x2026\x201D was deleted. Restore\x2026 brings it back.");
}

TEST_F(DeletedNotice, isGoneAtTheNextAction) {
  const std::map<std::string, std::function<void()>> actions = {
      {"new", [&] { editor_.cmdNew(NoteKind::Daily); }},
      {"save", [&] { editor_.cmdSave(NoteKind::Daily); }},
      {"restore", [&] { editor_.cmdRestore(); }},
      {"tab", [&] { editor_.tbsOptions_Click(NoteKind::Fast); }},
      {"delete of nothing", [&] { editor_.cmdDel(NoteKind::Daily); }},
      {"name", [&] { editor_.File_list_box_Click(NoteKind::Daily); }}};
  for (const auto& [name, act] : actions) {
    deleteOne(L"Gym.tx1");
    ASSERT_NE(view_.notice, L"");
    act();
    EXPECT_EQ(view_.notice, L"") << name;
    if (name == "save") remove(L"Gym.tx1");
  }
}

TEST_F(DeletedNotice, isNotGivenWhereNothingWasDeleted) {
  give(L"Gym.tx1", "7|30|Mat");
  editor_.cmdDel(NoteKind::Daily);
  EXPECT_EQ(view_.notice, L"");
}

}  // namespace
}  // namespace kalvora
