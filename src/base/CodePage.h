#pragma once

#include <string>
#include <string_view>

namespace kalvora {

/// The characters of a file's bytes, as the system's ANSI code page has them.
class CodePage {
 public:
  virtual ~CodePage() = default;
  virtual std::wstring toText(std::string_view bytes) const = 0;
  /// What the code page cannot hold becomes its replacement character.
  virtual std::string toBytes(std::wstring_view text) const = 0;
  /// Whether this byte and the next one are one character, as in the code pages of East Asia. Such
  /// a next byte can be any ASCII character from "@" on.
  virtual bool startsPair(char byte) const = 0;

  /// Whether the text comes back as it is.
  bool holds(std::wstring_view text) const { return toText(toBytes(text)) == text; }
};

/// The Western code page 1252 as a fixed table, for everything that runs without Windows. The five
/// bytes without a character stand for the control code of the same number.
class Windows1252 : public CodePage {
 public:
  std::wstring toText(std::string_view bytes) const override;
  std::string toBytes(std::wstring_view text) const override;
  bool startsPair(char /*byte*/) const override { return false; }
};

}  // namespace kalvora
