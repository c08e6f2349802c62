#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <chrono>
#include <string>

#include "notes/NoteDate.h"
#include "unit/notes/EditorFixture.h"

namespace kalvora {
namespace {

class EditorRoundTrip : public EditorFixture {
 protected:
  void TestBody() override {}

 public:
  /// Reads a file of these bytes, saves it and returns what it has become.
  std::string readAndSaved(NoteKind kind, const std::string& bytes,
                           const std::wstring& noteName = L"a") {
    const std::wstring file = noteName + std::wstring(extensionOf(kind));
    give(file, bytes);
    RC_ASSERT(pick(kind, noteName));
    editor_.cmdSave(kind);
    RC_ASSERT(files_.content.size() == 1U);
    RC_ASSERT(names(kind) == std::vector<std::wstring>{noteName});
    return files_.content.at(file);
  }
  /// Saves a filled page and reads it again after the page was emptied.
  FilledPage savedAndRead(const FilledPage& page, const std::wstring& noteName) {
    editor_.cmdNew(page.kind);
    fill(page, noteName);
    editor_.cmdSave(page.kind);
    editor_.cmdNew(page.kind);
    RC_ASSERT(pick(page.kind, noteName));
    return shown(page.kind);
  }
  using EditorFixture::open;
  using EditorFixture::shown;
};

std::string digits() {
  return *rc::gen::container<std::string>(rc::gen::inRange<char>('0', '9' + 1));
}

/// An hour as the editor stores it.
std::string hour() {
  const int number = *rc::gen::weightedOneOf<int>(
      {{1, rc::gen::just(-1)}, {4, rc::gen::inRange(0, 25)}, {1, rc::gen::inRange(0, 32768)}});
  return number < 0 ? "" : std::to_string(number);
}

/// A content that comes back: no separator, no NUL, whole line ends.
std::string content() {
  std::string text;
  for (const int code : *rc::gen::container<std::vector<int>>(rc::gen::inRange(1, 0x100))) {
    if (code == '\n') {
      text += "\r\n";
    } else if (code != '|') {
      text += static_cast<char>(code);
    }
  }
  return text;
}

/// A name that can be typed.
std::wstring noteName() {
  const std::string allowed =
      " ~`@#$%^&()-_=+[]{},.;'0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  const std::string name = *rc::gen::container<std::string>(rc::gen::elementOf(allowed));
  return {name.begin(), name.end()};
}

/// Any day that a note can be for.
std::chrono::year_month_day date() {
  using namespace std::chrono;
  const local_days first = local_days(kFirstNoteYear / January / 1);
  const local_days last = local_days(kLastNoteYear / December / 31);
  const int span = static_cast<int>((last - first).count());
  return year_month_day(first + days(*rc::gen::inRange(0, span + 1)));
}

/// A page with an hour that 12-hour time shows as it was chosen: 0 at pm is stored as 12, which is
/// shown as 12 at am, and 13 to 24 are shown as pm.
FilledPage filledPage(NoteKind kind, HourFormat format) {
  FilledPage page;
  page.kind = kind;
  if (editorPage(kind).selector) page.half = *rc::gen::inRange(0, 2);
  const bool in12Hours = format == HourFormat::Hours12;
  const int hour = in12Hours ? *rc::gen::inRange(page.half, 13) : *rc::gen::inRange(0, 25);
  for (const PageField& field : editorPage(kind).fields) {
    const std::string number = field.form == FieldForm::Hour ? std::to_string(hour) : digits();
    const bool isNumber = field.form == FieldForm::Hour || field.form == FieldForm::Number;
    if (isNumber) page.numbers.emplace_back(number.begin(), number.end());
    if (field.form == FieldForm::Weekday) page.weekdays += *rc::gen::element('0', '1');
    if (field.form == FieldForm::Month) page.month = *rc::gen::inRange(-1, 12);
  }
  if (kind == NoteKind::Once) page.date = date();
  page.content = Windows1252().toText(content());
  return page;
}

std::string numberIn(unsigned number) {
  return std::to_string(number) + "|";
}

std::string wellFormedNote(NoteKind kind) {
  const std::chrono::year_month_day onceOn = date();
  std::string bytes;
  for (const PageField& field : editorPage(kind).fields) {
    switch (field.form) {
      case FieldForm::Hour:
        bytes += hour() + "|";
        break;
      case FieldForm::Number:
        bytes += digits() + "|";
        break;
      case FieldForm::Weekday:
        bytes += *rc::gen::element<std::string>("0|", "1|");
        break;
      case FieldForm::Month:
        bytes += std::to_string(*rc::gen::inRange(-1, 12)) + "|";
        break;
      case FieldForm::DateYear:
        bytes += std::to_string(static_cast<int>(onceOn.year())) + "|";
        break;
      case FieldForm::DateMonth:
        bytes += numberIn(static_cast<unsigned>(onceOn.month()));
        break;
      case FieldForm::DateDay:
        bytes += numberIn(static_cast<unsigned>(onceOn.day()));
        break;
      case FieldForm::Content:
        bytes += content();
        break;
    }
  }
  return bytes;
}

RC_GTEST_PROP(NoteEditor, aNoteThatIsReadAndSavedIsUnchanged, ()) {
  const NoteKind kind = *rc::gen::elementOf(kNoteKinds);
  const HourFormat format = *rc::gen::element(HourFormat::Hours12, HourFormat::Hours24);
  const std::string bytes = wellFormedNote(kind);
  EditorRoundTrip editor;
  editor.open(format);
  RC_ASSERT(editor.readAndSaved(kind, bytes, noteName()) == bytes);
}

RC_GTEST_PROP(NoteEditor, aFilledPageThatIsSavedAndReadIsShownAsItWas, ()) {
  const NoteKind kind = *rc::gen::elementOf(kNoteKinds);
  const HourFormat format = *rc::gen::element(HourFormat::Hours12, HourFormat::Hours24);
  EditorRoundTrip editor;
  editor.open(format);
  const FilledPage page = filledPage(kind, format);
  RC_ASSERT(editor.savedAndRead(page, noteName()) == page);
}

/// Any bytes: the first save may mend them, and from then on they stay.
RC_GTEST_PROP(NoteEditor, aDamagedNoteThatIsReadAndSavedIsUnchangedFromThenOn, ()) {
  const NoteKind kind = *rc::gen::elementOf(kNoteKinds);
  const HourFormat format = *rc::gen::element(HourFormat::Hours12, HourFormat::Hours24);
  const auto bytes = *rc::gen::container<std::string>(
      rc::gen::elementOf(std::string("0123456789||||||-x. \r\t\x80\xFF") + '\0'));
  EditorRoundTrip editor;
  editor.open(format);
  try {
    const std::string mended = editor.readAndSaved(kind, bytes);
    const FilledPage page = editor.shown(kind);
    RC_ASSERT(editor.readAndSaved(kind, mended) == mended);
    RC_ASSERT(editor.shown(kind).content == page.content);
  } catch (const OverflowError&) {
    RC_SUCCEED("an hour beyond 16 bits cannot be saved");
  }
}

}  // namespace
}  // namespace kalvora
