#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "alarms/AlarmNoteReader.h"
#include "base/LocalMinute.h"

namespace kalvora {

/// A note that came due at a moment: a monthly or yearly one at the beginning of its day.
struct DueNote {
  LocalMinute moment;
  std::wstring fileName;
  friend bool operator==(const DueNote&, const DueNote&) = default;
  friend bool operator<(const DueNote& one, const DueNote& other) {
    return std::tie(one.moment, one.fileName) < std::tie(other.moment, other.fileName);
  }
};

/// Whether a note is due on a day as a whole.
bool isDueAllDay(std::wstring_view fileName);

/// All that came due after one minute and up to another, by moment. What cannot be read is left
/// out; what cannot be read now is among the reader's unread().
std::vector<DueNote> dueBetween(AlarmNoteReader& notes, LocalMinute after, LocalMinute until);

/// Each note once, with its latest moment; the oldest first.
std::vector<DueNote> latestOfEach(std::vector<DueNote> due);

/// "2026-11-22 07:30".
std::wstring momentToText(LocalMinute moment);
/// Nothing for a text that is none.
std::optional<LocalMinute> textToMoment(std::wstring_view text);

/// The moment and the file name of each, all followed by "|".
std::wstring dueNotesToText(const std::vector<DueNote>& notes);
/// What can be read of such a text. A note without a moment that can be read has `unknown`, or is
/// left out where there is none.
std::vector<DueNote> textToDueNotes(std::wstring_view text, std::optional<LocalMinute> unknown);

}  // namespace kalvora
