// Whatever is typed, renamed, deleted, restored and left in the main window and in the note editor,
// in whatever order, under reminders and open questions too: each window shows of its note what was
// saved last, but for what is typed over it; each note is there once, with what was saved last of
// each of its parts, and no deleted one comes back by itself.

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
    store.values[L"Comfort/Ring_while_out"] = L"True";
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
    for (const int minute : {30, 31}) {
      note(reminderAt(minute), "12|" + std::to_string(minute) + "|rings");
    }
    form().Form_Load();
    openWindow();
    openEditorOn(L"A");
    onPage_ = inWindow_ = 1;
  }

  void step() {
    const std::size_t asked = view.questions.size();
    act();
    RC_ASSERT(view.questions.size() == asked + std::exchange(questions_, 0));
    expectShown();
  }

 private:
  void act() {
    switch (*rc::gen::inRange(0, 14)) {
      case 0:
        return typeInWindow(FieldId::Text1, inTheWindow_.title, "N");
      case 1:
        return appendInWindow("w");
      case 2:
        return typeTimeInWindow();
      case 3:
        return typeOnPage(nameBox(), onThePage_.title, "N");
      case 4:
        return appendOnPage();
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
      case 10:
        return *rc::gen::inRange(0, 4) == 0 ? deleteInWindow() : saveWindow();
      case 11:
        return *rc::gen::inRange(0, 2) == 0 ? deleteAndSaveOnPage() : deleteInWindowAndRestore();
      case 12:
        return leaveWindowWhilePageIsLeft();
      default:
        return ring();
    }
  }

 public:
  void end() {
    saveWindow();
    leaveThePage();
    std::map<std::string, std::string> expected;
    for (const auto& [id, parts] : notes_) expected[*parts.title + ".tx2"] = parts.bytes();
    std::map<std::string, std::string> found;
    for (const std::string& name : noteNames()) found[name] = contentOf(name).value();
    for (const int minute : {30, 31}) found.erase(reminderAt(minute));
    RC_ASSERT(found == expected);
    RC_ASSERT(editorView.questions.empty());
  }

  void TestBody() override {}

 private:
  static std::wstring wide(const std::string& text) { return {text.begin(), text.end()}; }
  static std::string reminderAt(int minute) { return "Z" + std::to_string(minute) + ".txt"; }
  std::string newWords(const char* beginning) { return beginning + std::to_string(++typed_); }

  void expectShown() {
    if (inWindow_ != 0) {
      const NoteParts parts = over(inWindow_, inTheWindow_);
      RC_ASSERT(text(FieldId::Text1) == wide(*parts.title));
      RC_ASSERT(text(FieldId::Text2) == wide(*parts.text));
      std::string time = *parts.time;
      RC_ASSERT(text(FieldId::Text3) == wide(time.replace(time.find('|'), 1, ":")));
    }
    if (onPage_ != 0) {
      const NoteParts parts = over(onPage_, onThePage_);
      RC_ASSERT(editorView.text(nameBox()) == wide(*parts.title));
      RC_ASSERT(editorView.text(textBox()) == wide(*parts.text));
      for (int day = 0; day < 7; ++day) {
        RC_ASSERT(editorView.ticked(tickOf(day)) == parts.turned.at(static_cast<std::size_t>(day)));
      }
    }
  }
  NoteParts over(int id, const NoteParts& typed) const {
    NoteParts parts = notes_.at(id);
    parts.take(typed);
    return parts;
  }

  void typeInWindow(FieldId field, std::optional<std::string>& part, const char* beginning) {
    if (inWindow_ == 0) return;
    part = newWords(beginning);
    view.setText(field, wide(*part));
  }
  void appendInWindow(const char* words) {
    if (inWindow_ == 0) return;
    inTheWindow_.text = *over(inWindow_, inTheWindow_).text + newWords(words);
    view.setText(FieldId::Text2, wide(*inTheWindow_.text));
  }
  void appendOnPage() {
    if (onPage_ == 0) return;
    onThePage_.text = *over(onPage_, onThePage_).text + newWords("p");
    editorView.setText(textBox(), wide(*onThePage_.text));
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
  /// As a new note of the same name, which the other window knows again.
  void deleteAndSaveOnPage() {
    if (onPage_ == 0) return;
    const int id = onPage_;
    const NoteParts before = notes_.at(id);
    const NoteParts parts = over(id, onThePage_);
    const bool isInWindow = inWindow_ == id;
    deleteOnPage();
    editor.cmdSave(NoteKind::Weekly);
    notes_[id] = parts;
    onPage_ = id;
    if (isInWindow && parts.title == before.title) inWindow_ = id;
  }
  void deleteInWindowAndRestore() {
    if (inWindow_ == 0) return;
    const int id = inWindow_;
    const NoteParts parts = notes_.at(id);
    const bool isOnPage = onPage_ == id;
    deleteInWindow();
    editorView.onChoose = [&](const std::vector<SafetyCopy>& found) {
      std::size_t i = 0;
      while (found.at(i).isDraft || found.at(i).name != wide(*parts.title) ||
             copies.read(found.at(i)) != parts.bytes()) {
        ++i;
      }
      return std::optional(i);
    };
    editor.cmdRestore();
    notes_[id] = parts;
    if (isOnPage) onPage_ = id;
  }
  /// The window asks whether it may replace a character; meanwhile the page is left.
  void leaveWindowWhilePageIsLeft() {
    if (inWindow_ == 0) return;
    appendInWindow("w");
    view.setText(FieldId::Text2, wide(*inTheWindow_.text) + L'\x4E2D');
    *inTheWindow_.text += '?';
    questions_ = 1;
    view.onAsk = [this] {
      view.onAsk = nullptr;
      leaveThePage();
    };
    click(ButtonId::Buttons_main_05);
    takeWindow();
    inWindow_ = noteOf(text(FieldId::Text1));
  }
  /// What a reminder comes over is as it was afterwards, but for what the page saves meanwhile.
  void ring() {
    minute_ = minute_ == 30 ? 31 : 30;
    minuteCheckAt(12, minute_);
    RC_ASSERT(reminderOnShow());
    switch (*rc::gen::inRange(0, 4)) {
      case 0:
        leaveThePage();
        break;
      case 1:
        saveWindow();
        break;
      case 2:
        pickOne();
        break;
      default:
        break;
    }
    click(ButtonId::Buttons_Close);
    RC_ASSERT(!reminderOnShow());
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
  std::size_t questions_ = 0;  // that the step brings
  int minute_ = 30;
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
