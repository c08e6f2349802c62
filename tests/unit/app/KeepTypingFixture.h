#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "fakes/FakeNoteFollower.h"
#include "notes/All_Notes_frm.h"
#include "notes/KeepingFileWriter.h"
#include "unit/app/ReminderFixture.h"

namespace kalvora {

/// A user who wants notes saved when they are left, with a weekly note "Gym" on show between two
/// others. Notes change as in the program, with safety copies.
class KeepTypingFixture : public Form1Reminders {
 public:
  static constexpr std::string_view kGym = "07|5|0|1|0|0|0|1|0|Mat";

  KeepTypingFixture() {
    store.values[L"Comfort/Keep_typing"] = L"True";
    note("Before.txt", "||one before");
    note("Gym.tx2", kGym);
    note("Zoo.txt", "9|40|one behind");
  }

  void start() {
    form().Form_Load();
    openWindow();
    click(ButtonId::Buttons_main_05);
    ASSERT_EQ(text(FieldId::Text1), L"Gym");
  }

  void typeTitle(std::wstring_view typed) {
    view.setText(FieldId::Text1, typed);
    form().Text1_Change();
  }
  void typeText(std::wstring_view typed) {
    view.setText(FieldId::Text2, typed);
    form().Text2_Change();
  }
  void typeTime(std::wstring_view typed) {
    view.setText(FieldId::Text3, typed);
    form().Text3_Change();
  }

  std::size_t draftCount() const {
    return static_cast<std::size_t>(
        std::ranges::count_if(copies.newestFirst(), &SafetyCopy::isDraft));
  }
  /// The bytes of every safety copy that is no draft.
  std::vector<std::string> safetyCopies() const {
    std::vector<std::string> found;
    for (const SafetyCopy& copy : copies.newestFirst()) {
      if (!copy.isDraft) found.push_back(copies.read(copy));
    }
    return found;
  }
  std::vector<std::string> noteNames() const {
    std::vector<std::string> names;
    for (const std::wstring& name : files.files(folder.path() / "notes", L"*")) {
      names.push_back(std::filesystem::path(name).string());
    }
    return names;
  }

  using Form1Reminders::click;
  using Form1Reminders::clock;
  using Form1Reminders::doubleClickTray;
  using Form1Reminders::form;
  using Form1Reminders::minuteCheckAt;
  using Form1Reminders::settle;
  using Form1Reminders::view;

 protected:
  /// Writes down what it hears, and passes it on.
  class Follower : public FakeNoteFollower {
   public:
    explicit Follower(KeepTypingFixture& program) : program_(program) {}
    void noteCopied(std::wstring_view from, std::wstring_view to) override {
      FakeNoteFollower::noteCopied(from, to);
      program_.form().noteCopied(from, to);
    }
    void noteRenamed(std::wstring_view from, std::wstring_view to) override {
      FakeNoteFollower::noteRenamed(from, to);
      program_.form().noteRenamed(from, to);
      if (All_Notes_frm* const editor = program_.openedEditor()) editor->noteRenamed(from, to);
    }
    void noteDeleted(std::wstring_view name) override {
      FakeNoteFollower::noteDeleted(name);
      program_.form().noteDeleted(name);
      if (All_Notes_frm* const editor = program_.openedEditor()) editor->noteDeleted(name);
    }
    void noteWritten(std::wstring_view name) override {
      FakeNoteFollower::noteWritten(name);
      program_.form().noteWritten(name);
      if (All_Notes_frm* const editor = program_.openedEditor()) editor->noteWritten(name);
    }

   private:
    KeepTypingFixture& program_;
  };
  Follower follower{*this};

  KeepingFileWriter keeping{folder.path() / "notes", writer, copies, follower};

 private:
  FileWriter& fileWriter() override { return keeping; }
  /// The note editor, where the user has it.
  virtual All_Notes_frm* openedEditor() { return nullptr; }
};

/// A way of leaving the note on show.
struct WayOfLeaving {
  const char* name;
  /// Whether a question can be asked, and the note stays on show where it is answered so.
  bool attended;
  std::function<void(KeepTypingFixture&)> leave;
};

inline void PrintTo(const WayOfLeaving& way, std::ostream* out) {
  *out << way.name;
}

/// A reminder only comes over what is typed where that could not be saved when the window went.
inline void comeOverByAReminder(KeepTypingFixture& user) {
  std::map<FieldId, std::wstring> typed;
  const std::map<FieldId, std::wstring_view> asRead = {
      {FieldId::Text1, L"Gym"}, {FieldId::Text2, L"Mat"}, {FieldId::Text3, L"07:5"}};
  for (const auto& [field, text] : asRead) {
    typed[field] = user.view.text(field);
    user.view.setText(field, text);
  }
  user.click(ButtonId::Buttons_Close);
  user.settle();
  for (const auto& [field, text] : typed) user.view.setText(field, text);
  user.minuteCheckAt(9, 40);
}

inline std::vector<WayOfLeaving> waysOfLeaving() {
  const auto pressing = [](ButtonId button) {
    return [button](KeepTypingFixture& user) {
      user.click(button);
      user.settle();
    };
  };
  return {
      {"Right", true, pressing(ButtonId::Buttons_main_05)},
      {"Left", true, pressing(ButtonId::Buttons_main_04)},
      {"New", true, pressing(ButtonId::Buttons_main_01)},
      {"Close", true, pressing(ButtonId::Buttons_Close)},
      {"TrayIcon", true,
       [](KeepTypingFixture& user) {
         user.doubleClickTray();
         user.settle();
       }},
      {"CloseThoughAReminderWaits", true,
       [](KeepTypingFixture& user) {
         user.minuteCheckAt(9, 40);
         user.click(ButtonId::Buttons_Close);
         user.settle();
       }},
      {"AltF4", true,
       [](KeepTypingFixture& user) {
         user.form().closeByKeyboard();
         user.settle();
       }},
      {"EditorCloses", true, [](KeepTypingFixture& user) { user.form().showFirstNote(); }},
      {"Exit", true, [](KeepTypingFixture& user) { user.form().Koniec_Kalvora(); }},
      {"EditorOpens", false, [](KeepTypingFixture& user) { user.form().saveMainWindow(); }},
      {"SessionIsToEnd", false, [](KeepTypingFixture& user) { user.form().saveTyped(); }},
      {"SessionEnds", false, [](KeepTypingFixture& user) { user.form().endWithSession(); }},
      {"Reminder", false, comeOverByAReminder},
  };
}

}  // namespace kalvora
