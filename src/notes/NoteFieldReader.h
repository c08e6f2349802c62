#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/CodePage.h"

namespace kalvora {

/// Takes a note file apart field by field.
class NoteFieldReader {
 public:
  /// `bytes`, the whole file, and `codePage` must outlive this object.
  NoteFieldReader(std::string_view bytes, const CodePage& codePage)
      : bytes_(bytes), codePage_(codePage) {}

  /// Read a variable: the next field, to the next "|", which is dropped, or to the end of the file.
  /// At least one byte is read for every field, and past the end of the file that byte is the
  /// character of code 0: so a field that the file no longer has is one NUL character.
  std::wstring Czytaj_zmienna();

 private:
  char nextByte();

  std::string_view bytes_;
  const CodePage& codePage_;
  std::size_t count_ = 0;  // bytes read, those past the end too
};

}  // namespace kalvora
