// Whatever is typed, renamed, deleted and left in the main window and in the note editor, in
// whatever order: each note is there once, with what was saved last of each of its parts, and no
// deleted one comes back.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <array>
#include <map>
#include <optional>
#include <string>

#include "unit/app/TwoWindowsFixture.h"

namespace kalvora {
namespace {

/// A weekly note; what was typed into one stands in the same parts.
struct NoteParts {
  std::optional<std::string> title;
  std::optional<std::string> time;
  std::optional<std::string> text;
  std::array<bool, 7> turned{};  // weekdays, each from what it was

  void take(const NoteParts& typed) {
    if (typed.title) title = typed.title;
    if (typed.time) time = typed.time;
    if (typed.text) text = typed.text;
    for (std::size_t day = 0; day < turned.size(); ++day) {
      if (typed.turned.at(day)) turned.at(day) = !turned.at(day);
    }
  }
  std::string bytes() const {
    std::string bytes = *time + "|";
    for (const bool ticked : turned) bytes += ticked ? "1|" : "0|";
    return bytes + *text;
  }
};

class UserOfBoth : public TwoWindows {
 public:
  UserOfBoth() {
    for (const char* name : {"Before.txt", "Gym.tx2", "Zoo.txt"}) {
      std::filesystem::remove(folder.path() / "notes" / name);
    }
    for (const char* title : {"A", "B", "C"}) {
      NoteParts parts;
      parts.title = title;
      parts.time = "7|5";
      parts.text = "of " + *parts.title;
      note(*parts.title + ".tx2", parts.bytes());
      notes_[++ids_] = parts;
    }
    form().Form_Load();
    openWindow();
    openEditorOn(L"A");
    onPage_ = inWindow_ = 1;
  }

  void step() {
    switch (*rc::gen::inRange(0, 11)) {
      case 0:
        return typeInWindow(FieldId::Text1, inTheWindow_.title, "N");
      case 1:
        return typeInWindow(FieldId::Text2, inTheWindow_.text, "w");
      case 2:
        return typeTimeInWindow();
      case 3:
        return typeOnPage(nameBox(), onThePage_.title, "N");
      case 4:
        return typeOnPage(textBox(), onThePage_.text, "w");
      case 5:
        return turnWeekday();
      case 6:
        return page(ButtonId::Buttons_main_04);
      case 7:
        return page(ButtonId::Buttons_main_05);
      case 8:
        return pickOne();
      case 9:
        return *rc::gen::inRange(0, 4) == 0 ? deleteOnPage() : leaveThePage();
      default:
        return *rc::gen::inRange(0, 4) == 0 ? deleteInWindow() : saveWindow();
    }
  }

  void end() {
    saveWindow();
    leaveThePage();
    std::map<std::string, std::string> expected;
    for (const auto& [id, parts] : notes_) expected[*parts.title + ".tx2"] = parts.bytes();
    std::map<std::string, std::string> found;
    for (const std::string& name : noteNames()) found[name] = contentOf(name).value();
    RC_ASSERT(found == expected);
    RC_ASSERT(view.questions.empty());
    RC_ASSERT(editorView.questions.empty());
  }

  void TestBody() override {}

 private:
  static std::wstring wide(const std::string& text) { return {text.begin(), text.end()}; }
  std::string newWords(const char* beginning) { return beginning + std::to_string(++typed_); }

  void typeInWindow(FieldId field, std::optional<std::string>& part, const char* beginning) {
    if (inWindow_ == 0) return;
    part = newWords(beginning);
    view.setText(field, wide(*part));
  }
  void typeTimeInWindow() {
    if (inWindow_ == 0) return;
    // Never the time that stands there.
    const int minute = ++typed_;
    view.setText(FieldId::Text3, L"9:" + std::to_wstring(minute));
    inTheWindow_.time = "9|" + std::to_string(minute);
  }
  void typeOnPage(const EditorControl& box, std::optional<std::string>& part,
                  const char* beginning) {
    if (onPage_ == 0) return;
    part = newWords(beginning);
    editorView.setText(box, wide(*part));
  }
  void turnWeekday() {
    if (onPage_ == 0) return;
    const int day = *rc::gen::inRange(0, 7);
    editorView.setTicked(tickOf(day), !editorView.ticked(tickOf(day)));
    bool& turned = onThePage_.turned.at(static_cast<std::size_t>(day));
    turned = !turned;
  }

  /// What is typed stands in the notes from here on.
  void takeWindow() { take(inWindow_, inTheWindow_); }
  void takePage() { take(onPage_, onThePage_); }
  void take(int note, NoteParts& typed) {
    if (note != 0) notes_.at(note).take(typed);
    typed = {};
  }
  /// The note that bears a name; 0 for none.
  int noteOf(std::wstring_view title) const {
    for (const auto& [id, parts] : notes_) {
      if (wide(*parts.title) == title) return id;
    }
    return 0;
  }

  void saveWindow() {
    takeWindow();
    form().saveMainWindow();
  }
  void page(ButtonId button) {
    takeWindow();
    click(button);
    inWindow_ = noteOf(text(FieldId::Text1));
  }
  void leaveThePage() {
    takePage();
    leavePage();
  }
  void pickOne() {
    const std::vector<std::wstring> names = editorView.at(list()).items;
    if (names.empty()) return;
    const std::wstring name = names.at(*rc::gen::inRange<std::size_t>(0, names.size()));
    const int chosen = noteOf(name);
    takePage();
    takeWindow();
    pick(name);
    onPage_ = chosen;
  }
  void deleteOnPage() {
    if (onPage_ == 0) return;
    editor.cmdDel(NoteKind::Weekly);
    forget(onPage_);
  }
  void deleteInWindow() {
    if (inWindow_ == 0) return;
    click(ButtonId::Buttons_main_03);
    forget(inWindow_);
    inWindow_ = noteOf(text(FieldId::Text1));
  }
  /// What was typed over it in either window goes with it.
  void forget(int note) {
    notes_.erase(note);
    if (std::exchange(inWindow_, inWindow_ == note ? 0 : inWindow_) == note) inTheWindow_ = {};
    if (std::exchange(onPage_, onPage_ == note ? 0 : onPage_) == note) onThePage_ = {};
  }

  std::map<int, NoteParts> notes_;
  int ids_ = 0;
  int typed_ = 0;
  int inWindow_ = 0;
  int onPage_ = 0;
  NoteParts inTheWindow_;
  NoteParts onThePage_;
};

RC_GTEST_PROP(TwoWindowsProperty, eachNoteIsThereOnceWithWhatWasSavedLastOfEachPart, ()) {
  UserOfBoth user;
  const int steps = *rc::gen::inRange(1, 40);
  for (int i = 0; i < steps; ++i) user.step();
  user.end();
}

}  // namespace
}  // namespace kalvora
