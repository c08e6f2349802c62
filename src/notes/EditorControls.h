#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "notes/NoteKind.h"

namespace kalvora {

/// The controls of the note editor, in arrays. The first six hold one control a kind, with the
/// kind's number; CzasD, CzasW, CzasF and OnceTime hold hour and minute; AmPmCombo serves Daily,
/// Weekly, Fast and Once; Check1 is Sunday to Saturday; ComboM and ComboY hold day, days before and
/// every days.
enum class ControlArray {
  File_list_box,
  FName,
  Zawartosc,
  cmdNew,
  cmdSave,
  cmdDel,
  CzasD,
  CzasW,
  CzasF,
  AmPmCombo,
  Check1,
  ComboM,
  ComboY,
  MonthY,
  OnceTime,
  OnceDate
};

struct EditorControl {
  ControlArray array;
  int index = 0;
  friend bool operator==(const EditorControl&, const EditorControl&) = default;
};

/// How a field of a file is shown in its control.
enum class FieldForm {
  Hour,     // a number, beside the page's am/pm selector
  Number,   // digits, as they stand
  Weekday,  // "0" or "1" as a tick box
  Month,    // counted from 0, as a position in the list
  // The three parts of a date, in this order, share their control.
  DateYear,
  DateMonth,  // counted from 1
  DateDay,
  Content  // the text
};

struct PageField {
  FieldForm form;
  EditorControl control;
};

/// All that makes the page of one kind different from the others.
struct EditorPage {
  NoteKind kind;
  std::wstring_view caption;              // of the tab
  std::span<const PageField> fields;      // in the order of the file
  std::optional<EditorControl> selector;  // of the half of the day
  /// What is asked for before a note is saved. For a time the minute stands twice, so that an empty
  /// hour or an empty minute raises the question; the weekdays and the month are never asked for.
  std::array<EditorControl, 3> examined;
};

const EditorPage& editorPage(NoteKind kind);

/// The page that a control stands on.
NoteKind kindOf(const EditorControl& control);

/// The control of an array that has one a kind.
constexpr EditorControl controlOf(ControlArray array, NoteKind kind) {
  return {array, static_cast<int>(kind)};
}

/// Whether a control takes typed digits only.
bool isNumberList(const EditorControl& control);

/// What a list offers: the hours 0 to 24 (24 too: it is the 12 of the second half of the day), the
/// minutes by 5, the halves of the day, the months, and the numbers of days. Empty for a control
/// that offers nothing.
std::vector<std::wstring> itemsOf(const EditorControl& control);

/// Every control that has items on the pages of these kinds.
std::vector<EditorControl> controlsWithItems(NoteKinds kinds);

}  // namespace kalvora
