// Whatever is typed and left, in whatever order: all of it stands in the notes, in their own kinds,
// and of each note only what was typed is another.

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <map>
#include <string>

#include "notes/NoteKind.h"
#include "unit/app/Form1Fixture.h"

namespace kalvora {
namespace {

/// What a note's file holds before its text; the time apart, where it has one.
struct ExpectedNote {
  NoteKind kind = NoteKind::Fast;
  std::string before;  // the date of a note for one date
  std::string time;    // hour "|" minute "|"
  std::string behind;  // weekdays, or all of a note of days
  std::string text;

  std::string bytes() const { return before + time + behind + text; }
};

class KeepTypingUser : public Form1Test {
 public:
  KeepTypingUser() {
    store.values[L"Comfort/Keep_typing"] = L"True";
    store.values[L"Comfort/Once_notes"] = L"True";
    store.values[L"Sys/AmPm"] = L"False";
    give("Daily", {NoteKind::Daily, "", "07|5|", "", "a"});
    give("Weekly", {NoteKind::Weekly, "", "8|05|", "0|1|x|0||12|1|", "b"});
    give("Monthly", {NoteKind::Monthly, "", "", "03|01|1|", "c"});
    give("Yearly", {NoteKind::Yearly, "", "", "20|4|01|1|", "d"});
    give("Fast", {NoteKind::Fast, "", "||", "", "e"});
    give("Once", {NoteKind::Once, "2027|03|28|", "9|0|", "", "f"});
    give("Odd", {NoteKind::Daily, "", "noon|70|", "", "g"});
    form().Form_Load();
    form().Nastepny_Load_Formy();
    settle();
  }

  void step() {
    switch (*rc::gen::inRange(0, 9)) {
      case 0:
        return type(FieldId::Text2, words());
      case 1:
        return type(FieldId::Text3, time());
      case 2:
        return type(FieldId::Text1, "Name " + std::to_string(++names_));
      case 3:
        return leaveBy([this] { click(ButtonId::Buttons_main_04); });
      case 4:
        return leaveBy([this] { click(ButtonId::Buttons_main_05); });
      case 5:
        return leaveBy([this] { click(ButtonId::Buttons_main_01); });
      case 6:
        refused_ += isNew_ && !hasWords() ? 1 : 0;
        return leaveBy([this] { guard.run([this] { click(ButtonId::Buttons_main_02); }); });
      case 7:
        return leaveBy([this] { form().saveTyped(); });
      default:
        return leaveBy([this] {
          click(ButtonId::Buttons_Close);
          settle();
          form().pichook_MouseMove(515);
          settle();
        });
    }
  }

  void end() {
    leaveBy([this] { form().Koniec_Kalvora(); });
    std::map<std::string, std::string> found;
    for (const std::wstring& name : files.files(folder.path() / "notes", L"*")) {
      const std::string file = std::filesystem::path(name).string();
      found[file] = contentOf(file).value();
    }
    std::map<std::string, std::string> expected;
    for (const auto& [title, note] : notes_) {
      const std::wstring extension(extensionOf(note.kind));
      expected[title + std::string(extension.begin(), extension.end())] = note.bytes();
    }
    RC_ASSERT(found == expected);
    RC_ASSERT(view.questions.empty());
    RC_ASSERT(reporter.messages.size() == refused_);
  }

  void TestBody() override {}

 private:
  void give(const std::string& title, const ExpectedNote& expected) {
    const std::wstring extension(extensionOf(expected.kind));
    note(title + std::string(extension.begin(), extension.end()), expected.bytes());
    notes_[title] = expected;
  }

  /// Never without a letter that a name can hold.
  static std::string words() {
    return "w" +
           *rc::gen::container<std::string>(rc::gen::elementOf(std::string("abcxyz ,.\xE4\xF6")));
  }
  static std::string time() {
    return std::to_string(*rc::gen::inRange(0, 25)) + ":" +
           std::to_string(*rc::gen::inRange(0, 60));
  }

  void type(FieldId field, const std::string& typed) {
    // A note of days has no time to be typed; a new one gets its words first.
    const bool takesTime = isNew_ ? typed.empty() || hasWords() : hasClockTime(onShow().kind);
    if (field == FieldId::Text3 && !takesTime) return;
    view.setText(field, Windows1252().toText(typed));
    typed_[field] = typed;
  }

  ExpectedNote onShow() const {
    return isNew_ ? ExpectedNote{NoteKind::Fast, "", "||", "", ""} : notes_.at(title_);
  }

  /// What is typed stands in the notes from here on.
  template <typename Leave>
  void leaveBy(const Leave& leave) {
    take();
    leave();
    findUnnamed();
    isNew_ = text(FieldId::Text1) == L"Untiled";
    title_ = std::filesystem::path(text(FieldId::Text1)).string();
  }

  void take() {
    ExpectedNote note = onShow();
    if (isNew_ && !hasWords()) return typed_.clear();
    if (const auto found = typed_.find(FieldId::Text2); found != typed_.end()) {
      note.text = found->second;
    }
    if (const auto found = typed_.find(FieldId::Text3); found != typed_.end()) {
      note.time = storedTime(found->second, note.time);
    }
    if (!isNew_) notes_.erase(title_);
    notes_[newTitle()] = note;
    typed_.clear();
  }
  bool hasWords() const {
    return typed_.contains(FieldId::Text1) || typed_.contains(FieldId::Text2);
  }
  /// An hour that is the same number keeps its digits.
  static std::string storedTime(const std::string& typed, const std::string& before) {
    const std::size_t colon = typed.find(':');
    if (colon == std::string::npos) return "||";
    const std::string hourBefore = before.substr(0, before.find('|'));
    const bool isNumber =
        !hourBefore.empty() && hourBefore.find_first_not_of("0123456789") == std::string::npos;
    const std::string hour = typed.substr(0, colon);
    const bool same = isNumber && std::stoi(hourBefore) == std::stoi(hour);
    return (same ? hourBefore : hour) + "|" + typed.substr(colon + 1) + "|";
  }
  std::string newTitle() const {
    if (const auto found = typed_.find(FieldId::Text1); found != typed_.end()) return found->second;
    return isNew_ ? kUnnamed : title_;
  }
  /// Its name is not foretold: it is the one that is there and was not before.
  void findUnnamed() {
    if (!notes_.contains(kUnnamed)) return;
    for (const std::wstring& name : files.files(folder.path() / "notes", L"*")) {
      const std::string title = std::filesystem::path(name).stem().string();
      if (notes_.contains(title)) continue;
      notes_[title] = notes_.at(kUnnamed);
      notes_.erase(kUnnamed);
      return;
    }
  }

  static constexpr const char* kUnnamed = "unnamed";

  std::map<std::string, ExpectedNote> notes_;
  std::map<FieldId, std::string> typed_;
  std::string title_ = "Daily";
  bool isNew_ = false;
  int names_ = 0;
  std::size_t refused_ = 0;  // saves of nothing
};

RC_GTEST_PROP(KeepTypingProperty, allThatIsTypedIsInItsNoteAndNothingElseChanges, ()) {
  KeepTypingUser user;
  const int steps = *rc::gen::inRange(1, 40);
  for (int i = 0; i < steps; ++i) user.step();
  user.end();
}

}  // namespace
}  // namespace kalvora
