#include "notes/NoteContent.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "notes/NoteFieldReader.h"
#include "notes/NoteFields.h"

namespace kalvora {

namespace {

/// A line as it is shown, and its bytes with the line end.
struct Line {
  std::wstring text;
  std::string bytes;
};

/// Cut behind each line feed; the last line has none.
template <typename Text>
std::vector<Text> pieces(Text text) {
  std::vector<Text> lines;
  for (auto end = text.find('\n'); end != Text::npos; end = text.find('\n')) {
    lines.push_back(text.substr(0, end + 1));
    text.remove_prefix(end + 1);
  }
  lines.push_back(text);
  return lines;
}

/// A line end in whatever form, as a line feed alone.
std::wstring withPlainEnd(std::wstring line) {
  if (line.ends_with(L"\r\n")) line.erase(line.size() - 2, 1);
  return line;
}

std::vector<Line> storedLines(std::string_view stored, const CodePage& codePage) {
  std::vector<Line> lines;
  for (const std::string_view bytes : pieces(stored)) {
    lines.push_back({withPlainEnd(withoutNuls(codePage.toText(bytes))), std::string(bytes)});
  }
  return lines;
}

std::vector<Line> shownLines(std::wstring_view shown, const CodePage& codePage) {
  std::vector<Line> lines;
  for (const std::wstring_view piece : pieces(shown)) {
    std::wstring text = withPlainEnd(std::wstring(piece));
    std::string bytes = codePage.toBytes(text);
    if (text.ends_with(L'\n')) bytes.insert(bytes.size() - 1, 1, '\r');
    lines.push_back({std::move(text), std::move(bytes)});
  }
  return lines;
}

}  // namespace

std::string storedContentOf(NoteKind kind, std::string_view bytes, const CodePage& codePage) {
  NoteFields fields = emptyFields(kind);
  for (std::size_t left = inFileOrder(fields).size(); left > 1; --left) {
    const std::size_t end = findSeparator(bytes, 0, codePage);
    bytes = end == std::string_view::npos ? std::string_view() : bytes.substr(end + 1);
  }
  return std::string(bytes.substr(0, findSeparator(bytes, 0, codePage)));
}

std::string contentToStore(std::wstring_view shown, std::string_view stored,
                           const CodePage& codePage) {
  const std::vector<Line> lines = shownLines(shown, codePage);
  const std::vector<Line> old = storedLines(stored, codePage);
  const auto same = [](const Line& a, const Line& b) { return a.text == b.text; };
  const auto [changed, oldChanged] =
      std::mismatch(lines.begin(), lines.end(), old.begin(), old.end(), same);
  const auto behind = std::mismatch(lines.rbegin(), std::make_reverse_iterator(changed),
                                    old.rbegin(), std::make_reverse_iterator(oldChanged), same);
  std::string bytes;
  for (auto line = old.begin(); line != oldChanged; ++line) bytes += line->bytes;
  for (auto line = changed; line != behind.first.base(); ++line) bytes += line->bytes;
  for (auto line = behind.second.base(); line != old.end(); ++line) bytes += line->bytes;
  return bytes;
}

}  // namespace kalvora
