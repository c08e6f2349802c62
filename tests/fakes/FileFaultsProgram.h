#pragma once

#include <algorithm>
#include <chrono>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "app/NoteBrowser.h"
#include "base/SafeFileWriter.h"
#include "base/Text.h"
#include "fakes/FakeAll_Notes_frmView.h"
#include "fakes/FakeNoteFollower.h"
#include "fakes/FaultyFileOperations.h"
#include "fakes/SilentScrollTimers.h"
#include "notes/All_Notes_frm.h"
#include "notes/KeepingFileWriter.h"
#include "unit/app/Form1Fixture.h"

namespace kalvora::filefaults {

namespace fs = std::filesystem;
using Files = std::map<std::string, std::string>;

inline const Files kNotes = {{"Gym.txt", "7|30|Mat and towel"},
                             {"Milk.txt", "||Three bottles, and some more"},
                             {"Rent.tx1", "8|0|To be paid"}};
inline const std::string kOldCopy = "Bread 2026-01-02 03-04-05.txt";
/// What a second copy of the program writes while a step of the first one is delayed.
inline const Files kMeanwhile = {{"Other.txt", "||Written meanwhile"},
                                 {"Trip.tx2", "||0|0|0|0|0|0|0|Pack"}};
/// What is typed in the main window and in the editor, as a draft keeps it.
inline const std::set<std::string> kDrafts = {"7|30|Towel and shoes, and water", "7|30|Short",
                                              "7|30|Short, and more"};
inline constexpr int kMoreStepsThanAnyWorkHas = 200;

/// What the steps reach in the end.
struct Disk {
  const char* name;
  std::unique_ptr<FileOperations> (*make)();
};

template <typename Operations>
Disk diskOf(const char* name) {
  return {name, []() -> std::unique_ptr<FileOperations> { return std::make_unique<Operations>(); }};
}

inline void PrintTo(const Disk& disk, std::ostream* out) {
  *out << disk.name;
}

/// The program over a folder of notes, with both windows that change them.
class Program : public Form1Test {
 public:
  explicit Program(const Disk& disk) : disk_(disk.make()) {
    for (const auto& [name, bytes] : kNotes) note(name, bytes);
    folder.write("backup/" + kOldCopy, "||Two loaves");
    window_.wear(loadSkin(files, skinValues, folder.path() / "skins/One"));
    browser.refresh();
    browser.Odczytaj_na_przycisku();
    editor.Form_Load();
  }
  void TestBody() override {}
  using Form1Test::clock;
  using Form1Test::files;
  using Form1Test::folder;

  /// The user wants notes saved when they are left.
  void keepTyping() {
    settings_.comfort.Keep_typing = true;
    browser.followOptions();
    editorHost_.keeps = true;
  }
  bool wasAsked() const { return !view.questions.empty() || !editorView.questions.empty(); }

  void showInMainWindow(std::wstring_view name) { browser.odczytaj(name); }
  void typeInMainWindow(std::wstring_view text) { view.setText(FieldId::Text2, text); }
  void typeTitleInMainWindow(std::wstring_view title) { view.setText(FieldId::Text1, title); }

  /// The titles that the main window shows, from the first note on as many pages.
  std::set<std::string> titlesOfPages(std::size_t pages) {
    browser.goToFirst();
    std::set<std::string> titles;
    for (std::size_t i = 0; i < pages; ++i) {
      browser.Odczytaj_na_przycisku();
      titles.insert(fs::path(text(FieldId::Text1)).string());
      browser.goToNext();
    }
    return titles;
  }

  void pickInEditor(std::wstring_view name) {
    const EditorControl list = controlOf(ControlArray::File_list_box, NoteKind::Fast);
    const auto& names = editorView.at(list).items;
    editorView.select(list, static_cast<int>(std::ranges::find(names, name) - names.begin()));
    editor.File_list_box_Click(NoteKind::Fast);
  }
  void typeInEditor(ControlArray box, std::wstring_view text) {
    editorView.setText(controlOf(box, NoteKind::Fast), text);
  }

  Files filesIn(const char* name) const {
    Files found;
    for (const auto& entry : fs::directory_iterator(folder.path() / name)) {
      const std::string file = entry.path().filename().string();
      found[file] = files.read(entry.path(), 1U << 20U);
    }
    return found;
  }

 private:
  fs::path notes_ = folder.path() / "notes";
  std::unique_ptr<FileOperations> disk_;

 public:
  FaultyFileOperations operations{*disk_};
  /// Another copy of the program, or the next run of it: nothing ails it.
  SafeFileWriter other{*disk_, 2};

 private:
  SafeFileWriter plainWriter_{operations, 1};
  SafetyCopies copies_{folder.path() / "backup", files, plainWriter_, clock,
                       [] { return knownKinds({}); }};
  FakeNoteFollower follower_;

 public:
  KeepingFileWriter keeping{notes_, plainWriter_, copies_, follower_};

 private:
  Settings settings_;
  SkinnedWindow window_;
  SilentScrollTimers scrollTimers_;
  TitleScroller scroller_{scrollTimers_};
  FakeEditorHost editorHost_;

 public:
  FakeAll_Notes_frmView editorView;
  NoteBrowser browser{{notes_, files, keeping, codePage, copies_},
                      clock,
                      dateTexts,
                      view,
                      settings_,
                      window_,
                      scroller_};
  All_Notes_frm editor{{files, keeping, codePage, editorView, editorHost_, notes_, copies_, clock}};
};

}  // namespace kalvora::filefaults
