#include "win32/toolkit/BitmapOf.h"

namespace kalvora {

namespace {

BITMAPINFO formatOf(const Image& image) {
  BITMAPINFO format{};
  format.bmiHeader.biSize = sizeof format.bmiHeader;
  format.bmiHeader.biWidth = image.width();
  format.bmiHeader.biHeight = -image.height();  // rows from top to bottom
  format.bmiHeader.biPlanes = 1;
  format.bmiHeader.biBitCount = 32;
  format.bmiHeader.biCompression = BI_RGB;
  return format;
}

}  // namespace

UniqueBitmap bitmapOf(const Image& image) {
  if (image.empty()) return {};
  const HDC screen = GetDC(nullptr);
  const BITMAPINFO format = formatOf(image);
  UniqueBitmap bitmap(CreateDIBitmap(screen, &format.bmiHeader, CBM_INIT, image.pixels().data(),
                                     &format, DIB_RGB_COLORS));
  ReleaseDC(nullptr, screen);
  return bitmap;
}

void blit(HDC context, const Image& image) {
  if (image.empty()) return;
  const BITMAPINFO format = formatOf(image);
  SetDIBitsToDevice(context, 0, 0, static_cast<DWORD>(image.width()),
                    static_cast<DWORD>(image.height()), 0, 0, 0, static_cast<UINT>(image.height()),
                    image.pixels().data(), &format, DIB_RGB_COLORS);
}

}  // namespace kalvora
