#pragma once

#include <string>
#include <string_view>

#include "base/CodePage.h"
#include "base/Errors.h"
#include "notes/Draft.h"
#include "notes/NoteFolder.h"

namespace kalvora {

/// Whether somebody is there to choose another name, or to mend what cannot be stored.
enum class Attendance { Attended, Unattended };

/// What a question is titled that comes where a note to be left could not be saved.
inline constexpr std::wstring_view kNotSavedTitle = L"Not saved";
/// Asks whether it is left all the same. `isDraft` tells whether what was typed is kept as a draft.
std::wstring notSavedQuestion(const Failure& reason, bool isDraft);

/// Whether there is something to save: not in a note without a file where nothing but blanks was
/// typed, under a name that the program gives.
bool isWorthSaving(const TypedNote& note, std::wstring_view oldName);

/// A note as it was saved.
struct SavedNote {
  std::wstring name;
  std::string bytes;
};

/// Saves what was typed, in its kind, in place of the note of that kind that it was read from;
/// `oldName` is the keep-file name for one that has no file. A note without a file that nobody
/// named is called by its first words. No other note is ever written over: a name that is taken, or
/// that no file can have, is a Failure; where nobody is there another one is found. A file that
/// holds just that already is left alone.
/// Throws Failure also for what no note can store, with nobody there letters that the code page
/// does not hold among it, and what NoteFolder::save() throws; then all is as it was.
SavedNote saveTyped(NoteFolder& folder, const CodePage& codePage, const TypedNote& note,
                    const std::wstring& oldName, Attendance attendance);

}  // namespace kalvora
