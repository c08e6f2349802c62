#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

#include "app/Form1.h"
#include "base/Errors.h"
#include "fakes/FakeClock.h"
#include "fakes/FakeForm1View.h"
#include "fakes/FakeOtherWindows.h"
#include "fakes/FakePlatform.h"
#include "fakes/FakeReporter.h"
#include "fakes/FakeSkinValues.h"
#include "fakes/MemorySettingsStore.h"
#include "fakes/SkinFiles.h"
#include "fakes/TempFolder.h"
#include "posix/StandardFileSystem.h"
#include "posix/StandardFileWriter.h"

namespace kalvora {

/// The real files, one of which cannot be read.
class TroubledFileSystem : public StandardFileSystem {
 public:
  std::string read(const std::filesystem::path& file, std::size_t limit) const override {
    if (file.filename() == unreadable) throw FileError(L"This file cannot be read: ", file);
    return StandardFileSystem::read(file, limit);
  }

  std::filesystem::path unreadable;
};

/// The real files, which can be made to refuse any change, and a record of what was removed.
class TroubledFileWriter : public StandardFileWriter {
 public:
  void writeSafely(const std::filesystem::path& file, std::string_view bytes) override {
    if (refusesToWrite) throw FileError(L"This file cannot be written: ", file);
    StandardFileWriter::writeSafely(file, bytes);
  }
  Removal remove(const std::filesystem::path& file) override {
    if (refusesToRemove || file.filename() == locked)
      throw FileError(L"This file cannot be deleted: ", file);
    removed.push_back(file.filename().string());
    return StandardFileWriter::remove(file);
  }
  void move(const std::filesystem::path& from, const std::filesystem::path& to) override {
    if (from.filename() == locked) throw FileError(L"This file cannot be renamed: ", from);
    StandardFileWriter::move(from, to);
  }

  bool refusesToWrite = false;
  bool refusesToRemove = false;
  std::filesystem::path locked;  // the name of a file that can be written and not removed
  std::vector<std::string> removed;
};

/// A program folder with one small skin (a window of 60 × 40 pixels, 20 when rolled up) and no
/// notes, and a Form1 on fakes over it.
class Form1Test : public testing::Test {
 protected:
  Form1Test() {
    writeSmallSkin(folder, "skins/One");
    // Eight buttons of 5 × 5 pixels side by side, at y 30; the rows of cells above them.
    int x = 2;
    for (const wchar_t* section : {L"Fast Delete", L"Rool Down/Up", L"Minimize", L"New", L"Save",
                                   L"Delete", L"Left", L"Right"}) {
      skinValues.set(section, L"X", numberToText(x));
      skinValues.set(section, L"Y", L"30");
      skinValues.set(section, L"W", L"5");
      skinValues.set(section, L"H", L"5");
      x += 7;
    }
  }

  Form1& form() {
    if (!form_) form_.emplace(ports());
    return *form_;
  }

  Form1Ports ports() {
    return {guard,  files,         fileWriter(), store, skinValues, codePage,
            clock,  dateTexts,     view,         tray,  sounds,     ProgramFolders(folder.path()),
            copies, otherWindows()};
  }

  void note(const std::string& name, std::string_view bytes) {
    folder.write("notes/" + name, bytes);
  }

  /// The bytes of a note file; nothing where there is none.
  std::optional<std::string> contentOf(const std::string& name) const {
    std::ifstream in(folder.path() / "notes" / name, std::ios::binary);
    if (!in) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(in), {});
  }

  /// The middle of a button of the skin.
  static Point middleOf(ButtonId button) { return {4 + 7 * static_cast<int>(button), 32}; }

  void click(ButtonId button) {
    form().Form_MouseDown(MouseButton::Left, middleOf(button));
    form().mouseUp(MouseButton::Left, middleOf(button));
  }

  void tick(TimerId timer, int times = 1) {
    for (int i = 0; i < times; ++i) form().timerTick(timer);
  }

  /// Until the window stands still.
  void settle() { settle(form()); }
  void settle(Form1& program) {
    for (const TimerId timer : {TimerId::Timer1, TimerId::Timer2}) {
      while (view.runs(timer)) program.timerTick(timer);
    }
  }

  /// The titles that paging shows, from the first note to the last. Two notes side by side must
  /// not have the same one.
  std::vector<std::wstring> titlesByPaging() {
    constexpr int kMoreNotesThanAnyTestHas = 10;
    for (int i = 0; i < kMoreNotesThanAnyTestHas; ++i) click(ButtonId::Buttons_main_04);
    std::vector<std::wstring> titles{text(FieldId::Text1)};
    for (int i = 0; i < kMoreNotesThanAnyTestHas; ++i) {
      click(ButtonId::Buttons_main_05);
      if (text(FieldId::Text1) != titles.back()) titles.push_back(text(FieldId::Text1));
    }
    return titles;
  }

  /// The place that another start brings the window out to.
  Point homeAfterStart() {
    Form1 start(ports());
    start.Form_Load();
    start.Nastepny_Load_Formy();
    settle(start);
    return {view.rect.x, view.rect.y};
  }

  /// The stored place of the window.
  Point storedPlace() {
    return {std::stoi(store.values[L"Graph/Window_X"]), std::stoi(store.values[L"Graph/Window_Y"])};
  }

  /// Whether a row of cells says what it would if the text were drawn into it.
  bool rowSays(RowId row, std::wstring_view expected) {
    SkinnedWindow other;
    other.wear(loadSkin(files, skinValues, folder.path() / "skins/One"));
    other.Pokaz_Tekst(row, expected);
    for (int cell = 0; cell < other.rowLength(row); ++cell) {
      if (other.glyphAt(row, cell) != form().window().glyphAt(row, cell)) return false;
    }
    return true;
  }

  std::wstring text(FieldId field) const { return view.text(field); }

  FakeReporter reporter;
  EventGuard guard{reporter};
  TempFolder folder;
  TroubledFileSystem files;
  TroubledFileWriter writer;
  MemorySettingsStore store;
  FakeSkinValues skinValues;
  Windows1252 codePage;
  FakeClock clock{{2026, 11, 21, 6, 3, 17, 5}};
  FakeDateTexts dateTexts;
  FakeForm1View view;
  FakeTrayIcon tray;
  FakeSounds sounds;
  StandardFileWriter backupWriter;
  SafetyCopies copies{folder.path() / "backup", files, backupWriter, clock,
                      [this] { return form().noteKinds(); }};
  FakeOtherWindows others;

 private:
  virtual OtherWindows& otherWindows() { return others; }
  virtual FileWriter& fileWriter() { return writer; }

  std::optional<Form1> form_;
};

}  // namespace kalvora
