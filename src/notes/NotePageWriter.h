#pragma once

#include <string>
#include <vector>

#include "base/CodePage.h"
#include "notes/All_Notes_frmView.h"
#include "notes/Draft.h"
#include "notes/EditorState.h"
#include "notes/NoteFields.h"
#include "notes/NoteFolder.h"

namespace kalvora {

/// Writes a page into the file that its name box names. Nothing of the user's is touched before
/// the whole note is known, and where it fails the old files, the old name and the refresh mark
/// are as they were.
class NotePageWriter {
 public:
  /// All outlive this object.
  NotePageWriter(NoteFolder& folder, const CodePage& codePage, const All_Notes_frmView& view,
                 EditorState& state)
      : folder_(folder), codePage_(codePage), view_(view), state_(state) {}

  /// Begin writing: takes the name from the name box.
  void Inicjuj_zapisywanie(NoteKind kind);
  /// Write a variable: what a control shows, as the next field of the file. Throws OverflowError
  /// for an hour beyond 16 bits.
  void Zapisz_zmienna(const PageField& field);
  /// End writing: writes the file, removes that of the old name where it is another one, and then
  /// remembers the name as the old one and leaves the mark for the list to be refreshed: 0 after a
  /// save under the same name, the kind otherwise. Throws Failure for a note that would be too
  /// large to be opened again, FileError.
  void Zakoncz_zapisywanie();

  /// What the page of a kind holds. A field that no note can store is empty in it, and its text
  /// stands apart.
  TypedNote typed(NoteKind kind) const;

 private:
  std::wstring textToStore(const PageField& field) const;
  std::wstring hourToStore(const EditorControl& control) const;
  HalfOfDay halfBeside(const EditorControl& hour) const;

  NoteFolder& folder_;
  const CodePage& codePage_;
  const All_Notes_frmView& view_;
  EditorState& state_;
  NoteKind kind_ = NoteKind::Daily;
  std::wstring name_;
  NoteFields fields_;
  std::size_t written_ = 0;  // fields so far
};

}  // namespace kalvora
