#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <string>

#include "unit/notes/EditorFixture.h"

namespace kalvora {
namespace {

class EditorRoundTrip : public EditorFixture {
 protected:
  void TestBody() override {}

 public:
  /// Reads a file of these bytes, saves it and returns what it has become.
  std::string readAndSaved(NoteKind kind, const std::string& bytes) {
    const std::wstring file = L"a" + std::wstring(extensionOf(kind));
    give(file, bytes);
    RC_ASSERT(pick(kind, L"a"));
    editor_.cmdSave(kind);
    return files_.content.at(file);
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
  for (const int code : *rc::gen::container<std::vector<int>>(rc::gen::inRange(0x1F, 0x100))) {
    if (code == 0x1F) {
      text += "\r\n";
    } else if (code != '|') {
      text += static_cast<char>(code);
    }
  }
  return text;
}

std::string wellFormedNote(NoteKind kind) {
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
  RC_ASSERT(editor.readAndSaved(kind, bytes) == bytes);
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
