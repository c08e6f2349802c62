#include "win32/toolkit/ModelessDialogs.h"

namespace kalvora {

void ModelessDialogs::add(ModelessDialog& dialog) {
  remove(dialog);
  open_.push_back(&dialog);
}

void ModelessDialogs::remove(const ModelessDialog& dialog) {
  std::erase(open_, &dialog);
}

bool ModelessDialogs::takesMessage(MSG& message) noexcept {
  // By number: a dialog that takes a message may close, or open another one.
  for (std::size_t i = 0; i < open_.size(); ++i) {
    if (open_[i]->takesMessage(message)) return true;
  }
  return false;
}

}  // namespace kalvora
