#include "alarms/AlarmQueue.h"

#include <limits>

namespace kalvora {

namespace {

constexpr wchar_t kSeparator = L'|';

}  // namespace

void AlarmQueue::clear() {
  pending_ = 0;
  readPosition_ = 0;
  Kolejka_alarmow.clear();
}

void AlarmQueue::append(std::wstring_view fileName) {
  if (pending_ == std::numeric_limits<std::int16_t>::max()) return;
  ++pending_;
  Kolejka_alarmow += fileName;
  Kolejka_alarmow += kSeparator;
}

std::wstring AlarmQueue::takeNext() {
  if (pending_ > 0) --pending_;
  std::wstring name;
  while (readPosition_ < Kolejka_alarmow.size()) {
    const wchar_t c = Kolejka_alarmow[readPosition_++];
    if (c == kSeparator || readPosition_ == Kolejka_alarmow.size()) break;
    name += c;
  }
  return name;
}

bool AlarmQueue::waits(std::wstring_view fileName) const {
  AlarmQueue rest = *this;
  while (rest.pending() > 0) {
    if (rest.takeNext() == fileName) return true;
  }
  return false;
}

}  // namespace kalvora
