#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/CodePage.h"

namespace kalvora {

/// Where the next "|" stands in a note's bytes, from `from` on; npos where there is none. A byte of
/// that number can also be the second half of a character, which is no "|".
std::size_t findSeparator(std::string_view bytes, std::size_t from, const CodePage& codePage);

/// Takes a note file apart field by field.
class NoteFieldReader {
 public:
  /// `bytes`, the whole file, and `codePage` must outlive this object.
  NoteFieldReader(std::string_view bytes, const CodePage& codePage)
      : bytes_(bytes), codePage_(codePage) {}

  /// Read a variable: the next field, to the next "|", which is dropped, or to the end of the file.
  /// A field that the file no longer has is one NUL character.
  std::wstring Czytaj_zmienna();
  /// Read a variable, weekly: the next field, of a weekly note's weekdays.
  std::wstring Czytaj_zmienna_weak() { return Czytaj_zmienna(); }

 private:
  std::string_view bytes_;
  const CodePage& codePage_;
  std::size_t count_ = 0;  // bytes read
};

}  // namespace kalvora
