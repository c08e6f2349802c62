#include "find/SearchWords.h"

#include <algorithm>
#include <array>

#include "base/Text.h"
#include "base/Utf8.h"

namespace kalvora {

namespace {

constexpr wchar_t kQuote = L'"';
constexpr std::wstring_view kEndsOfAWord = L" \t\"\x3000";
// The marks of kana stand behind their letter, and make it another one.
constexpr std::array<std::wstring_view, 2> kKanaMarks = {L"\x3099", L"\x309A"};
constexpr std::array<std::string_view, 2> kKanaMarksUtf8 = {"\xE3\x82\x99", "\xE3\x82\x9A"};

/// Where a word begins in a text, with no part of its last letter left out.
template <typename Text>
std::size_t placeOf(Text word, Text text, const std::array<Text, 2>& marks) {
  std::size_t place = text.find(word);
  const auto goesOn = [&](Text mark) { return text.substr(place + word.size()).starts_with(mark); };
  while (place != Text::npos && std::ranges::any_of(marks, goesOn)) {
    place = text.find(word, place + 1);
  }
  return place;
}

std::size_t placeOf(std::wstring_view word, std::wstring_view text) {
  return placeOf(word, text, kKanaMarks);
}

/// A character of two halves comes half by half from the keyboard.
std::wstring_view withoutHalfCharacter(std::wstring_view typed) {
  constexpr unsigned kFirstHalf = 0xD800;
  const bool ends = !typed.empty() && (static_cast<unsigned>(typed.back()) & ~0x3FFU) == kFirstHalf;
  if (ends) typed.remove_suffix(1);
  return typed;
}

}  // namespace

SearchWords::SearchWords(std::wstring_view typed) {
  typed = withoutHalfCharacter(typed);
  while (!typed.empty()) {
    const bool quoted = typed.front() == kQuote;
    if (quoted) typed.remove_prefix(1);
    // A phrase that is not closed yet goes to the end.
    const std::size_t found = quoted ? typed.find(kQuote) : typed.find_first_of(kEndsOfAWord);
    const std::size_t end = std::min(found, typed.size());
    add(typed.substr(0, end));
    // A quote behind a word begins a phrase.
    const bool ended = end < typed.size() && (quoted || typed[end] != kQuote);
    typed.remove_prefix(end + (ended ? 1 : 0));
  }
  for (const std::wstring& word : words_) utf8_.push_back(toUtf8(word));
}

void SearchWords::add(std::wstring_view word) {
  const std::wstring letters = folded(word);
  const std::wstring_view bare = trimmed(letters);
  if (bare.empty()) return;
  const auto shorter = std::ranges::find_if(
      words_, [&](const std::wstring& other) { return other.size() < bare.size(); });
  words_.emplace(shorter, bare);
}

bool SearchWords::occurIn(std::string_view foldedUtf8) const {
  return std::ranges::all_of(utf8_, [&](const std::string& word) {
    return placeOf<std::string_view>(word, foldedUtf8, kKanaMarksUtf8) != std::string_view::npos;
  });
}

bool SearchWords::narrow(const SearchWords& others) const {
  return std::ranges::all_of(others.words_, [this](const std::wstring& other) {
    return std::ranges::any_of(words_, [&](const std::wstring& word) {
      return placeOf(other, word) != std::wstring::npos;
    });
  });
}

std::optional<TextPiece> SearchWords::placeIn(std::wstring_view text) const {
  if (words_.empty()) return std::nullopt;
  const FoldedText foldedText(text);
  for (const std::wstring& word : words_) {
    const std::size_t place = placeOf(word, foldedText.letters());
    if (place != std::wstring::npos) return foldedText.original({place, word.size()});
  }
  return std::nullopt;
}

}  // namespace kalvora
