#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/CodePage.h"
#include "notes/HourDisplay.h"
#include "notes/NoteFields.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// A note as the main window shows it.
struct ShownNote {
  std::wstring title;             // the file name without its extension
  std::wstring text;              // the content
  std::wstring time;              // hour ":" minute; empty for a note without a time
  std::optional<HalfOfDay> half;  // nothing where no am or pm is to be shown
  friend bool operator==(const ShownNote&, const ShownNote&) = default;
};

/// The fields of a note as the main window shows them, which the title is not among. Never throws.
ShownNote shownFields(const NoteFields& fields, HourFormat format);

/// A note file as the main window shows it. Reads any bytes, so that a damaged note can be looked
/// at and deleted: an hour that is no number is shown as it stands, without am or pm; NUL
/// characters, which no text box can show, are left out, and so is a field that the file no
/// longer has. Monthly and yearly notes have no time; of a file of none of `kinds` only the title
/// is shown. Never throws for what the bytes are.
ShownNote readNote(std::wstring_view fileName, std::string_view bytes, const CodePage& codePage,
                   HourFormat format, NoteKinds kinds);

}  // namespace kalvora
