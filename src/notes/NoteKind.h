#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

#include "base/Comfort.h"

namespace kalvora {

/// When a note rings. The number of a kind is also that of its tab, its page and its controls.
enum class NoteKind { Daily = 0, Weekly = 1, Monthly = 2, Yearly = 3, Fast = 4, Once = 5 };

/// All that there are.
inline constexpr std::array<NoteKind, 6> kNoteKinds = {NoteKind::Daily,   NoteKind::Weekly,
                                                       NoteKind::Monthly, NoteKind::Yearly,
                                                       NoteKind::Fast,    NoteKind::Once};

/// Some of the kinds, in their order. They last as long as the program.
using NoteKinds = std::span<const NoteKind>;

/// The kinds that this user has: Once with Once_notes alone. A file of another kind is an unknown
/// file.
NoteKinds knownKinds(const Comfort& comfort);

/// The current name while no note file is shown. A file of this name is never deleted.
inline constexpr std::wstring_view kKeepFileName = L"Kalvora_old_for_not_deleting_only";

/// The longest note that is opened, in bytes: a reader's byte count is a 16-bit number.
inline constexpr std::size_t kLargestNoteSize = 32767;

/// The extension with its dot: ".tx1" to ".tx4", ".txt", ".tx5".
std::wstring_view extensionOf(NoteKind kind);

/// The one of these kinds whose extension the last four characters are, in any case; nothing for
/// another file.
std::optional<NoteKind> kindOfFileName(std::wstring_view fileName, NoteKinds kinds);

/// A note's title is its file name without the last four characters.
std::wstring_view titleOf(std::wstring_view fileName);

/// Whether a note of the kind holds an hour and a minute.
bool hasClockTime(NoteKind kind);

}  // namespace kalvora
