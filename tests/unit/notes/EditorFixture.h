#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <optional>
#include <string>

#include "fakes/FakeAll_Notes_frmView.h"
#include "fakes/FakeClock.h"
#include "fakes/MemoryFiles.h"
#include "notes/All_Notes_frm.h"

namespace kalvora {

/// A page as a user fills it in.
struct FilledPage {
  NoteKind kind = NoteKind::Daily;
  std::vector<std::wstring> numbers;  // the number lists, in the order of the file
  std::wstring content;
  int half = 0;               // of the selector: am, pm
  std::string weekdays = {};  // '1' for a ticked one
  int month = 0;              // -1 for none
  // Of a note for one date.
  std::chrono::year_month_day date{std::chrono::year{2027}, std::chrono::March,
                                   std::chrono::day{28}};
};

/// A note editor over files in memory.
class EditorFixture : public testing::Test {
 protected:
  explicit EditorFixture(HourFormat format = HourFormat::Hours12) { open(format); }

  void open(HourFormat format) {
    host_.format = format;
    editor_.Form_Load();
  }

  static EditorControl nameBox(NoteKind kind) { return controlOf(ControlArray::FName, kind); }
  static EditorControl contentBox(NoteKind kind) {
    return controlOf(ControlArray::Zawartosc, kind);
  }
  static EditorControl list(NoteKind kind) { return controlOf(ControlArray::File_list_box, kind); }

  std::wstring text(const EditorControl& control) const { return view_.text(control); }
  std::wstring name(NoteKind kind) const { return text(nameBox(kind)); }
  const std::vector<std::wstring>& names(NoteKind kind) { return view_.at(list(kind)).items; }
  /// The note on the page, which its list marks; nothing for one that has no file.
  std::optional<std::wstring> loadedNote(NoteKind kind) const {
    const int position = view_.selection(list(kind));
    if (position < 0) return std::nullopt;
    return view_.at(list(kind)).items.at(static_cast<std::size_t>(position));
  }

  /// Fills the page in as a user would, from left to right.
  void fill(const FilledPage& page, const std::wstring& noteName) {
    const EditorPage& layout = editorPage(page.kind);
    view_.at(nameBox(page.kind)).text = noteName;
    if (layout.selector) view_.at(*layout.selector).selection = page.half;
    std::size_t number = 0;
    for (const PageField& field : layout.fields) {
      FakeAll_Notes_frmView::Control& control = view_.at(field.control);
      switch (field.form) {
        case FieldForm::Hour:
        case FieldForm::Number:
          control.text = page.numbers.at(number++);
          break;
        case FieldForm::Weekday:
          control.ticked = page.weekdays.at(static_cast<std::size_t>(field.control.index)) == '1';
          break;
        case FieldForm::Month:
          control.selection = page.month;
          break;
        case FieldForm::DateYear:
        case FieldForm::DateMonth:
        case FieldForm::DateDay:
          control.date = page.date;
          break;
        case FieldForm::Content:
          control.text = page.content;
          break;
      }
    }
  }

  /// What the page shows now.
  FilledPage shown(NoteKind kind) const {
    FilledPage page;
    page.kind = kind;
    const EditorPage& layout = editorPage(kind);
    if (layout.selector) page.half = view_.selection(*layout.selector);
    for (const PageField& field : layout.fields) {
      switch (field.form) {
        case FieldForm::Hour:
        case FieldForm::Number:
          page.numbers.push_back(text(field.control));
          break;
        case FieldForm::Weekday:
          page.weekdays += view_.ticked(field.control) ? '1' : '0';
          break;
        case FieldForm::Month:
          page.month = view_.selection(field.control);
          break;
        case FieldForm::DateYear:
        case FieldForm::DateMonth:
        case FieldForm::DateDay:
          page.date = view_.date(field.control);
          break;
        case FieldForm::Content:
          page.content = text(field.control);
          break;
      }
    }
    return page;
  }

  /// Clicks the note in its list. False where the list has no such name.
  bool pick(NoteKind kind, std::wstring_view noteName) {
    const auto found = std::ranges::find(names(kind), noteName);
    if (found == names(kind).end()) return false;
    view_.select(list(kind), static_cast<int>(found - names(kind).begin()));
    editor_.File_list_box_Click(kind);
    return true;
  }

  /// Types as a user does: the text stands in the box, the caret behind it.
  void type(const EditorControl& control, const std::wstring& typed) {
    view_.at(control).text = typed;
    view_.at(control).caret = typed.size();
    if (control.array == ControlArray::FName) {
      editor_.FName_Change(static_cast<NoteKind>(control.index));
    } else {
      editor_.numberList_Change(control);
    }
  }

  /// Puts a file there, and its name into the list.
  void give(const std::wstring& fileName, std::string bytes) {
    files_.content[fileName] = std::move(bytes);
    editor_.Update_Files(NoteKind::Daily, NoteKind::Once);
  }

  MemoryFiles files_;
  Windows1252 codePage_;
  FakeAll_Notes_frmView view_;
  FakeEditorHost host_;
  FakeClock clock_;
  SafetyCopies copies_{L"backup", files_, files_, clock_, [this] { return host_.kinds; }};
  All_Notes_frm editor_{{files_, files_, codePage_, view_, host_, L"notes", copies_, clock_}};
};

inline bool operator==(const FilledPage& a, const FilledPage& b) {
  return a.kind == b.kind && a.numbers == b.numbers && a.content == b.content && a.half == b.half &&
         a.weekdays == b.weekdays && a.month == b.month && a.date == b.date;
}

}  // namespace kalvora
