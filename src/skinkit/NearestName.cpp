#include "skinkit/NearestName.h"

#include <algorithm>
#include <numeric>

#include "base/Text.h"

namespace kalvora {

namespace {

/// The Levenshtein distance, row by row.
std::size_t changesBetween(std::wstring_view a, std::wstring_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t changed =
          diagonal + (ordinalUpper(a[i - 1]) == ordinalUpper(b[j - 1]) ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({changed, row[j] + 1, row[j - 1] + 1});
    }
  }
  return row.back();
}

}  // namespace

std::optional<std::wstring> nearestName(std::wstring_view written,
                                        const std::vector<std::wstring>& names) {
  const std::wstring* nearest = nullptr;
  std::size_t fewest = 0;
  for (const std::wstring& name : names) {
    const std::size_t changes = changesBetween(written, name);
    if (changes * 3 > name.size() || (nearest != nullptr && changes >= fewest)) continue;
    nearest = &name;
    fewest = changes;
  }
  if (nearest == nullptr) return {};
  return *nearest;
}

}  // namespace kalvora
