#include "app/IniAnswer.h"

#include <algorithm>
#include <optional>

namespace kalvora {

namespace {

using namespace std::string_view_literals;

constexpr std::string_view kLineEnds = "\r\n"sv;
constexpr std::string_view kBlanks = " \t\v\f\r\n\x1A"sv;

std::string_view trimmedBytes(std::string_view text) {
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::string_view upToNul(std::string_view text) {
  return text.substr(0, text.find('\0'));
}

/// A name or a value of the file. Blanks go first: those before a NUL stay.
std::string_view fileText(std::string_view text) {
  return upToNul(trimmedBytes(text));
}

/// A name that is asked for.
std::string_view askedText(std::string_view text) {
  return trimmedBytes(upToNul(text));
}

char upperAscii(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool sameName(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, upperAscii, upperAscii);
}

/// The name of the section that begins in a line without blanks at its ends; nothing for any other
/// line, an unclosed bracket too.
std::optional<std::string_view> sectionOf(std::string_view line) {
  const auto close = line.rfind(']');
  if (!line.starts_with('[') || close == std::string_view::npos) return std::nullopt;
  return fileText(line.substr(1, close - 1));
}

/// Takes the next line that is not blank off `rest`, without the blanks at its ends; empty where
/// there is none.
std::string_view nextLine(std::string_view& rest) {
  rest.remove_prefix(std::min(rest.find_first_not_of(kBlanks), rest.size()));
  const std::string_view line = rest.substr(0, rest.find_first_of(kLineEnds));
  rest.remove_prefix(line.size());
  return trimmedBytes(line);
}

/// Only the first section of the name and in it the first key of the name count, even a key
/// without "=", which has no value.
std::optional<std::string_view> findValue(std::string_view text, std::string_view section,
                                          std::string_view key) {
  bool inside = section.empty();  // lines before any section stand in a section without a name
  for (std::string_view line = nextLine(text); !line.empty(); line = nextLine(text)) {
    if (const auto name = sectionOf(line)) {
      if (inside) return std::nullopt;
      inside = sameName(*name, section);
      continue;
    }
    const auto equals = line.find('=');
    if (!inside || !sameName(fileText(line.substr(0, equals)), key)) continue;
    if (equals == std::string_view::npos) return std::nullopt;
    return fileText(line.substr(equals + 1));
  }
  return std::nullopt;
}

/// One pair of equal quotes around a value goes.
std::string_view unquoted(std::string_view value) {
  const bool quoted = value.size() > 1 && value.front() == value.back() &&
                      (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

std::string_view withoutTrailingBlanks(std::string_view text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

bool isPrintable(char c) {
  return c >= ' ' && c <= '~';
}

/// Printable characters and whole line ends: systems need not agree on any other.
bool hasOrdinaryCharacters(std::string_view bytes) {
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const bool wholeLineEnd = bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n';
    if (!isPrintable(bytes[i]) && bytes[i] != '\n' && !wholeLineEnd) return false;
  }
  return true;
}

bool isOrdinarySection(std::string_view line) {
  if (line.size() < 3 || line.find_first_of("[]", 1) != line.size() - 1) return false;
  const std::string_view name = line.substr(1, line.size() - 2);
  return trimmedBytes(name) == name;
}

/// For a line without blanks at its ends.
bool isOrdinaryLine(std::string_view line) {
  if (line.starts_with(';')) return true;
  if (line.starts_with('[')) return isOrdinarySection(line);
  return !line.starts_with('=') && line.find('=') != std::string_view::npos;
}

}  // namespace

std::size_t iniAnswer(std::string_view text, const std::string& section, const std::string& key,
                      const std::string& fallback, std::span<char> buffer) {
  if (buffer.empty()) return 0;
  const auto value = findValue(text, askedText(section), askedText(key));
  const std::string_view answer =
      value ? unquoted(*value) : withoutTrailingBlanks(upToNul(fallback));
  const std::size_t copied = std::min(answer.size(), buffer.size() - 1);
  std::copy_n(answer.begin(), copied, buffer.begin());
  buffer[copied] = '\0';
  return copied;
}

bool isOrdinaryIni(std::string_view bytes) {
  if (!hasOrdinaryCharacters(bytes)) return false;
  for (std::string_view line = nextLine(bytes); !line.empty(); line = nextLine(bytes)) {
    if (!isOrdinaryLine(line)) return false;
  }
  return true;
}

}  // namespace kalvora
