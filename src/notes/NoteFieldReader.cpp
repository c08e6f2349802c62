#include "notes/NoteFieldReader.h"

#include <algorithm>

namespace kalvora {

std::size_t findSeparator(std::string_view bytes, std::size_t from, const CodePage& codePage) {
  constexpr char kSeparator = '|';
  constexpr unsigned char kFirstBeyondAscii = 0x80;
  for (std::size_t place = from; place < bytes.size(); ++place) {
    if (bytes[place] == kSeparator) return place;
    const bool ascii = static_cast<unsigned char>(bytes[place]) < kFirstBeyondAscii;
    if (!ascii && codePage.startsPair(bytes[place])) ++place;
  }
  return std::string_view::npos;
}

std::wstring NoteFieldReader::Czytaj_zmienna() {
  if (count_ == bytes_.size()) return {L'\0'};
  const std::size_t end = std::min(findSeparator(bytes_, count_, codePage_), bytes_.size());
  const std::string_view field = bytes_.substr(count_, end - count_);
  count_ = std::min(end + 1, bytes_.size());
  return codePage_.toText(field);
}

}  // namespace kalvora
