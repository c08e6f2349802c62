#include "skin/TextScroll.h"

#include <algorithm>
#include <cstdint>

#include "skin/WindowPicture.h"

namespace kalvora {

namespace {

constexpr int kLeastFieldWidth = 4 * kTextScrollWidth;
constexpr int kLeastFieldHeight = 16;
constexpr int kLeastThumb = 12;
constexpr int kBarWidth = 4;
constexpr int kEdge = 1;  // of the field's ground around the bar
// A triangle that points down: each row is two pixels narrower than the one above.
constexpr int kMarkHeight = 4;
constexpr int kMarkWidth = 2 * kMarkHeight - 1;
constexpr int kMarkAir = 2;  // below it

// How much of the letters' colour there is in each, in percent; the rest is the ground's.
constexpr unsigned kMarkInk = 70;
constexpr unsigned kThumbInk = 55;
constexpr unsigned kTrackInk = 12;

Pixel mixed(Pixel ink, Pixel ground, unsigned percent) {
  const auto part = [&](unsigned shift) {
    const unsigned of = (ink >> shift) & 0xFFU;
    const unsigned on = (ground >> shift) & 0xFFU;
    return (of * percent + on * (100 - percent)) / 100;
  };
  return pixelOf(part(16), part(8), part(0));
}

int lastFirstLine(const TextExtent& extent) {
  return std::max(0, extent.lines - extent.visible);
}

void drawMark(Image& strip, Pixel ink) {
  const int left = (strip.width() - kMarkWidth) / 2;
  const int top = strip.height() - kMarkAir - kMarkHeight;
  for (int row = 0; row < kMarkHeight; ++row) {
    strip.fill({left + row, top + row, kMarkWidth - 2 * row, 1}, ink);
  }
}

}  // namespace

bool overflows(const TextExtent& extent) {
  return extent.lines > extent.visible;
}

bool goesOnBelow(const TextExtent& extent) {
  return extent.first < lastFirstLine(extent);
}

Rect textScrollRect(const Rect& field) {
  if (field.width < kLeastFieldWidth || field.height < kLeastFieldHeight) return {};
  return {field.right() - kTextScrollWidth, field.y, kTextScrollWidth, field.height};
}

Rect textRectBesideScroll(const Rect& field) {
  return {field.x, field.y, field.width - textScrollRect(field).width, field.height};
}

Image textScrollPicture(Size strip, const TextExtent& extent, const FieldLook& colors,
                        TextScrollLook look) {
  const Pixel ground = pixelOfColor(colors.backgroundColor.value_or(0));
  const Pixel ink = pixelOfColor(colors.textColor);
  Image picture(strip.width, strip.height, ground);
  if (!overflows(extent)) return picture;
  if (look == TextScrollLook::Bar) {
    const int left = strip.width - kEdge - kBarWidth;
    const TextScrollThumb thumb = textScrollThumb(strip.height, extent);
    picture.fill({left, kEdge, kBarWidth, strip.height - 2 * kEdge}, mixed(ink, ground, kTrackInk));
    picture.fill({left, thumb.top, kBarWidth, thumb.height}, mixed(ink, ground, kThumbInk));
  } else if (goesOnBelow(extent)) {
    drawMark(picture, mixed(ink, ground, kMarkInk));
  }
  return picture;
}

TextScrollThumb textScrollThumb(int stripHeight, const TextExtent& extent) {
  const int track = stripHeight - 2 * kEdge;
  const int lines = std::max(1, extent.lines);
  const int shown = std::clamp(extent.visible, 1, lines);
  // 64 bits: a text can have as many lines as a file has bytes.
  const auto share = static_cast<int>(std::int64_t{track} * shown / lines);
  const int height = std::clamp(share, std::min(kLeastThumb, track), track);
  const int last = lastFirstLine(extent);
  if (last == 0) return {kEdge, height};
  const int first = std::clamp(extent.first, 0, last);
  return {kEdge + static_cast<int>(std::int64_t{track - height} * first / last), height};
}

int firstLineAt(int stripHeight, const TextExtent& extent, int thumbTop) {
  const int way = stripHeight - 2 * kEdge - textScrollThumb(stripHeight, extent).height;
  if (way <= 0) return 0;
  const int top = std::clamp(thumbTop - kEdge, 0, way);
  return static_cast<int>((std::int64_t{top} * lastFirstLine(extent) + way / 2) / way);
}

}  // namespace kalvora
