#pragma once

#include <string_view>

#include "base/Errors.h"

namespace kalvora {

/// The title of the message that a SkinError is shown in.
inline constexpr std::wstring_view kSkinErrorTitle = L"Skin Error";

/// A skin that cannot be worn: the program cannot go on without one.
class SkinError : public Failure {
 public:
  using Failure::Failure;
};

}  // namespace kalvora
