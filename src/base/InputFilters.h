#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kalvora {

/// What a filter leaves of an edit box.
struct FilteredInput {
  std::wstring text;
  /// Where the caret stands then: before the same kept character as in the unfiltered text.
  std::size_t caret = 0;
  friend bool operator==(const FilteredInput&, const FilteredInput&) = default;
};

/// What a number box takes beside digits: the time box of the main window also the ":" between hour
/// and minute, a box of a signed number a minus as its first character.
enum class DigitBox { Number, SignedNumber, Time };

/// The protections: what may be typed where.
inline namespace Zabezpieczenia {

/// Protection, digits: keeps 0 to 9 and what else the box takes. `caret` counts the characters
/// before it; one beyond the text stands at its end.
FilteredInput Zabezpieczenie_Cyfry(std::wstring_view text, std::size_t caret, DigitBox box);

/// Protection, file: keeps what a note may be named with: A to Z, a to z, 0 to 9, the space and
/// ~ ` @ # $ % ^ & ( ) - _ = + [ ] { } , . ; '
FilteredInput Zabezpieczenie_plik(std::wstring_view text, std::size_t caret);

}  // namespace Zabezpieczenia

/// Makes each line feed that no carriage return stands before a whole line end, which an edit box
/// of several lines shows as one; text from other systems has them alone.
FilteredInput fullLineEnds(std::wstring_view text, std::size_t caret);

/// Puts into a box of a view what a filter leaves of it. A box that holds just that is left alone.
template <typename View, typename Box>
void replaceInput(View& view, const Box& box, const FilteredInput& kept) {
  if (view.text(box) == kept.text) return;
  view.setText(box, kept.text);
  view.setCaret(box, kept.caret);
}

}  // namespace kalvora
