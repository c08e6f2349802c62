#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kalvora {

/// The reminders that are due: file names, each followed by "|", in the order in which they were
/// queued. Shown ones stay in the text and are passed over by a read position.
class AlarmQueue {
 public:
  /// Nothing queued, nothing shown.
  void clear();

  /// Queues a note. At the most that the pending count holds (32767) nothing more is queued, so
  /// that an unattended program does not grow without end.
  void append(std::wstring_view fileName);

  /// The next name: the characters up to the next "|", which ends each. Empty where nothing is
  /// left. It lasts until a change.
  std::wstring_view next() const;
  /// Takes it off the queue.
  std::wstring takeNext();

  /// Whether this name was queued and not yet taken.
  bool waits(std::wstring_view fileName) const;

  /// How many queued reminders were not yet taken.
  std::int16_t pending() const { return pending_; }

 private:
  std::wstring Kolejka_alarmow;  // alarm queue
  std::int16_t pending_ = 0;
  // How many characters are consumed. Not 16 bits wide: the text only grows, and a program that
  // runs for months must go on ringing.
  std::size_t readPosition_ = 0;
};

}  // namespace kalvora
