#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

#include "base/FileSystem.h"
#include "base/FileWriter.h"

namespace kalvora {

/// What is asked before a save would replace characters that the code page does not hold.
inline constexpr std::wstring_view kReplacedTitle = L"Save";
inline constexpr std::wstring_view kReplacedQuestion =
    L"The text has characters that a note cannot store. They will be replaced. Save ?";

/// Writes a note into `file`, in place of `oldFile`, which it was read from; nothing for a note
/// that had no file. Under the name that it had it is written anew, and renamed where the name is
/// spelled in other letters now: that is the same file. Under another name it is written over a
/// note of that name from its start, whose end stays where it is longer, and the old file is
/// removed. The new file is whole on the disk before the old one goes; where a step fails, what was
/// written is taken back, and both files are as they were. Throws FileError, and Failure for a file
/// that is too large to be opened: nobody could open what is written over it either.
void saveNote(const FileSystem& files, FileWriter& writer, const std::filesystem::path& file,
              const std::optional<std::filesystem::path>& oldFile, std::string_view bytes);

}  // namespace kalvora
