#include "alarms/AlarmQueue.h"

#include <algorithm>
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

std::wstring_view AlarmQueue::next() const {
  const std::size_t end = Kolejka_alarmow.find(kSeparator, readPosition_);
  return std::wstring_view(Kolejka_alarmow).substr(readPosition_, end - readPosition_);
}

std::wstring AlarmQueue::takeNext() {
  if (pending_ > 0) --pending_;
  std::wstring name(next());
  readPosition_ = std::min(readPosition_ + name.size() + 1, Kolejka_alarmow.size());
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
