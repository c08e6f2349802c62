#include "win32/toolkit/WindowRegion.h"

#include <new>
#include <span>

namespace kalvora {

namespace {

// The halves are united in a balanced tree: adding span by span to one growing region copies that
// region each time, which takes hundreds of times longer on a ragged outline.
UniqueRegion unite(std::span<const RowSpan> spans) {
  if (spans.size() == 1) {
    const RowSpan& span = spans.front();
    UniqueRegion region(CreateRectRgn(span.left, span.y, span.right, span.y + 1));
    if (!region) throw std::bad_alloc();
    return region;
  }
  UniqueRegion upper = unite(spans.first(spans.size() / 2));
  const UniqueRegion lower = unite(spans.subspan(spans.size() / 2));
  if (CombineRgn(upper.get(), upper.get(), lower.get(), RGN_OR) == ERROR) throw std::bad_alloc();
  return upper;
}

}  // namespace

UniqueRegion regionOf(const RowSpans& spans) {
  if (spans.empty()) return {};
  return unite(spans);
}

}  // namespace kalvora
