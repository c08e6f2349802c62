#pragma once

#include <optional>
#include <string>

#include "base/Clock.h"
#include "base/CodePage.h"
#include "notes/All_Notes_frmView.h"
#include "notes/EditorState.h"
#include "notes/NoteFieldReader.h"
#include "notes/NoteFolder.h"

namespace kalvora {

/// Reads a note file onto its page, field by field. Shows any bytes: of a damaged note a number
/// list shows the digits of its field, a tick box is ticked by "1" alone, a month that the list
/// does not have selects nothing, and NUL characters, which no control can show, are left out. In
/// place of a date that there is not stands today's, and the notice says so.
class NotePageReader {
 public:
  /// All outlive this object.
  NotePageReader(const NoteFolder& folder, const CodePage& codePage, const Clock& clock,
                 All_Notes_frmView& view, EditorState& state)
      : folder_(folder), codePage_(codePage), clock_(clock), view_(view), state_(state) {}

  /// Begin reading: puts the note's name into the name box and remembers it as the old name. A
  /// note of more than 32767 bytes is refused with a message: then nothing is changed, and the
  /// reads and the end do nothing. Returns whether it is read. Throws FileError, with nothing
  /// changed.
  bool Inicjuj_czytanie(NoteKind kind, const std::wstring& name);
  /// Read a variable: the next field of the file into its control. Never throws for what the bytes
  /// are.
  void Czytaj_zmienna(const PageField& field);
  /// End reading.
  void Zakoncz_czytanie();

  /// Shows in a control what a file has in its field. The parts of a date come in their order.
  void show(const PageField& field, const std::wstring& stored);

 private:
  void showDate(const EditorControl& control, std::wstring_view day);
  void showHour(const EditorControl& control, std::wstring_view AmPmText);

  const NoteFolder& folder_;
  const CodePage& codePage_;
  const Clock& clock_;
  All_Notes_frmView& view_;
  EditorState& state_;
  std::string bytes_;
  std::optional<NoteFieldReader> fields_;  // nothing while no file is open, or one was refused
  // Of the date whose day comes next.
  std::wstring year_;
  std::wstring month_;
};

}  // namespace kalvora
