#include "app/EdgeSnap.h"

namespace kalvora {

namespace {

bool nearFarEdge(std::int32_t end, std::int32_t monitorEnd) {
  return end > monitorEnd - kSnapMargin && end <= monitorEnd;
}

bool nearOrigin(std::int32_t start) {
  return start > 0 && start < kSnapMargin;
}

}  // namespace

TwipsPlace snapToEdges(TwipsPlace window, TwipsSize size, TwipsSize monitor) {
  if (nearFarEdge(window.left + size.width, monitor.width))
    window.left = monitor.width - size.width;
  if (nearFarEdge(window.top + size.height, monitor.height)) {
    window.top = monitor.height - size.height;
  }
  // Last, so that a window nearly as large as the screen ends at its left and its upper edge.
  if (nearOrigin(window.left)) window.left = 0;
  if (nearOrigin(window.top)) window.top = 0;
  return window;
}

}  // namespace kalvora
