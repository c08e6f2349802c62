#pragma once

#include <optional>
#include <string>

#include "base/Geometry.h"
#include "base/Image.h"

namespace kalvora {

/// The picture as the window shows it: what the outline cuts away is magenta.
Image shaped(const Image& picture, const std::optional<RowSpans>& shape);

/// Compares a picture with tests/golden/pictures/<name>.png, exactly. Where they differ, the
/// actual picture and the difference (differing pixels red on the darkened original) are left in
/// the build folder's golden-failures. With KALVORA_RENEW_GOLDEN=1 in the environment the kept
/// picture is written instead of compared.
void expectGolden(const Image& actual, const std::string& name);

}  // namespace kalvora
