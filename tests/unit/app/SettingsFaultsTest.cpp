// Each save of each of the user's actions that store settings fails once, or is the last one before
// the program is killed. Whatever happens, every value that is stored is the old or the new one,
// the user is told what was not stored and keeps what was typed, and the next start works with it.

#include <gmock/gmock.h>

#include <map>
#include <tuple>

#include "Form1Fixture.h"
#include "app/OptionsForm.h"
#include "app/OtherWindows.h"
#include "fakes/FakeOptionsView.h"
#include "options/Options.h"

namespace kalvora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Values = std::map<std::wstring, std::wstring>;

constexpr int kMoreSavesThanAnyWorkHas = 100;

/// Where a work is done.
enum class Place { MainWindow, Dialog, End };

/// As of a user who has stored settings before. The main window stores its place by itself only
/// where it is always to be stored.
Values oldValues(Place place) {
  Settings settings;
  settings.alwaysSaveWinPos = place == Place::MainWindow;
  settings.Window_X = 300;
  settings.Window_Y = 200;
  settings.iconFilename = L"anchor.ico";
  MemorySettingsStore store;
  storeSettings(store, settings);
  return store.values;
}

/// The program with its options dialog. Its events come through the guard, as the shell's do.
class Program : public Form1Test, private OtherWindows {
 public:
  explicit Program(const Values& stored) {
    writeSmallSkin(folder, "skins/Two");
    folder.write("icons/anchor.ico", "");
    folder.write("icons/bell.ico", "");
    store.values = stored;
    deliver([this] { form().Form_Load(); });
  }
  void TestBody() override {}

  template <typename Handler>
  void deliver(const Handler& handler) {
    guard.run(handler);
  }
  void bringOut() {
    if (!isOut()) deliver([this] { form().pichook_MouseMove(515); });
    settle();
  }
  bool isOut() { return form().optionsHost().shown(); }
  /// What the options dialog shows, control by control.
  std::vector<std::wstring> shownInDialog() const {
    std::vector<std::wstring> shown;
    for (const OptionsRow& row : optionsRows()) {
      const auto* check = std::get_if<CheckId>(&row.control);
      shown.push_back(check != nullptr ? booleanToText(dialog.checked(*check))
                                       : dialog.text(std::get<TextId>(row.control)));
    }
    return shown;
  }

  using Form1Test::click;
  using Form1Test::folder;
  using Form1Test::form;
  using Form1Test::reporter;
  using Form1Test::store;
  using Form1Test::tray;
  using Form1Test::view;
  FakeOptionsView dialog;
  Options options{files, ProgramFolders(folder.path()), form().optionsHost(), dialog};

 private:
  OtherWindows& otherWindows() override { return *this; }
  void openMenu() override {}
  void openMenuAt(Point /*place*/) override {}
  void showWhatComes() override {}
  void showFind() override {}
  void keepTyped() noexcept override {}
  bool leave() override { return true; }
  void saveQuietly() noexcept override {}
  void unloadAll() override { options.unload(); }
  void followMainWindow(Point position) override { options.Opt_win_pos_tim_Timer(position); }
  void mainWindowDropped(Point position) override { options.windowDropped(position); }
};

struct Work {
  const char* name;
  Place place;
  void (*prepare)(Program&);
  void (*run)(Program&);
};

void PrintTo(const Work& work, std::ostream* out) {
  *out << work.name;
}

void openOptions(Program& program) {
  program.bringOut();
  program.options.open();
}

void enterAnotherValueEverywhere(Program& program) {
  openOptions(program);
  int number = 100;
  for (const OptionsRow& row : optionsRows()) {
    if (const auto* check = std::get_if<CheckId>(&row.control)) {
      program.dialog.setChecked(*check, !program.dialog.checked(*check));
    } else {
      const bool isPath = std::holds_alternative<std::wstring Settings::*>(row.member);
      const std::wstring text = numberToText(++number);
      program.dialog.setText(std::get<TextId>(row.control), isPath ? text + L".wav" : text);
    }
  }
}

/// As the user does with the mouse, which the program hears of only when it is told to look.
void moveAway(Program& program) {
  program.bringOut();
  program.view.rect.x = 400;
  program.view.rect.y = 350;
}

void drag(Program& program) {
  program.view.onDrag = [](FakeForm1View& dragged) {
    dragged.rect.x = 410;
    dragged.rect.y = 360;
  };
  program.form().Form_MouseDown(MouseButton::Left, {59, 39});
}

void pickSkinTwo(Program& program) {
  openOptions(program);
  program.dialog.skin = 1;
}

const Work kWorks[] = {
    {"Apply", Place::Dialog, enterAnotherValueEverywhere,
     [](Program& program) { program.options.cmdApply_Click(); }},
    {"Ok", Place::Dialog, enterAnotherValueEverywhere,
     [](Program& program) { program.options.cmdOK_Click(); }},
    {"ClickedSkin", Place::Dialog, pickSkinTwo,
     [](Program& program) { program.options.Lista_skor_Click(); }},
    {"WornSkin", Place::Dialog, pickSkinTwo,
     [](Program& program) { program.options.Command2_Click(); }},
    {"Icon", Place::Dialog, openOptions,
     [](Program& program) { program.options.Icon_btn_Click(1); }},
    {"Drag", Place::MainWindow, [](Program& program) { program.bringOut(); }, drag},
    {"SendingAway", Place::MainWindow, moveAway,
     [](Program& program) { program.click(ButtonId::Buttons_Close); }},
    {"End", Place::End, moveAway, [](Program& program) { program.form().Koniec_Kalvora(); }},
    {"EndWithOptionsOpen", Place::End,
     [](Program& program) {
       enterAnotherValueEverywhere(program);
       moveAway(program);
     },
     [](Program& program) { program.form().Koniec_Kalvora(); }},
};

struct Save {
  std::wstring name;  // section "/" key
  std::wstring text;
};

/// What a work stores where nothing ails it, in its order.
std::vector<Save> savesOf(const Work& work) {
  Program program(oldValues(work.place));
  work.prepare(program);
  program.store.calls.clear();
  program.deliver([&] { work.run(program); });
  EXPECT_THAT(program.reporter.messages, IsEmpty());
  std::vector<Save> saves;
  for (const std::wstring& call : program.store.calls) {
    const std::wstring_view word = L"save ";
    if (!call.starts_with(word)) continue;
    const std::size_t equals = call.find(L'=');
    saves.push_back({call.substr(word.size(), equals - word.size()), call.substr(equals + 1)});
  }
  return saves;
}

Values with(const std::vector<Save>& saves, Values values) {
  for (const Save& save : saves) values[save.name] = save.text;
  return values;
}

/// A failed save keeps no other value from being stored; a kill keeps all that come after it.
std::vector<Save> expectedOf(const std::vector<Save>& saves, Fault fault, int step) {
  const auto after = saves.begin() + step;
  if (fault == Fault::KillAfter) return {saves.begin(), after};
  if (fault == Fault::KillBefore) return {saves.begin(), after - 1};
  std::vector<Save> others = saves;
  others.erase(others.begin() + (step - 1));
  return others;
}

/// Each setting is read as it is stored.
void expectReadable(const Values& stored) {
  MemorySettingsStore store;
  store.values = stored;
  Settings read;
  EXPECT_EQ(Load_options_KV(store, {}, read, [](bool) {}), L"");
  store.values.clear();
  storeSettings(store, read);
  EXPECT_EQ(store.values, stored);
}

void expectNextStartToWork(const Values& stored) {
  expectReadable(stored);
  Program program(stored);
  EXPECT_TRUE(program.tray.present);
  EXPECT_EQ(program.tray.picture,
            program.folder.path() / "icons" / stored.at(L"Graph/Icon filename"));
  program.bringOut();
  EXPECT_TRUE(program.view.visible);
  EXPECT_EQ(numberToText(program.view.rect.x), stored.at(L"Graph/Window_X"));
  EXPECT_EQ(numberToText(program.view.rect.y), stored.at(L"Graph/Window_Y"));
  program.deliver([&] { openOptions(program); });
  EXPECT_EQ(numberToText(program.dialog.skin.value_or(-1)), stored.at(L"Sys/Last_skin"));
  program.deliver([&] { program.options.cmdOK_Click(); });
  EXPECT_FALSE(program.dialog.loaded);
  program.deliver([&] { program.form().tellUnreadableSettings(); });
  EXPECT_THAT(program.reporter.messages, IsEmpty());
  EXPECT_THAT(program.view.errors, IsEmpty());
}

/// The user reads which setting it was, and can try again where that was in the dialog.
void expectToldAndKept(Program& program, const Work& work, const Save& failed,
                       const std::vector<std::wstring>& shown) {
  const std::wstring key = failed.name.substr(failed.name.find(L'/') + 1);
  EXPECT_THAT(program.reporter.messages, ElementsAre(L"This setting cannot be saved: " + key));
  EXPECT_EQ(program.view.unloaded, work.place == Place::End);
  EXPECT_EQ(program.tray.present, work.place != Place::End);
  EXPECT_EQ(program.dialog.loaded, work.place == Place::Dialog);
  if (work.place != Place::Dialog) return;
  EXPECT_EQ(program.shownInDialog(), shown);
  program.deliver([&] { work.run(program); });
  EXPECT_EQ(program.reporter.messages.size(), 1U);
}

class SettingsFaults : public testing::TestWithParam<std::tuple<Work, Fault>> {};

TEST_P(SettingsFaults, leaveEverySettingReadableAtEverySave) {
  const Work& work = std::get<Work>(GetParam());
  const Fault fault = std::get<Fault>(GetParam());
  const std::vector<Save> saves = savesOf(work);
  const Values before = oldValues(work.place);
  for (const Save& save : saves) EXPECT_TRUE(before.contains(save.name));
  ASSERT_NE(with(saves, before), before) << "the work changes nothing";
  int step = 1;
  for (; step < kMoreSavesThanAnyWorkHas; ++step) {
    SCOPED_TRACE(step);
    Program program(before);
    work.prepare(program);
    const std::vector<std::wstring> shown = program.shownInDialog();
    program.store.arm(fault, step);
    program.deliver([&] { work.run(program); });
    if (!program.store.wasReached()) break;

    EXPECT_EQ(program.store.values, with(expectedOf(saves, fault, step), before));
    expectNextStartToWork(program.store.values);
    if (fault == Fault::Fail) {
      expectToldAndKept(program, work, saves.at(static_cast<std::size_t>(step) - 1), shown);
      if (work.place == Place::Dialog) {
        EXPECT_EQ(program.store.values, with(saves, before));
      }
    }
    if (HasFailure()) return;
  }
  // Each save met the fault, and none came after the last.
  EXPECT_EQ(static_cast<std::size_t>(step), saves.size() + 1);
}

std::string nameOf(const testing::TestParamInfo<SettingsFaults::ParamType>& info) {
  const Fault fault = std::get<Fault>(info.param);
  return std::string(std::get<Work>(info.param).name) + (fault == Fault::Fail ? "Fails"
                                                         : fault == Fault::KillBefore
                                                             ? "IsKilledBefore"
                                                             : "IsKilledAfter");
}

INSTANTIATE_TEST_SUITE_P(EveryWork, SettingsFaults,
                         testing::Combine(testing::ValuesIn(kWorks),
                                          testing::Values(Fault::Fail, Fault::KillBefore,
                                                          Fault::KillAfter)),
                         nameOf);

}  // namespace
}  // namespace kalvora
