#pragma once

#include <optional>
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

/// What a save does with what was not typed over: a file of other digits, or a damaged one, is not
/// what a window makes of it.
enum class Untyped {
  AsInFile,
  AsShown  // unless somebody else wrote the file meanwhile
};

/// What was typed over a note, and what was there before.
struct LeftNote {
  TypedNote typed;
  /// What the window showed at first, before anything was typed; nothing where nobody knows.
  std::optional<TypedNote> begun;
  NoteAsRead read;  // what the note's file held when the window was filled from it
  /// The name of that file; the keep-file name for a note that has none.
  std::wstring oldName;
  Untyped untyped = Untyped::AsInFile;
};

/// Whether there is something to save: not in a note without a file that has no words, neither in
/// its text nor in its name, for it would ring and say nothing.
bool isWorthSaving(const TypedNote& note, std::wstring_view oldName);
/// What is said where a save is asked for all the same.
inline constexpr std::wstring_view kNothingToSave =
    L"There is nothing to save yet: give it a name or words.";

/// Whether a note can hold a text: each of its characters, and none that ends it in a file.
bool isStorable(std::wstring_view text, const CodePage& codePage);
/// The same of the text of a note.
bool isStorable(const TypedNote& note, const CodePage& codePage);

/// A note as it was saved.
struct SavedNote {
  std::wstring name;
  std::string bytes;
  /// Whether all of what was saved stands in the window that it was typed in: nothing came from the
  /// file, and nothing was replaced.
  bool isAsTyped = true;
};

/// Saves what was typed, in its kind, in place of the note of that kind that it was read from.
/// What was not typed over stays as its file has it by now, see mergedWith(). A note without a file
/// that nobody named is called by its first words. No other note is ever written over: a name that
/// is taken, or that no file can have, is a Failure; where nobody is there another one is found. A
/// file that holds just that already is left alone. Characters that no note can store are replaced,
/// which the user was asked for; with nobody there they are a Failure. Throws Failure also for what
/// else no note can store, and what NoteFolder::read() and save() throw; then all is as it was.
SavedNote saveTyped(NoteFolder& folder, const CodePage& codePage, const LeftNote& left,
                    Attendance attendance);

/// What was typed over a note, with what somebody else wrote into its file meanwhile, which holds
/// `now`: where both changed the same, what was typed stays. What was not typed over is as in the
/// file, or as `left.untyped` says. A time is one thing, and so is a date; a weekday is one of its
/// own.
TypedNote mergedWith(const LeftNote& left, const NoteAsRead& now);

}  // namespace kalvora
