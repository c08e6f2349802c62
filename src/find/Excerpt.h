#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "find/LetterFolding.h"

namespace kalvora {

/// A line of a text for a list: a place with some words around it, or the beginning where there is
/// none. Blanks and line ends that follow each other are one blank; an ellipsis stands where
/// something is left out.
std::wstring excerptOf(std::wstring_view text, const std::optional<TextPiece>& place);

}  // namespace kalvora
