#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kalvora {

/// Reads a time table character by character: for each entry two numbers and a name. Of malformed
/// tables it reads something, never fails, and always comes to the end of the table.
class TimeTableScanner {
 public:
  /// What a number scan answers where there is no number.
  static constexpr std::int16_t kNoNumber = -1;
  /// What a name scan answers where there is no name.
  static constexpr std::wstring_view kNoName = L"-1";

  /// Read a variable for the queue: the next number of the table, up to the next ":", "|" or "-",
  /// which is consumed. Another character that is no digit throws away the digits before it.
  /// kNoNumber for no digits, and for a number that 16 bits do not hold: it is no hour and no
  /// minute, so its entry must never ring, and it must not keep the entries after it from ringing.
  std::int16_t Czytaj_zmienna_na_kolejke(std::wstring_view skad);

  /// Read a variable for the queue, file name: the characters up to the next "|", which is
  /// consumed. The answer is a part of `skad`, or kNoName where it would be empty.
  std::wstring_view Czytaj_zmienna_na_kolejke_plik(std::wstring_view skad);

  /// Whether the last scan reached the last character of the table.
  bool atEnd() const { return atEnd_; }
  /// How many characters are consumed: that is the number, from 1, of the last one consumed.
  /// Beyond the length of the table after a scan that began at its end.
  std::size_t position() const { return position_; }

 private:
  std::size_t position_ = 0;
  bool atEnd_ = false;
};

}  // namespace kalvora
