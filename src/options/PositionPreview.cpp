#include "options/PositionPreview.h"

#include <algorithm>
#include <cmath>

namespace kalvora {

namespace {

int scaled(int length, double factor) {
  return static_cast<int>(std::lround(length * factor));
}

double fittingFactor(Size area, Size screen) {
  if (screen.width <= 0 || screen.height <= 0) return 0;
  const double factor = std::min(static_cast<double>(area.width) / screen.width,
                                 static_cast<double>(area.height) / screen.height);
  return std::max(factor, 0.0);
}

}  // namespace

PositionPreview previewOf(Size area, const Desktop& desktop, const Rect& window) {
  const Rect bounds = desktop.bounds();
  const double factor = fittingFactor(area, bounds.size());
  const Size size{scaled(bounds.width, factor), scaled(bounds.height, factor)};
  const Point corner{(area.width - size.width) / 2, (area.height - size.height) / 2};
  const auto left = [&](int x) { return corner.x + scaled(x - bounds.x, factor); };
  const auto top = [&](int y) { return corner.y + scaled(y - bounds.y, factor); };
  PositionPreview preview;
  // By their edges, so that monitors that touch do so in the picture.
  for (const Rect& monitor : desktop.monitors()) {
    preview.screens.push_back({left(monitor.x), top(monitor.y),
                               left(monitor.right()) - left(monitor.x),
                               top(monitor.bottom()) - top(monitor.y)});
  }
  preview.window = {left(window.x), top(window.y),
                    std::max(scaled(window.width, factor), kLeastPreviewShape),
                    std::max(scaled(window.height, factor), kLeastPreviewShape)};
  return preview;
}

}  // namespace kalvora
