#include "notes/EditorControls.h"

#include <algorithm>

#include "base/Numbers.h"

namespace kalvora {

namespace {

using enum ControlArray;

constexpr PageField kDaily[] = {{FieldForm::Hour, {CzasD, 0}},
                                {FieldForm::Number, {CzasD, 1}},
                                {FieldForm::Content, {Zawartosc, 0}}};

constexpr PageField kWeekly[] = {
    {FieldForm::Hour, {CzasW, 0}},     {FieldForm::Number, {CzasW, 1}},
    {FieldForm::Weekday, {Check1, 0}}, {FieldForm::Weekday, {Check1, 1}},
    {FieldForm::Weekday, {Check1, 2}}, {FieldForm::Weekday, {Check1, 3}},
    {FieldForm::Weekday, {Check1, 4}}, {FieldForm::Weekday, {Check1, 5}},
    {FieldForm::Weekday, {Check1, 6}}, {FieldForm::Content, {Zawartosc, 1}}};

constexpr PageField kMonthly[] = {{FieldForm::Number, {ComboM, 0}},
                                  {FieldForm::Number, {ComboM, 1}},
                                  {FieldForm::Number, {ComboM, 2}},
                                  {FieldForm::Content, {Zawartosc, 2}}};

constexpr PageField kYearly[] = {{FieldForm::Number, {ComboY, 0}},
                                 {FieldForm::Month, {MonthY, 0}},
                                 {FieldForm::Number, {ComboY, 1}},
                                 {FieldForm::Number, {ComboY, 2}},
                                 {FieldForm::Content, {Zawartosc, 3}}};

constexpr PageField kFast[] = {{FieldForm::Hour, {CzasF, 0}},
                               {FieldForm::Number, {CzasF, 1}},
                               {FieldForm::Content, {Zawartosc, 4}}};

constexpr PageField kOnce[] = {
    {FieldForm::DateYear, {OnceDate, 0}}, {FieldForm::DateMonth, {OnceDate, 0}},
    {FieldForm::DateDay, {OnceDate, 0}},  {FieldForm::Hour, {OnceTime, 0}},
    {FieldForm::Number, {OnceTime, 1}},   {FieldForm::Content, {Zawartosc, 5}}};

// "Weakly" stands so on purpose.
constexpr std::array<EditorPage, kNoteKinds.size()> kPages = {{
    {NoteKind::Daily,
     L"Daily",
     kDaily,
     EditorControl{AmPmCombo, 0},
     {{{CzasD, 0}, {CzasD, 1}, {CzasD, 1}}}},
    {NoteKind::Weekly,
     L"Weakly",
     kWeekly,
     EditorControl{AmPmCombo, 1},
     {{{CzasW, 0}, {CzasW, 1}, {CzasW, 1}}}},
    {NoteKind::Monthly,
     L"Monthly",
     kMonthly,
     std::nullopt,
     {{{ComboM, 0}, {ComboM, 1}, {ComboM, 2}}}},
    {NoteKind::Yearly, L"Yearly", kYearly, std::nullopt, {{{ComboY, 0}, {ComboY, 1}, {ComboY, 2}}}},
    {NoteKind::Fast,
     L"Fast",
     kFast,
     EditorControl{AmPmCombo, 2},
     {{{CzasF, 0}, {CzasF, 1}, {CzasF, 1}}}},
    {NoteKind::Once,
     L"Once",
     kOnce,
     EditorControl{AmPmCombo, 3},
     {{{OnceTime, 0}, {OnceTime, 1}, {OnceTime, 1}}}},
}};

constexpr std::array<std::wstring_view, 12> kMonths = {
    L"January", L"February", L"March",     L"April",   L"May",      L"June",
    L"July",    L"August",   L"September", L"October", L"November", L"December"};

std::vector<std::wstring> numbers(int first, int last, int step = 1) {
  std::vector<std::wstring> items;
  for (int number = first; number <= last; number += step) items.push_back(numberToText(number));
  return items;
}

std::vector<std::wstring> dayNumbers(int index) {
  constexpr std::array<int, 3> kLast = {31, 21, 7};
  return numbers(1, kLast.at(static_cast<std::size_t>(index)));
}

bool standsOn(const EditorPage& page, const EditorControl& control) {
  return page.selector == control || std::ranges::any_of(page.fields, [&](const PageField& field) {
           return field.control == control;
         });
}

}  // namespace

const EditorPage& editorPage(NoteKind kind) {
  return kPages[static_cast<std::size_t>(kind)];
}

NoteKind kindOf(const EditorControl& control) {
  const auto* const page = std::ranges::find_if(
      kPages, [&](const EditorPage& candidate) { return standsOn(candidate, control); });
  return page != kPages.end() ? page->kind : static_cast<NoteKind>(control.index);
}

bool isNumberList(const EditorControl& control) {
  switch (control.array) {
    case CzasD:
    case CzasW:
    case CzasF:
    case ComboM:
    case ComboY:
    case OnceTime:
      return true;
    default:
      return false;
  }
}

std::vector<std::wstring> itemsOf(const EditorControl& control) {
  switch (control.array) {
    case CzasD:
    case CzasW:
    case CzasF:
    case OnceTime:
      return control.index == 0 ? numbers(0, 24) : numbers(0, 55, 5);
    case AmPmCombo:
      return {L"am", L"pm"};
    case ComboM:
    case ComboY:
      return dayNumbers(control.index);
    case MonthY:
      return {kMonths.begin(), kMonths.end()};
    default:
      return {};
  }
}

std::vector<EditorControl> controlsWithItems(NoteKinds kinds) {
  std::vector<EditorControl> controls;
  for (const NoteKind kind : kinds) {
    const EditorPage& page = editorPage(kind);
    for (const PageField& field : page.fields) {
      if (!itemsOf(field.control).empty()) controls.push_back(field.control);
    }
    if (page.selector) controls.push_back(*page.selector);
  }
  return controls;
}

}  // namespace kalvora
