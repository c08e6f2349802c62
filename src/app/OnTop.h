#pragma once

#include "app/Form1View.h"

namespace kalvora {

/// Always on top, and not any more.
inline void OnTop(Form1View& window) {
  window.setStackOrder(StackOrder::Topmost);
}
inline void RemOntop(Form1View& window) {
  window.setStackOrder(StackOrder::Ordinary);
}

}  // namespace kalvora
