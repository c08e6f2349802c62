#include "notes/NotePageWriter.h"

#include <cstdint>

#include "base/Errors.h"
#include "base/Numbers.h"
#include "notes/NoteWriter.h"

namespace kalvora {

namespace {

// After a save under the same name it is the first kind's list that is refreshed, whatever the
// kind: nothing in the kind's own list has changed.
constexpr int kMarkOfTheSameName = 0;

/// A month from 1, or a day.
template <typename Part>
std::wstring partToStore(Part part) {
  return numberToText(static_cast<std::int32_t>(static_cast<unsigned>(part)));
}

}  // namespace

void NotePageWriter::Inicjuj_zapisywanie(NoteKind kind) {
  kind_ = kind;
  name_ = view_.text(controlOf(ControlArray::FName, kind));
  fields_ = emptyFields(kind);
  written_ = 0;
}

void NotePageWriter::Zapisz_zmienna(const PageField& field) {
  *inFileOrder(fields_).at(written_) = textToStore(field);
  ++written_;
}

std::wstring NotePageWriter::textToStore(const PageField& field) const {
  switch (field.form) {
    case FieldForm::Hour:
      return hourToStore(field.control);
    case FieldForm::Weekday:
      return view_.ticked(field.control) ? L"1" : L"0";
    case FieldForm::Month:
      return numberToText(view_.selection(field.control));
    case FieldForm::DateYear:
      return numberToText(static_cast<int>(view_.date(field.control).year()));
    case FieldForm::DateMonth:
      return partToStore(view_.date(field.control).month());
    case FieldForm::DateDay:
      return partToStore(view_.date(field.control).day());
    case FieldForm::Number:
    case FieldForm::Content:
      break;
  }
  return view_.text(field.control);
}

std::wstring NotePageWriter::hourToStore(const EditorControl& control) const {
  return storedHour(view_.text(control), halfBeside(control), state_.hourFormat);
}

HalfOfDay NotePageWriter::halfBeside(const EditorControl& hour) const {
  const auto& selector = editorPage(kindOf(hour)).selector;
  return selector && view_.selection(*selector) == 1 ? HalfOfDay::Pm : HalfOfDay::Am;
}

TypedNote NotePageWriter::typed(NoteKind kind) const {
  TypedNote note{kind,
                 view_.text(controlOf(ControlArray::FName, kind)),
                 emptyFields(kind),
                 {},
                 state_.read(kind).content};
  const std::vector<std::wstring*> texts = inFileOrder(note.fields);
  auto text = texts.begin();
  for (const PageField& field : editorPage(kind).fields) {
    try {
      **text = textToStore(field);
    } catch (const Failure&) {
      // An hour beyond 16 bits; nothing else can fail.
      note.unstorable = view_.text(field.control);
      if (halfBeside(field.control) == HalfOfDay::Pm) note.unstorable += L" pm";
    }
    ++text;
  }
  return note;
}

void NotePageWriter::Zakoncz_zapisywanie() {
  std::wstring& oldName = state_.oldName(kind_);
  const std::string bytes = joinFields(fields_, codePage_, state_.read(kind_).content);
  folder_.save(kind_, name_, oldName, bytes);
  state_.read(kind_) = noteAsRead(kind_, bytes, codePage_);
  state_.refreshMark = name_ == oldName ? kMarkOfTheSameName : static_cast<int>(kind_);
  oldName = name_;
}

}  // namespace kalvora
