#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "base/CodePage.h"
#include "notes/SafetyCopies.h"

namespace kalvora {

/// What a safety copy holds, for the user to recognise it by.
struct NotePreview {
  std::wstring when;  // the note's time or day in words; empty where it has none
  std::wstring text;  // all of it, each line end a whole one
  friend bool operator==(const NotePreview&, const NotePreview&) = default;
};

/// Reads the preview of a copy when it is asked for. Never throws FileError: a copy that cannot be
/// read has a sentence about that as its text.
using CopyPreview = std::function<NotePreview(const SafetyCopy&)>;

/// The preview of a copy's bytes. Never throws for what they are.
NotePreview notePreview(const SafetyCopy& copy, std::string_view bytes, const CodePage& codePage);

}  // namespace kalvora
