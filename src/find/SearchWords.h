#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "find/LetterFolding.h"

namespace kalvora {

/// What the user looks for: words, and phrases in double quotes. All of them must occur, in any
/// order, ignoring case and accents; where nothing was typed, everything is found.
class SearchWords {
 public:
  SearchWords() = default;
  explicit SearchWords(std::wstring_view typed);

  /// Whether they occur in a folded text, of which this is the UTF-8.
  bool occurIn(std::string_view foldedUtf8) const;
  /// Whether all that these find is found by `others`, too.
  bool narrow(const SearchWords& others) const;
  /// The first place of the longest of them that a text has; nothing where it has none.
  std::optional<TextPiece> placeIn(std::wstring_view text) const;

 private:
  void add(std::wstring_view word);

  std::vector<std::wstring> words_;  // folded, the longest first
  std::vector<std::string> utf8_;    // the same
};

}  // namespace kalvora
