#include "notes/NotePageReader.h"

#include "base/Dates.h"
#include "base/Errors.h"
#include "base/InputFilters.h"
#include "base/Numbers.h"
#include "notes/NoteDate.h"
#include "notes/NoteFields.h"

namespace kalvora {

namespace {

constexpr int kNoMonth = -1;
constexpr int kMonthCount = 12;
constexpr std::wstring_view kNoDate = L"This note has no date: today is shown in its place.";
constexpr std::wstring_view kNoSuchDate =
    L"This note's date does not exist: today is shown in its place.";

/// What a number list takes of a text.
std::wstring digitsOf(std::wstring_view text) {
  return Zabezpieczenie_Cyfry(text, 0, DigitBox::Number).text;
}

int monthPosition(std::wstring_view MonthY_txt) {
  try {
    const int month = textToInt16(MonthY_txt);
    return month >= 0 && month < kMonthCount ? month : kNoMonth;
  } catch (const Failure&) {
    return kNoMonth;
  }
}

}  // namespace

bool NotePageReader::Inicjuj_czytanie(NoteKind kind, const std::wstring& name) {
  fields_.reset();
  std::optional<std::string> bytes = folder_.read(kind, name);
  if (!bytes) {
    view_.showError(L"Error!", L"The file is too large to open!");
    return false;
  }
  bytes_ = std::move(*bytes);
  fields_.emplace(bytes_, codePage_);
  view_.setText(controlOf(ControlArray::FName, kind), name);
  state_.oldName(kind) = name;
  state_.read(kind) = noteAsRead(kind, bytes_, codePage_);
  return true;
}

void NotePageReader::Czytaj_zmienna(const PageField& field) {
  if (fields_) show(field, fields_->Czytaj_zmienna());
}

void NotePageReader::show(const PageField& field, const std::wstring& stored) {
  const std::wstring text = withoutNuls(stored);
  switch (field.form) {
    case FieldForm::Hour:
      showHour(field.control, text);
      break;
    case FieldForm::Number:
      view_.setText(field.control, digitsOf(text));
      break;
    case FieldForm::Weekday: {
      const std::wstring Check_txt = weekdayFlag(stored);
      view_.setTicked(field.control, Check_txt == L"1");
      break;
    }
    case FieldForm::Month:
      view_.select(field.control, monthPosition(text));
      break;
    case FieldForm::DateYear:
      year_ = text;
      break;
    case FieldForm::DateMonth:
      month_ = text;
      break;
    case FieldForm::DateDay:
      showDate(field.control, text);
      break;
    case FieldForm::Content:
      view_.setText(field.control, text);
      break;
  }
}

void NotePageReader::showDate(const EditorControl& control, std::wstring_view day) {
  const auto date = noteDate(year_, month_, day);
  view_.setDate(control, date.value_or(dateOf(clock_.now())));
  if (date) return;
  view_.setNotice(year_.empty() && month_.empty() && day.empty() ? kNoDate : kNoSuchDate);
}

// A note without a time leaves the half of the day as it was.
void NotePageReader::showHour(const EditorControl& control, std::wstring_view AmPmText) {
  const ShownHour shown = shownHourOrText(AmPmText, state_.hourFormat);
  const auto& selector = editorPage(kindOf(control)).selector;
  if (shown.half && selector) view_.select(*selector, *shown.half == HalfOfDay::Am ? 0 : 1);
  view_.setText(control, digitsOf(shown.hour));
}

void NotePageReader::Zakoncz_czytanie() {
  fields_.reset();
  bytes_.clear();
}

}  // namespace kalvora
