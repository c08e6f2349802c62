#include "app/PortableProfileReader.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <string_view>

#include "app/IniText.h"

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

std::string contentOf(const std::filesystem::path& file) {
  std::error_code error;
  // Anything else, such as a pipe, could keep the reader waiting.
  if (!std::filesystem::is_regular_file(file, error)) return {};
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  if (error) return {};
  std::ifstream in(file, std::ios::binary);
  const auto wanted = std::min<std::uintmax_t>(size, PortableProfileReader::kLargestFile);
  std::string bytes(static_cast<std::size_t>(wanted), '\0');
  in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<std::size_t>(in.gcount()));
  return iniTextOf(std::move(bytes));
}

}  // namespace

std::size_t PortableProfileReader::privateProfileString(const std::string& section,
                                                        const std::string& key,
                                                        const std::string& fallback,
                                                        std::span<char> buffer,
                                                        const std::filesystem::path& file) {
  if (buffer.empty()) return 0;
  const std::string text = contentOf(file);
  const auto value = findValue(text, askedText(section), askedText(key));
  const std::string_view answer =
      value ? unquoted(*value) : withoutTrailingBlanks(upToNul(fallback));
  const std::size_t copied = std::min(answer.size(), buffer.size() - 1);
  std::copy_n(answer.begin(), copied, buffer.begin());
  buffer[copied] = '\0';
  return copied;
}

}  // namespace kalvora
