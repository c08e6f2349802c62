#pragma once

#include <chrono>
#include <optional>

namespace kalvora {

/// The day that a time table is for.
struct TableDay {
  int weekday;  // 0 is Sunday
  /// Nothing where the user has no notes for one date.
  std::optional<std::chrono::year_month_day> date = std::nullopt;
  friend bool operator==(const TableDay&, const TableDay&) = default;
};

}  // namespace kalvora
