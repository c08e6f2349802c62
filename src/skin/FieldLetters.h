#pragma once

namespace kalvora {

/// The height in pixels of the letters in a text box of one line: what fits into the box with a
/// little air, but no more than is usual on screens, unless the box has plainly been made for
/// large letters.
int fieldLetters(int boxHeight);

/// The same for the box of the note's text: as large as the letters of the title above it, never
/// smaller than usual.
int noteTextLetters(int titleBoxHeight);

}  // namespace kalvora
