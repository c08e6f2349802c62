#include "base/InputFilters.h"

#include <algorithm>
#include <iterator>

namespace kalvora {

namespace {

// Neither "|", which separates the fields of the time table, nor what a path gives a meaning to.
constexpr std::wstring_view kNamePunctuation = L" ~`@#$%^&()-_=+[]{},.;'";

bool isDigit(wchar_t c) {
  return c >= L'0' && c <= L'9';
}

bool isNameCharacter(wchar_t c) {
  return isDigit(c) || (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z') ||
         kNamePunctuation.find(c) != std::wstring_view::npos;
}

template <typename IsKept>
FilteredInput keep(std::wstring_view text, std::size_t caret, const IsKept& isKept) {
  const std::wstring_view beforeCaret = text.substr(0, caret);
  FilteredInput input;
  std::ranges::copy_if(text, std::back_inserter(input.text), isKept);
  input.caret = static_cast<std::size_t>(std::ranges::count_if(beforeCaret, isKept));
  return input;
}

}  // namespace

inline namespace Zabezpieczenia {

FilteredInput Zabezpieczenie_Cyfry(std::wstring_view text, std::size_t caret, DigitBox box) {
  const auto isKept = [&](const wchar_t& c) {
    const bool first = &c == text.data();
    return isDigit(c) || (box == DigitBox::Time && c == L':') ||
           (box == DigitBox::SignedNumber && first && c == L'-');
  };
  return keep(text, caret, isKept);
}

FilteredInput Zabezpieczenie_plik(std::wstring_view text, std::size_t caret) {
  return keep(text, caret, isNameCharacter);
}

}  // namespace Zabezpieczenia

FilteredInput fullLineEnds(std::wstring_view text, std::size_t caret) {
  FilteredInput input;
  input.text.reserve(text.size());
  input.caret = std::min(caret, text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == L'\n' && (i == 0 || text[i - 1] != L'\r')) {
      input.text += L'\r';
      if (i < caret) ++input.caret;
    }
    input.text += text[i];
  }
  return input;
}

}  // namespace kalvora
