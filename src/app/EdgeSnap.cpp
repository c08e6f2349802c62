#include "app/EdgeSnap.h"

namespace kalvora {

namespace {

bool nearFarEdge(std::int32_t end, std::int32_t screenEnd) {
  return end > screenEnd - kSnapMargin && end <= screenEnd;
}

bool nearOrigin(std::int32_t start) {
  return start > 0 && start < kSnapMargin;
}

}  // namespace

TwipsPlace snapToEdges(TwipsPlace window, TwipsSize size, TwipsSize screen) {
  if (nearFarEdge(window.left + size.width, screen.width)) window.left = screen.width - size.width;
  if (nearFarEdge(window.top + size.height, screen.height)) {
    window.top = screen.height - size.height;
  }
  // Last, so that a window nearly as large as the screen ends at its left and its upper edge.
  if (nearOrigin(window.left)) window.left = 0;
  if (nearOrigin(window.top)) window.top = 0;
  return window;
}

}  // namespace kalvora
