#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "base/CodePage.h"
#include "notes/HourDisplay.h"
#include "notes/NoteFields.h"

namespace kalvora {

/// A note file's bytes: the fields in their order as they stand, "|" behind each but the content.
/// The content is stored by contentToStore(), where the file that the note was read from held
/// `storedContent`. Nothing is escaped: a "|" is written as it is, and what the code page cannot
/// hold becomes its replacement character.
std::string joinFields(const NoteFields& fields, const CodePage& codePage,
                       std::string_view storedContent = {});

/// Throws Failure, with the file's name, where the bytes of a note are more than kLargestNoteSize:
/// it could never be opened again.
void requireNoteSize(const std::filesystem::path& file, std::string_view bytes);

/// The alarm line of the main window as the two fields of a note: hour ":" minute, as typed.
/// Without a ":" it is an hour without a minute. The hour is stored as by storedHour(), the minute
/// as it is typed. Throws ConversionError for an hour or a minute that is no number, a second ":"
/// with what follows it included, and OverflowError for an hour beyond 16 bits. The content stays
/// empty.
ClockFields alarmLineFields(std::wstring_view time, HalfOfDay half, HourFormat format);

/// The bytes of a fast note as the main window saves it: its alarm line and its text.
/// Throws what alarmLineFields() throws.
std::string fastNoteBytes(std::wstring_view time, std::wstring_view text, HalfOfDay half,
                          HourFormat format, const CodePage& codePage,
                          std::string_view storedContent = {});

}  // namespace kalvora
