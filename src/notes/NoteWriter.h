#pragma once

#include <string>
#include <string_view>

#include "base/CodePage.h"
#include "notes/HourDisplay.h"
#include "notes/NoteFields.h"

namespace kalvora {

/// A note file's bytes: the fields in their order as they stand, "|" behind each but the content.
/// In the content a lone line feed becomes CR LF. Nothing is escaped: a "|" is written as it is,
/// and what the code page cannot hold becomes its replacement character. Throws Failure where the
/// file would be larger than kLargestNoteSize, and so could never be opened again.
std::string joinFields(const NoteFields& fields, const CodePage& codePage);

/// The alarm line of the main window as the two fields of a note: hour ":" minute, as typed.
/// Without a ":" it is an hour without a minute. The hour is stored as by storedHour(), the minute
/// as it is typed. Throws ConversionError for an hour or a minute that is no number, a second ":"
/// with what follows it included, and OverflowError for an hour beyond 16 bits. The content stays
/// empty.
ClockFields alarmLineFields(std::wstring_view time, HalfOfDay half, HourFormat format);

/// The bytes of a fast note as the main window saves it: its alarm line and its text.
/// Throws what alarmLineFields() and joinFields() throw.
std::string fastNoteBytes(std::wstring_view time, std::wstring_view text, HalfOfDay half,
                          HourFormat format, const CodePage& codePage);

}  // namespace kalvora
