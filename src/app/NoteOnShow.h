#pragma once

#include <array>
#include <string>
#include <string_view>

#include "app/AlarmLine.h"
#include "app/Form1View.h"
#include "notes/LiveDraft.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// What the main window knows of the note that it shows, beside what stands in its fields.
struct NoteOnShow {
  std::wstring name{kKeepFileName};  // the full path, or the keep-file name
  /// Whether the window shows what is in that file: only such a file is replaced by a save, never
  /// one that was refused, or that is no note.
  bool isShown = false;
  NoteAsRead read;
  std::wstring date;
  std::wstring position;
  /// The sentence in place of the text of a note that cannot be shown; empty while one is shown.
  std::wstring_view standIn;
};

/// All that was in the main window when a reminder came into it, until that is put away.
struct NoteAside {
  struct Field {
    FieldId id;
    std::wstring text;
    TextSelection selection;
  };

  NoteOnShow onShow;
  std::array<Field, 2> fields;  // the title and the text
  AlarmLine::Time time;
  TextSelection timeSelection;
  PausedDraft draft;
  std::wstring scrollingTitle;
};

}  // namespace kalvora
