#include "find/SearchWords.h"

#include <algorithm>

#include "base/Text.h"
#include "base/Utf8.h"

namespace kalvora {

namespace {

constexpr wchar_t kQuote = L'"';
constexpr std::wstring_view kEndsOfAWord = L" \t\"\x3000";

}  // namespace

SearchWords::SearchWords(std::wstring_view typed) {
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
    return foldedUtf8.find(word) != std::string_view::npos;
  });
}

bool SearchWords::narrow(const SearchWords& others) const {
  return std::ranges::all_of(others.words_, [this](const std::wstring& other) {
    return std::ranges::any_of(
        words_, [&](const std::wstring& word) { return word.find(other) != std::wstring::npos; });
  });
}

std::optional<TextPiece> SearchWords::placeIn(std::wstring_view text) const {
  if (words_.empty()) return std::nullopt;
  const FoldedText foldedText(text);
  for (const std::wstring& word : words_) {
    const std::size_t place = foldedText.letters().find(word);
    if (place != std::wstring::npos) return foldedText.original({place, word.size()});
  }
  return std::nullopt;
}

}  // namespace kalvora
