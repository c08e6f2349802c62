#include "notes/NoteFieldReader.h"

namespace kalvora {

std::wstring NoteFieldReader::Czytaj_zmienna() {
  constexpr char kSeparator = '|';
  std::string field;
  do {
    const char byte = nextByte();
    if (byte == kSeparator) break;
    field += byte;
  } while (count_ < bytes_.size());
  return codePage_.toText(field);
}

char NoteFieldReader::nextByte() {
  const std::size_t place = count_++;
  return place < bytes_.size() ? bytes_[place] : '\0';
}

}  // namespace kalvora
