#pragma once

#include "notes/frmAboutView.h"

namespace kalvora {

/// Runs commands of the system's shell without a window of its own.
class HiddenCommand : public HiddenShell {
 public:
  void run(std::wstring_view command) override;
};

}  // namespace kalvora
