#pragma once

#include "base/Geometry.h"
#include "base/Image.h"
#include "skin/SkinDescription.h"

namespace kalvora {

/// What a field shows of its text, in lines: `first` is the number of the topmost one.
struct TextExtent {
  int lines = 0;
  int first = 0;
  int visible = 1;
  friend bool operator==(const TextExtent&, const TextExtent&) = default;
};

/// Whether there is more text than the field shows at a time.
bool overflows(const TextExtent& extent);
/// Whether the text goes on below what is to be seen.
bool goesOnBelow(const TextExtent& extent);

/// The width in pixels of the strip at the right edge of a field, which says that its text goes on.
inline constexpr int kTextScrollWidth = 8;

/// Where the strip of a field of this place stands, in the pixels of the same window; empty where
/// the field is too small for one.
Rect textScrollRect(const Rect& field);
/// What of the field is left for the text.
Rect textRectBesideScroll(const Rect& field);

/// What the strip of a text that the field does not show as a whole shows: a mark at its lower end
/// while text goes on below, or a scroll bar.
enum class TextScrollLook { Mark, Bar };

/// The strip in the field's colours.
Image textScrollPicture(Size strip, const TextExtent& extent, const FieldLook& colors,
                        TextScrollLook look);

/// The thumb of the bar: its upper end and its height, in pixels of the strip.
struct TextScrollThumb {
  int top = 0;
  int height = 0;
};
TextScrollThumb textScrollThumb(int stripHeight, const TextExtent& extent);
/// The line that is topmost when the thumb is drawn so that its upper end is there, or beyond the
/// strip.
int firstLineAt(int stripHeight, const TextExtent& extent, int thumbTop);

}  // namespace kalvora
