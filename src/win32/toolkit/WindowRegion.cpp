#include "win32/toolkit/WindowRegion.h"

#include <algorithm>
#include <array>
#include <new>
#include <span>

namespace kalvora {

namespace {

// What the system is given at once. It adds rectangle by rectangle to a growing region, and copies
// that each time.
constexpr std::size_t kAtOnce = 16;

UniqueRegion regionOfFew(std::span<const RowSpan> spans) {
  struct {
    RGNDATAHEADER header;
    std::array<RECT, kAtOnce> rects;
  } data;
  RECT bounds{spans.front().left, spans.front().y, spans.front().right, spans.back().y + 1};
  for (std::size_t i = 0; i < spans.size(); ++i) {
    const RowSpan& span = spans[i];
    data.rects[i] = {span.left, span.y, span.right, span.y + 1};
    bounds.left = std::min<LONG>(bounds.left, span.left);
    bounds.right = std::max<LONG>(bounds.right, span.right);
  }
  data.header = {sizeof data.header, RDH_RECTANGLES, static_cast<DWORD>(spans.size()), 0, bounds};
  UniqueRegion region(
      ExtCreateRegion(nullptr, sizeof data, reinterpret_cast<const RGNDATA*>(&data)));
  if (!region) throw std::bad_alloc();
  return region;
}

// The halves are united in a balanced tree: hundreds of times as fast as one growing region on a
// ragged outline.
UniqueRegion unite(std::span<const RowSpan> spans) {
  if (spans.size() <= kAtOnce) return regionOfFew(spans);
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
