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

PositionPreview previewOf(Size area, Size screen, const Rect& window) {
  const double factor = fittingFactor(area, screen);
  const Size size{scaled(screen.width, factor), scaled(screen.height, factor)};
  const Point corner{(area.width - size.width) / 2, (area.height - size.height) / 2};
  PositionPreview preview;
  preview.screen = {corner.x, corner.y, size.width, size.height};
  preview.window = {corner.x + scaled(window.x, factor), corner.y + scaled(window.y, factor),
                    std::max(scaled(window.width, factor), kLeastPreviewShape),
                    std::max(scaled(window.height, factor), kLeastPreviewShape)};
  return preview;
}

}  // namespace kalvora
