#pragma once

#include <cstddef>
#include <string>

namespace kalvora {

/// The scanners of a time table one character at a time, as plainly as the rule can be put: what
/// they must do with any text at all.
struct PlainScan {
  std::wstring text;
  std::size_t position = 0;
  int flag = 0;

  /// The next character as a text; an empty one past the end.
  std::wstring next() {
    position = position + 1;
    return position <= text.size() ? text.substr(position - 1, 1) : L"";
  }

  int number() {
    flag = 0;
    std::wstring digits;
    for (;;) {
      const std::wstring c = next();
      const bool digit = !c.empty() && std::wstring(L"0123456789").find(c) != std::wstring::npos;
      const bool stops = c == L":" || c == L"|" || c == L"-";
      if (!digit && !stops) digits = L"";
      if (digit) digits += c;
      if (position >= text.size()) flag = -1;
      if (stops || flag == -1) break;
    }
    while (digits.size() > 1 && digits[0] == L'0') digits.erase(0, 1);
    if (digits.empty() || digits.size() > 5 || std::stol(digits) > 32767) return -1;
    return static_cast<int>(std::stol(digits));
  }

  std::wstring name() {
    flag = 0;
    std::wstring name;
    for (;;) {
      const std::wstring c = next();
      if (c != L"|") name += c;
      if (position >= text.size()) flag = -1;
      if (c == L"|" || flag == -1) break;
    }
    return name.empty() ? L"-1" : name;
  }
};

}  // namespace kalvora
