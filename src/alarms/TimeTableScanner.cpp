#include "alarms/TimeTableScanner.h"

#include <algorithm>
#include <limits>

namespace kalvora {

namespace {

/// The digits gathered by a number scan, as their number.
class Digits {
 public:
  void discard() { value_ = kNone; }
  void append(wchar_t digit) {
    // Stays just above what 16 bits hold, however many digits follow.
    value_ = std::min(std::max(value_, 0) * 10 + (digit - L'0'), kTooLarge);
  }
  std::int16_t number() const {
    return value_ == kTooLarge ? TimeTableScanner::kNoNumber : static_cast<std::int16_t>(value_);
  }

 private:
  static constexpr int kNone = TimeTableScanner::kNoNumber;
  static constexpr int kTooLarge = std::numeric_limits<std::int16_t>::max() + 1;
  int value_ = kNone;
};

bool isDigit(wchar_t c) {
  return c >= L'0' && c <= L'9';
}

bool endsNumber(wchar_t c) {
  return c == L':' || c == L'|' || c == L'-';
}

}  // namespace

std::int16_t TimeTableScanner::Czytaj_zmienna_na_kolejke(std::wstring_view skad) {
  Digits digits;
  for (bool stop = false; !stop;) {
    const std::size_t place = position_++;
    // Past the end there is no character, which is neither a digit nor an end of a number.
    const wchar_t c = place < skad.size() ? skad[place] : L'\0';
    if (isDigit(c)) {
      digits.append(c);
    } else if (endsNumber(c)) {
      stop = true;
    } else {
      digits.discard();
    }
    atEnd_ = position_ >= skad.size();
    stop = stop || atEnd_;
  }
  return digits.number();
}

std::wstring_view TimeTableScanner::Czytaj_zmienna_na_kolejke_plik(std::wstring_view skad) {
  const std::size_t start = std::min(position_, skad.size());
  const std::size_t bar = skad.find(L'|', start);
  // One search instead of a step a character: names are most of a table.
  const std::wstring_view name = skad.substr(start, bar - start);
  const bool found = bar != std::wstring_view::npos;
  position_ = found ? bar + 1 : std::max(position_ + 1, skad.size());
  atEnd_ = position_ >= skad.size();
  return name.empty() ? kNoName : name;
}

}  // namespace kalvora
