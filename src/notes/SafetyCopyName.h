#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Clock.h"
#include "notes/NoteKind.h"

namespace kalvora {

/// A note as it was before it was changed or deleted, or as it was typed and not saved.
struct SafetyCopy {
  std::wstring fileName;  // in the folder of the copies
  std::wstring name;      // of the note, without extension
  NoteKind kind = NoteKind::Daily;
  LocalTime when;  // when it was made; to the second, without weekday and offset
  int number = 1;  // among the copies of that note in that second
  /// Whether it is what was typed and not saved, see notes/Draft.h.
  bool isDraft = false;
};

enum class CopyKind { Copy, Draft };

/// The longest form that the name of a copy takes behind the name of its note: the moment, the mark
/// of a draft, a number and the extension. In characters.
inline constexpr std::size_t kLongestCopyEnding = 36;

/// A moment as it stands in the name of a copy, as in " 2027-03-28 06-29-58". Sorted as texts, they
/// are sorted as times.
std::wstring momentText(const LocalTime& time);

/// What the name of the file of a copy tells, of whatever kind; nothing where it is not named as
/// one.
std::optional<SafetyCopy> copyOf(const std::wstring& fileName);

/// What the copy of a file is called before and behind the moment.
struct CopyNameParts {
  std::wstring name;
  std::wstring extension;
};

/// `longestName` is the most that stays of the name, in characters. A file of none of `kinds` ends
/// as the system has it.
CopyNameParts copyNamePartsOf(const std::filesystem::path& file, std::size_t longestName,
                              NoteKinds kinds);

/// The name of the `number`th copy, from 1 on, that is made of a file in a second.
std::wstring copyFileName(const CopyNameParts& parts, const LocalTime& when, CopyKind kind,
                          int number);

/// The copies of notes of `kinds` among these files, the newest first.
std::vector<SafetyCopy> newestCopiesFirst(const std::vector<std::wstring>& fileNames,
                                          NoteKinds kinds);

}  // namespace kalvora
