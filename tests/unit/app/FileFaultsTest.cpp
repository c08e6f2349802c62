// Every step of every work on note files fails once, ends short, takes its time, or is the last one
// before the program is killed. Whatever happens, each note is there whole, as it was or as it was
// to become, and what is left behind is no note and goes away.

#include <algorithm>
#include <chrono>
#include <map>
#include <set>

#include "app/NoteBrowser.h"
#include "base/SafeFileWriter.h"
#include "base/StandardFileOperations.h"
#include "fakes/FakeAll_Notes_frmView.h"
#include "fakes/FakeBrowserHost.h"
#include "fakes/FaultyFileOperations.h"
#include "notes/All_Notes_frm.h"
#include "notes/KeepingFileWriter.h"
#include "unit/app/Form1Fixture.h"

namespace kalvora {
namespace {

namespace fs = std::filesystem;
using Files = std::map<std::string, std::string>;

const Files kNotes = {{"Gym.txt", "7|30|Mat and towel"},
                      {"Milk.txt", "||Three bottles, and some more"},
                      {"Rent.tx1", "8|0|To be paid"}};
const std::string kOldCopy = "Bread 2026-01-02 03-04-05.txt";
/// What a second copy of the program writes while a step of the first one is delayed.
const Files kMeanwhile = {{"Other.txt", "||Written meanwhile"},
                          {"Trip.tx2", "||0|0|0|0|0|0|0|Pack"}};
constexpr int kMoreStepsThanAnyWorkHas = 200;

/// The program over a folder of notes, with both windows that change them.
class Program : public Form1Test {
 public:
  Program() {
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

  void showInMainWindow(std::wstring_view name) { browser.odczytaj(name); }
  void typeInMainWindow(std::wstring_view text) { view.setFieldText(FieldId::Text2, text); }

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
  StandardFileOperations disk_;

 public:
  FaultyFileOperations operations{disk_};

 private:
  SafeFileWriter plainWriter_{operations};
  SafetyCopies copies_{folder.path() / "backup", files, plainWriter_, clock};

 public:
  KeepingFileWriter keeping{notes_, plainWriter_, copies_};

 private:
  Form1Ports ports_{guard, files,     keeping, store, skinValues, codePage,
                    clock, dateTexts, view,    tray,  sounds,     folder.path()};
  Settings settings_;
  SkinnedWindow window_;
  FakeBrowserHost host_;
  TitleScroller scroller_{host_};
  FakeEditorHost editorHost_;

 public:
  FakeAll_Notes_frmView editorView;
  NoteBrowser browser{ports_, settings_, window_, scroller_, host_};
  All_Notes_frm editor{{files, keeping, codePage, editorView, editorHost_, notes_, copies_}};
};

struct Work {
  const char* name;
  void (*prepare)(Program&);
  void (*run)(Program&);
};

void PrintTo(const Work& work, std::ostream* out) {
  *out << work.name;
}

void showGym(Program& program) {
  program.showInMainWindow(L"Gym.txt");
  program.typeInMainWindow(L"Towel and shoes, and water");
}

void pickGym(Program& program) {
  program.pickInEditor(L"Gym");
  program.typeInEditor(ControlArray::Zawartosc, L"Short");
}

void pickGymAndName(Program& program, std::wstring_view name) {
  pickGym(program);
  program.typeInEditor(ControlArray::FName, name);
}

void saveInEditor(Program& program) {
  program.editor.cmdSave(NoteKind::Fast);
}

const Work kWorks[] = {
    {"MainWindowSave", showGym, [](Program& program) { program.browser.zapisz(L"Gym"); }},
    {"MainWindowRename", showGym, [](Program& program) { program.browser.zapisz(L"Swim"); }},
    {"MainWindowRenameOntoAnother", showGym,
     [](Program& program) { program.browser.zapisz(L"Milk"); }},
    {"MainWindowNew", [](Program& program) { program.browser.startNewNote(); },
     [](Program& program) { program.browser.zapisz(L"Untiled"); }},
    {"MainWindowDelete", [](Program&) {},
     [](Program& program) { program.browser.Del_na_przycisku(DeleteKind::Plain); }},
    {"MainWindowFastDelete", showGym,
     [](Program& program) { program.browser.Del_na_przycisku(DeleteKind::Fast); }},
    {"EditorSave", pickGym, saveInEditor},
    {"EditorNew", [](Program& program) { program.editor.cmdNew(NoteKind::Fast); }, saveInEditor},
    {"EditorRename", [](Program& program) { pickGymAndName(program, L"Swim"); }, saveInEditor},
    {"EditorRenameOntoAnother", [](Program& program) { pickGymAndName(program, L"Milk"); },
     saveInEditor},
    {"EditorDelete", pickGym, [](Program& program) { program.editor.cmdDel(NoteKind::Fast); }},
    {"EditorRestore",
     [](Program& program) {
       program.editorView.onChoose = [](const auto&) { return std::optional<std::size_t>(0); };
     },
     [](Program& program) { program.editor.cmdRestore(); }},
};

/// Whether the user was told of a failure.
bool fails(const Work& work, Program& program) {
  try {
    work.run(program);
    return false;
  } catch (const Failure&) {
    return true;
  }
}

Files afterUndisturbed(const Work& work) {
  Program program;
  work.prepare(program);
  EXPECT_FALSE(fails(work, program));
  return program.filesIn("notes");
}

bool isTemporary(const std::string& name) {
  return isTemporaryName(fs::path(name).wstring());
}

Files withoutTemporaries(Files files) {
  std::erase_if(files, [](const auto& file) { return isTemporary(file.first); });
  return files;
}

std::string takeFrom(Files& files, const std::string& name) {
  auto taken = files.extract(name);
  return taken.empty() ? "missing" : taken.mapped();
}

/// Each note is as it was or as it was to become, and an old one is gone only where all is done.
void expectWhole(const Files& now, const Files& before, const Files& after) {
  const auto same = [](const Files& a, const Files& b, const std::string& name) {
    return a.contains(name) == b.contains(name) && (!a.contains(name) || a.at(name) == b.at(name));
  };
  bool oneIsGone = false;
  std::set<std::string> names;
  for (const Files* files : {&now, &before, &after}) {
    for (const auto& [name, bytes] : *files) names.insert(name);
  }
  for (const std::string& name : names) {
    EXPECT_TRUE(same(now, before, name) || same(now, after, name)) << name;
    oneIsGone = oneIsGone || (before.contains(name) && !now.contains(name));
  }
  if (oneIsGone) {
    EXPECT_EQ(now, after);
  }
}

void expectWholeCopies(const Program& program, const Files& after) {
  std::set<std::string> allowed = {"||Two loaves"};
  for (const Files& notes : {kNotes, after}) {
    for (const auto& [name, bytes] : notes) allowed.insert(bytes);
  }
  const Files copies = withoutTemporaries(program.filesIn("backup"));
  EXPECT_TRUE(copies.contains(kOldCopy));
  for (const auto& [name, bytes] : copies) EXPECT_TRUE(allowed.contains(bytes)) << name;
}

/// Of each note that is changed or gone there is a copy.
void expectOldContentIsKept(const Program& program, const Files& now) {
  std::set<std::string> kept;
  for (const auto& [name, bytes] : program.filesIn("backup")) {
    if (!isTemporary(name)) kept.insert(bytes);
  }
  for (const auto& [name, bytes] : kNotes) {
    const bool stays = now.contains(name) && now.at(name) == bytes;
    EXPECT_TRUE(stays || kept.contains(bytes)) << name;
  }
}

/// In both windows, after they read their lists anew.
void expectOnlyNotesAreShown(Program& program, const Files& notes) {
  program.browser.refresh();
  std::set<std::string> inMainWindow;
  for (const std::wstring& name : program.browser.File1()) {
    inMainWindow.insert(fs::path(name).string());
  }
  program.editor.Update_Files(NoteKind::Daily, NoteKind::Fast);
  std::set<std::string> inEditor;
  for (const NoteKind kind : kNoteKinds) {
    for (const auto& name :
         program.editorView.at(controlOf(ControlArray::File_list_box, kind)).items) {
      inEditor.insert(fs::path(name + std::wstring(extensionOf(kind))).string());
    }
  }
  std::set<std::string> expected;
  for (const auto& [name, bytes] : notes) expected.insert(name);
  EXPECT_EQ(inMainWindow, expected);
  EXPECT_EQ(inEditor, expected);
}

int temporariesIn(const Program& program) {
  int count = 0;
  for (const char* folder : {"notes", "backup"}) {
    for (const auto& [name, bytes] : program.filesIn(folder)) count += isTemporary(name) ? 1 : 0;
  }
  return count;
}

/// The next run of the program over the same folder, later.
void expectLeftoversToGo(const Program& program) {
  for (const char* folder : {"notes", "backup"}) {
    for (const auto& [name, bytes] : program.filesIn(folder)) {
      fs::last_write_time(program.folder.path() / folder / name,
                          fs::file_time_type::clock::now() - std::chrono::minutes(2));
    }
  }
  StandardFileWriter disk;
  for (const char* folder : {"notes", "backup"}) {
    disk.removeLeftovers(program.files, program.folder.path() / folder);
  }
  EXPECT_EQ(temporariesIn(program), 0);
}

void letAnotherWriteMeanwhile(Program& program) {
  program.operations.whileDelayed = [&program] {
    ++program.clock.time.minute;
    StandardFileWriter other;
    for (const auto& [name, bytes] : kMeanwhile) {
      other.writeSafely(program.folder.path() / "notes" / name, bytes);
    }
  };
}

class FileFaults : public testing::TestWithParam<std::tuple<Work, Fault>> {};

TEST_P(FileFaults, leaveEveryNoteWholeAtEveryStep) {
  const auto& [work, fault] = GetParam();
  const Files after = afterUndisturbed(work);
  int step = 1;
  for (; step < kMoreStepsThanAnyWorkHas; ++step) {
    SCOPED_TRACE(step);
    Program program;
    work.prepare(program);
    letAnotherWriteMeanwhile(program);
    program.operations.arm(fault, step);
    const bool failed = fails(work, program);
    if (!program.operations.wasReached()) break;

    Files now = withoutTemporaries(program.filesIn("notes"));
    expectOnlyNotesAreShown(program, now);
    if (fault == Fault::Delay) {
      for (const auto& other : kMeanwhile) EXPECT_EQ(takeFrom(now, other.first), other.second);
    }
    expectWhole(now, kNotes, after);
    expectWholeCopies(program, after);
    // A copy that fails keeps nobody from saving.
    if (fault != Fault::Fail) expectOldContentIsKept(program, now);
    if (!failed && fault != Fault::KillBefore && fault != Fault::KillAfter) {
      EXPECT_EQ(now, after) << "nobody was told that it is not done";
    }
    if (fault == Fault::Shorten || fault == Fault::Delay) {
      EXPECT_FALSE(failed);
    }
    if (fault != Fault::KillBefore && fault != Fault::KillAfter) {
      EXPECT_EQ(temporariesIn(program), 0);
    }
    expectLeftoversToGo(program);
    if (HasFailure()) return;
  }
  RecordProperty("steps", step - 1);
  // Where no step was counted, nothing was tried.
  EXPECT_GT(step, 1);
  EXPECT_LT(step, kMoreStepsThanAnyWorkHas);
}

std::string nameOf(const testing::TestParamInfo<std::tuple<Work, Fault>>& info) {
  constexpr const char* kFaults[] = {"Fails", "EndsShort", "IsDelayed", "IsKilledBefore",
                                     "IsKilledAfter"};
  return std::string(std::get<0>(info.param).name) +
         kFaults[static_cast<std::size_t>(std::get<1>(info.param))];
}

INSTANTIATE_TEST_SUITE_P(EveryWork, FileFaults,
                         testing::Combine(testing::ValuesIn(kWorks),
                                          testing::Values(Fault::Fail, Fault::Shorten, Fault::Delay,
                                                          Fault::KillBefore, Fault::KillAfter)),
                         nameOf);

TEST(FileFaultsOfSettings, atEveryValueEachIsOldOrNewAndTheNextSaveMakesThemAllNew) {
  MemorySettingsStore whole;
  storeSettings(whole, Settings{});
  Settings changed;
  changed.AmPm = !changed.AmPm;
  changed.Fast_delete_msg = !changed.Fast_delete_msg;
  MemorySettingsStore wanted;
  storeSettings(wanted, changed);
  ASSERT_GT(wanted.values.size(), 10U);
  for (std::size_t value = 1; value <= wanted.values.size(); ++value) {
    MemorySettingsStore store;
    store.values = whole.values;
    store.failingSave = value;
    EXPECT_THROW(storeSettings(store, changed), Failure);
    for (const auto& [key, text] : store.values) {
      EXPECT_TRUE(text == whole.values.at(key) || text == wanted.values.at(key));
    }
    storeSettings(store, changed);
    EXPECT_EQ(store.values, wanted.values);
  }
}

}  // namespace
}  // namespace kalvora
