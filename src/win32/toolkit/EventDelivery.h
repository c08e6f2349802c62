#pragma once

#include <functional>

namespace kalvora {

/// Runs an event of a presenter inside the event guard and shows what it changed on the main
/// window. Lets no exception out.
using EventDelivery = std::function<void(const std::function<void()>& handler)>;

}  // namespace kalvora
