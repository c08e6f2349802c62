#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/FolderListing.h"
#include "find/SearchWords.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// A note that can be searched.
struct SearchedNote {
  std::uint32_t place;  // in the listing
  NoteKind kind;
  // What is kept of it, in bytes.
  TextPiece text;
  TextPiece folded;
};

/// The names and texts of the notes of a listing, in its order. There can be tens of thousands, so
/// all texts are in one piece, and once more as they are searched.
class SearchedNotes {
 public:
  explicit SearchedNotes(SharedListing listing) : listing_(std::move(listing)) {}
  SearchedNotes() : SearchedNotes(std::make_shared<const FolderListing>()) {}

  /// A note behind those before.
  void add(std::size_t place, NoteKind kind, std::wstring_view text);
  /// The same of a note that `others` has.
  void add(std::size_t place, const SearchedNotes& others, const SearchedNote& note);

  const std::vector<SearchedNote>& notes() const { return notes_; }
  std::wstring nameOf(const SearchedNote& note) const { return listing_->name(note.place); }
  ListedFile fileOf(const SearchedNote& note) const { return (*listing_)[note.place]; }
  std::wstring textOf(const SearchedNote& note) const;
  /// Whether the words occur in its name or its text, some here and some there.
  bool have(const SearchWords& words, const SearchedNote& note) const;

 private:
  void append(std::size_t place, NoteKind kind, std::string_view text, std::string_view folded);
  std::string_view utf8Of(const SearchedNote& note) const {
    return std::string_view(texts_).substr(note.text.begin, note.text.length);
  }
  std::string_view foldedOf(const SearchedNote& note) const {
    return std::string_view(folded_).substr(note.folded.begin, note.folded.length);
  }

  SharedListing listing_;
  std::vector<SearchedNote> notes_;
  // One note behind the other, in UTF-8: the texts as they are, and names and texts folded.
  std::string texts_;
  std::string folded_;
};

}  // namespace kalvora
