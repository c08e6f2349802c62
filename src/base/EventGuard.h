#pragma once

#include <functional>
#include <string_view>

namespace kalvora {

/// Where a failure that ended an event handler is told to the user.
class ErrorReporter {
 public:
  virtual ~ErrorReporter() = default;
  virtual void report(std::wstring_view message) noexcept = 0;
};

/// The one catch place: every event enters a presenter through it, so that a failure ends the
/// handler that met it and not the program.
class EventGuard {
 public:
  explicit EventGuard(ErrorReporter& reporter) : reporter_(reporter) {}

  /// Runs `handler`; reports what escapes from it. Returns whether it ran to its end.
  bool run(const std::function<void()>& handler) noexcept;

 private:
  ErrorReporter& reporter_;
};

}  // namespace kalvora
