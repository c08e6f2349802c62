#include "app/AlarmLine.h"

#include <algorithm>
#include <utility>

#include "base/Errors.h"

namespace kalvora {

namespace {

constexpr std::wstring_view kAm = L"AM";
constexpr std::wstring_view kPm = L"PM";

}  // namespace

void AlarmLine::begin() {
  format_ = hourFormatOf(settings_.AmPm);
  view_.setText(FieldId::AmPmLabel, settings_.AmPm ? kAm : L"");
}

void AlarmLine::show(const ShownNote& note) {
  view_.setText(FieldId::Text3, note.time);
  half_ = note.half.value_or(half_);
  if (note.half) drawHalf();
  if (!settings_.AmPm) view_.setText(FieldId::AmPmLabel, L"");
}

AlarmLine::Time AlarmLine::time() const {
  return {view_.text(FieldId::Text3), half_, format_};
}

void AlarmLine::showAgain(const Time& time) {
  view_.setText(FieldId::Text3, time.text);
  half_ = time.half;
  format_ = time.format;
  followOptions();
  drawHalf();
}

void AlarmLine::clear() {
  view_.setText(FieldId::Text3, L"");
}

void AlarmLine::AmPmLabel_Click() {
  const bool isAm = view_.text(FieldId::AmPmLabel) == kAm;
  half_ = isAm ? HalfOfDay::Pm : HalfOfDay::Am;
  view_.setText(FieldId::AmPmLabel, isAm ? kPm : kAm);
}

void AlarmLine::drawHalf() {
  const std::wstring_view caption = half_ == HalfOfDay::Am ? kAm : kPm;
  if (!settings_.AmPm || view_.text(FieldId::AmPmLabel) == caption) return;
  view_.setText(FieldId::AmPmLabel, caption);
}

void AlarmLine::followOptions() {
  view_.setText(FieldId::AmPmLabel, L"");
  const HourFormat from = std::exchange(format_, hourFormatOf(settings_.AmPm));
  if (from == format_) return;
  try {
    convertBox(from, format_);
  } catch (const Failure&) {
    // A save will tell what is wrong with it.
  }
}

void AlarmLine::convertBox(HourFormat from, HourFormat to) {
  const std::wstring time = view_.text(FieldId::Text3);
  const std::wstring hour = time.substr(0, time.find(L':'));
  const ShownHour shown = shownHour(storedHour(hour, half_, from), to);
  half_ = shown.half.value_or(half_);
  if (shown.hour != hour) replaceHour(hour.size(), shown.hour);
}

/// The caret stays before the character that it stood before.
void AlarmLine::replaceHour(std::size_t length, std::wstring_view hour) {
  const std::size_t caret = view_.caret(FieldId::Text3);
  const std::wstring time = view_.text(FieldId::Text3);
  view_.setText(FieldId::Text3, std::wstring(hour) + time.substr(length));
  view_.setCaret(FieldId::Text3,
                 caret < length ? std::min(caret, hour.size()) : caret - length + hour.size());
}

}  // namespace kalvora
