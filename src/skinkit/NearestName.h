#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kalvora {

/// The name that was probably meant: the one that the fewest changed, added and dropped letters
/// lead to, case ignored. Nothing where none is within a third of its letters.
std::optional<std::wstring> nearestName(std::wstring_view written,
                                        const std::vector<std::wstring>& names);

}  // namespace kalvora
