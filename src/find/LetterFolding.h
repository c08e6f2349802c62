#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace kalvora {

/// A piece of a text, in its characters or bytes.
struct TextPiece {
  std::size_t begin = 0;
  std::size_t length = 0;
  friend bool operator==(const TextPiece&, const TextPiece&) = default;
};

/// A text as it is searched: letters are capitals without accents, "ß" is "SS" and "Æ" "AE", forms
/// of other widths are the plain ones, marks that nobody sees are left out, and blanks and line
/// ends that follow each other are one blank. A letter of no alphabet stays as it is.
std::wstring folded(std::wstring_view text);

/// The same, with the way back.
class FoldedText {
 public:
  explicit FoldedText(std::wstring_view text);

  std::wstring_view letters() const { return letters_; }
  /// What of the text became these letters, with the marks behind them. `piece` is not empty.
  TextPiece original(TextPiece piece) const;

 private:
  std::wstring letters_;
  std::vector<std::size_t> origins_;  // where each letter comes from, and the end of the text
};

}  // namespace kalvora
