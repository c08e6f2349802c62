#pragma once

#include <string>
#include <string_view>

#include "base/CodePage.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// The content of a note file, its last field, byte by byte; empty where the file ends before it.
std::string storedContentOf(NoteKind kind, std::string_view bytes, const CodePage& codePage);

/// The content to store for the text that a box shows, after it was filled from `stored`: the lines
/// before and behind what was changed keep their bytes, with their line ends and what no box can
/// show. All others are stored as they are shown, with CR LF behind them.
std::string contentToStore(std::wstring_view shown, std::string_view stored,
                           const CodePage& codePage);

}  // namespace kalvora
