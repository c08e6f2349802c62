#pragma once

#include "base/Errors.h"
#include "options/OptionsControls.h"

namespace kalvora {

/// A box of the options dialog holds what its setting cannot take.
class OptionsInputError : public Failure {
 public:
  OptionsInputError(TextId box, const Failure& cause)
      : Failure(nameOf(box) + L": " + cause.message()), box_(box) {}

  TextId box() const noexcept { return box_; }

 private:
  TextId box_;
};

}  // namespace kalvora
