#pragma once

#include "base/CodePage.h"

namespace kalvora {

/// The system's ANSI code page. A character that it cannot hold becomes its replacement character,
/// never one that looks like it.
class SystemCodePage : public CodePage {
 public:
  std::wstring toText(std::string_view bytes) const override;
  std::string toBytes(std::wstring_view text) const override;
  bool startsPair(char byte) const override;
};

}  // namespace kalvora
