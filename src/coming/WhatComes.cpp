#include "coming/WhatComes.h"

#include <algorithm>

#include "base/Errors.h"
#include "base/LocalMinute.h"
#include "base/Numbers.h"
#include "notes/EditorControls.h"

namespace kalvora {

namespace {

using std::chrono::days;
using std::chrono::local_days;

// Milliseconds: between two slices of reading, and two looks at what changed.
constexpr int kReadingInterval = 10;
constexpr int kLookingInterval = 1000;

constexpr std::wstring_view kSection = L"What comes";
constexpr std::wstring_view kSpanKey = L"Span";
constexpr ComingSpan kFirstSpan = ComingSpan::Week;

std::wstring timeText(const ComingRow& row, HourFormat format) {
  if (row.allDay) return {};
  const LocalTime time = timeOf(row.moment);
  const ShownHour shown = shownHour(numberToText(time.hour), format);
  std::wstring text = shown.hour + (time.minute < 10 ? L":0" : L":") + numberToText(time.minute);
  if (shown.half) text += *shown.half == HalfOfDay::Am ? L" AM" : L" PM";
  return text;
}

std::wstring stateText(ComingState state) {
  switch (state) {
    case ComingState::Snoozed:
      return L"snoozed";
    case ComingState::Missed:
      return L"missed";
    default:
      return {};
  }
}

}  // namespace

WhatComes::WhatComes(const WhatComesPorts& ports)
    : files_(ports.files),
      clock_(ports.clock),
      memory_(ports.settings, kSection),
      view_(ports.view),
      host_(ports.host) {}

void WhatComes::Form_Load() {
  open_ = true;
  emptyDay_.reset();
  loadSettings();
  refresh();
}

void WhatComes::activated() {
  // A window that is just opened reads already.
  if (open_ && !reader_) refresh();
}

void WhatComes::refresh() {
  changes_ = host_.noteChanges();
  kinds_ = host_.noteKinds();
  const local_days today = std::chrono::floor<days>(minuteOf(clock_.now()));
  reader_.emplace(files_, host_, today, notes_);
  away_ = reader_->folderIsAway();
  if (!away_ || notes_.first() != today) return readOn();
  // What is known of it stays.
  reader_.reset();
  view_.setTimer(kLookingInterval);
  showRows(selectedRow());
}

void WhatComes::readOn() {
  if (!reader_->readOn()) {
    view_.setTimer(kReadingInterval);
    return tell();
  }
  const std::optional<ComingRow> selected = selectedRow();
  faulty_ = reader_->faulty();
  // Not into its place at once: the reader looks at what is there.
  ComingNotes found = reader_->take();
  reader_.reset();
  notes_ = std::move(found);
  view_.setTimer(kLookingInterval);
  showRows(selected);
}

void WhatComes::tick() {
  if (!open_) return;
  if (reader_) return readOn();
  const LocalMinute now = minuteOf(clock_.now());
  const bool otherDay = std::chrono::floor<days>(now) != notes_.first();
  const bool folderMayBeBack = away_ && now != shownAt_;
  const bool otherKinds = !std::ranges::equal(kinds_, host_.noteKinds());
  const bool otherNotes = otherKinds || changes_ != host_.noteChanges();
  if (otherDay || folderMayBeBack || otherNotes) return refresh();
  const bool otherHours = hours_ != host_.hourFormat();
  if (now != shownAt_ || otherHours || marks_ != host_.comingMarks()) showRows(selectedRow());
}

std::optional<ComingRow> WhatComes::row(std::size_t number) {
  return number < rows_.count() ? std::optional(rows_.row(number)) : std::nullopt;
}

std::optional<ComingRow> WhatComes::selectedRow() {
  const std::optional<std::size_t> selected = view_.selectedRow();
  return selected ? row(*selected) : std::nullopt;
}

/// The row stays selected wherever it is now, and the list where the user scrolled it to.
void WhatComes::showRows(const std::optional<ComingRow>& selected) {
  shownAt_ = minuteOf(clock_.now());
  marks_ = host_.comingMarks();
  hours_ = host_.hourFormat();
  rows_.show(marks_, kinds_, shownAt_, daysOf(span_, notes_.first()));
  view_.showRows(rows_.count(), selected ? rows_.find(*selected) : std::nullopt);
  if (emptyDay_ && rows_.hasAny(*emptyDay_)) emptyDay_.reset();
  view_.showBoldDays();
  tell();
}

void WhatComes::chooseSpan(ComingSpan span) {
  span_ = span;
  emptyDay_.reset();
  showRows(selectedRow());
}

void WhatComes::chooseDay(local_days day) {
  // Nothing is known of any day before the notes are read.
  if (notes_.first() == local_days()) return;
  emptyDay_.reset();
  if (!rows_.hasAny(day)) {
    emptyDay_ = day;
    return tell();
  }
  if (!rows_.firstOf(day)) {
    span_ = spanWith(static_cast<std::size_t>((day - notes_.first()).count()), notes_.first());
    view_.showSpan(span_);
    showRows({});
  }
  if (const std::optional<std::size_t> row = rows_.firstOf(day)) {
    view_.selectRow(*row);
    view_.scrollTo(*row);
  }
  tell();
}

void WhatComes::openRow(std::size_t number) {
  if (const std::optional<ComingRow> chosen = row(number)) {
    host_.openNote(chosen->kind, titleOf(chosen->fileName));
  }
}

std::wstring WhatComes::text(const ComingRow& row, ComingColumn column) const {
  switch (column) {
    case ComingColumn::Time:
      return timeText(row, host_.hourFormat());
    case ComingColumn::Name:
      return std::wstring(titleOf(row.fileName));
    case ComingColumn::Kind:
      return std::wstring(editorPage(row.kind).caption);
    default:
      return stateText(row.state);
  }
}

std::uint32_t WhatComes::boldDays(std::chrono::year_month month) {
  std::uint32_t bits = 0;
  const local_days first(month / 1);
  const auto length =
      static_cast<unsigned>((local_days(month / std::chrono::last) - first).count());
  for (unsigned i = 0; i <= length; ++i) {
    if (rows_.hasAny(first + days(i))) bits |= 1U << i;
  }
  return bits;
}

void WhatComes::tell() {
  view_.setNotice(notice());
}

std::wstring WhatComes::notice() const {
  if (reader_) return readingNotice(*reader_);
  if (away_) return std::wstring(kFolderAwayNotice);
  if (emptyDay_) return emptyDayNotice();
  if (!faulty_.empty()) return faultNotice(faulty_);
  return rows_.count() == 0 ? L"Nothing is due in this time." : L"";
}

std::wstring WhatComes::emptyDayNotice() const {
  if (*emptyDay_ < notes_.first()) return L"That day is over.";
  const days year(daysOf(ComingSpan::Year, notes_.first()));
  if (*emptyDay_ >= notes_.first() + year)
    return L"What comes is listed for a year, and no further.";
  return L"Nothing is due on that day.";
}

void WhatComes::loadSettings() {
  const int span = memory_.number(kSpanKey, static_cast<int>(kFirstSpan));
  const bool exists = span >= 0 && span < static_cast<int>(kComingSpans.size());
  span_ = exists ? static_cast<ComingSpan>(span) : kFirstSpan;
  view_.showSpan(span_);
  designed_ = view_.size();
  const Size size = memory_.size(designed_);
  if (size != designed_) view_.setSize(size);
}

void WhatComes::storeSettings() {
  memory_.store(kSpanKey, static_cast<int>(span_), static_cast<int>(kFirstSpan));
  memory_.storeSize(view_.size(), designed_);
}

void WhatComes::unload() noexcept {
  if (!open_) return;
  open_ = false;
  try {
    storeSettings();
  } catch (const Failure&) {
    // No reason for a message: the window has another size the next time.
  }
  reader_.reset();
  notes_ = ComingNotes();
  rows_.show({}, {}, {}, 0);
  marks_ = {};
  view_.unload();
}

}  // namespace kalvora
