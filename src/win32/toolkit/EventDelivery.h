#pragma once

#include <functional>
#include <utility>

#include "base/EventGuard.h"

namespace kalvora {

/// The only way of an event from a window into its presenter: it runs inside the event guard, and
/// then what it changed is shown.
class EventDelivery {
 public:
  /// `show` shows it, and throws nothing. `guard` must outlive this object.
  explicit EventDelivery(
      EventGuard& guard, std::function<void()> show = [] {})
      : guard_(guard), show_(std::move(show)) {}

  /// Returns whether the event ran to its end.
  bool operator()(const std::function<void()>& event) const noexcept {
    const bool completed = guard_.run(event);
    show_();
    return completed;
  }

 private:
  EventGuard& guard_;
  std::function<void()> show_;
};

}  // namespace kalvora
