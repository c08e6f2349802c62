#pragma once

#include <string>
#include <string_view>

#include "base/CodePage.h"
#include "notes/HourDisplay.h"
#include "notes/NoteFields.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// A note as the fields of a window hold it, saved or not.
struct TypedNote {
  NoteKind kind = NoteKind::Fast;
  std::wstring name;  // as typed, without extension
  NoteFields fields;  // as a save stores them
  /// What stands in fields that no note can store, as an hour of six digits; their texts in
  /// `fields` are empty then.
  std::wstring unstorable;
  /// The bytes of the text as it was read; a save keeps those of what is not changed.
  std::string storedContent;
  friend bool operator==(const TypedNote&, const TypedNote&) = default;
};

/// The fields of the main window, which a save makes a fast note.
TypedNote typedFastNote(std::wstring_view title, std::wstring_view time, std::wstring_view text,
                        HalfOfDay half, HourFormat format);

/// A note as its file was read; a new one is a fast note of empty fields.
struct NoteAsRead {
  NoteKind kind = NoteKind::Fast;
  NoteFields fields;    // empty where the file ended before them
  std::string content;  // the bytes of the text
};

/// The file of a note, taken apart. Reads any bytes; never throws.
NoteAsRead noteAsRead(NoteKind kind, std::string_view bytes, const CodePage& codePage);

/// The fields of the main window, over a note that it was filled from: in that note's kind, with
/// all that the window does not show as it was. A time that says what was read keeps its fields as
/// they are, damaged ones too. In a note without a time of day any time is unstorable.
TypedNote typedInOwnKind(const NoteAsRead& read, std::wstring_view title, std::wstring_view time,
                         std::wstring_view text, HalfOfDay half, HourFormat format);

/// Whether there is nothing that would be missed: no text, no number, no tick, and no name but one
/// that the program gives.
bool isBlank(const TypedNote& note);

/// Whether a name is one that the program gives to a note that has none yet.
bool isGivenName(std::wstring_view name);

/// What stays of the name of a note in that of its draft, so that it can be read in a list.
inline constexpr std::size_t kLongestDraftName = 100;

/// The file that keeps what was typed and not saved.
struct Draft {
  NoteKind kind = NoteKind::Fast;
  std::wstring name;  // of the note: one that a file can have
  std::string bytes;
  /// Whether a save, where it succeeds, keeps all of it.
  bool canBeSaved = true;
};

/// What a save would write, under the same name and kind. What no note can store is kept all the
/// same: a text that the code page does not hold stands there as UTF-8 behind its mark; what is
/// unstorable, and a name that had to be cut, stand above the text.
/// `longestName` is the most letters of a name that its file can bear.
Draft draftOf(const TypedNote& note, const CodePage& codePage,
              std::size_t longestName = kLongestDraftName);

/// The text of a note's file, to the end of the file, also behind a "|".
std::wstring contentOf(NoteKind kind, std::string_view bytes, const CodePage& codePage);
/// The same of a draft's file, whose text may be UTF-8.
std::wstring contentOfDraft(NoteKind kind, std::string_view bytes, const CodePage& codePage);
/// The bytes of a note that holds what a draft's file does, the text in the code page.
std::string noteOfDraft(NoteKind kind, std::string_view bytes, const CodePage& codePage);
/// The bytes of a note with a "?" for each "|" of its text, behind which no window would read it.
std::string withReadableText(NoteKind kind, std::string_view bytes, const CodePage& codePage);

}  // namespace kalvora
