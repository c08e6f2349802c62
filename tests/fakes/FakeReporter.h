#pragma once

#include <string>
#include <vector>

#include "base/EventGuard.h"

namespace kalvora {

/// Remembers the failures that were told to the user.
class FakeReporter : public ErrorReporter {
 public:
  void report(std::wstring_view message) noexcept override { messages.emplace_back(message); }

  std::vector<std::wstring> messages;
};

}  // namespace kalvora
