#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "notes/NoteFields.h"

namespace kalvora {
namespace {

/// A text that a file can hold: characters of the code page without the separator.
rc::Gen<std::string> fieldBytes() {
  return rc::gen::container<std::string>(rc::gen::distinctFrom(rc::gen::arbitrary<char>(), '|'));
}

/// What is read where these bytes stand last: nothing there is a NUL character to the reader.
std::wstring lastFieldText(const std::string& bytes) {
  return bytes.empty() ? std::wstring(1, L'\0') : Windows1252().toText(bytes);
}

RC_GTEST_PROP(NoteFieldsProperty, fieldsJoinedBySeparatorsReadBack, ()) {
  const NoteKind kind = *rc::gen::elementOf(kNoteKinds);
  NoteFields written = emptyFields(kind);
  std::string file;
  const auto texts = inFileOrder(written);
  for (std::wstring* text : texts) {
    const std::string bytes = *fieldBytes();
    const bool last = text == texts.back();
    *text = last ? lastFieldText(bytes) : Windows1252().toText(bytes);
    file += last ? bytes : bytes + "|";
  }
  RC_ASSERT(readFields(kind, file, Windows1252()) == written);
}

RC_GTEST_PROP(NoteFieldsProperty, whatFollowsASeparatorInTheContentIsNotRead, ()) {
  const NoteKind kind = *rc::gen::elementOf(kNoteKinds);
  NoteFields fields = emptyFields(kind);
  const std::string head(inFileOrder(fields).size() - 1, '|');
  const std::string content = *fieldBytes();
  *inFileOrder(fields).back() = Windows1252().toText(content);
  const std::string tail = *rc::gen::arbitrary<std::string>();
  RC_ASSERT(readFields(kind, head + content + "|" + tail, Windows1252()) == fields);
}

}  // namespace
}  // namespace kalvora
