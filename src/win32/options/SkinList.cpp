#include "win32/options/SkinList.h"

#include "win32/toolkit/BitmapOf.h"
#include "win32/toolkit/BufferedDc.h"

namespace kalvora {

namespace {

// Pixels of an entry.
constexpr int kEntryHeight = 92;
constexpr int kCardWidth = 108;
constexpr int kCardHeight = 82;
constexpr int kAir = 5;
constexpr int kCardAir = 3;

Pixel pixelOfSystemColor(int index) {
  const COLORREF color = GetSysColor(index);
  return pixelOf(GetRValue(color), GetGValue(color), GetBValue(color));
}

void blitAt(HDC context, const Image& image, int x, int y) {
  POINT former{};
  OffsetViewportOrgEx(context, x, y, &former);
  blit(context, image);
  SetViewportOrgEx(context, former.x, former.y, nullptr);
}

}  // namespace

void SkinList::attach(HWND list, Painter paint) {
  list_ = list;
  paint_ = std::move(paint);
  entries_.clear();
  SendMessageW(list_, LB_SETITEMHEIGHT, 0, kEntryHeight);
}

void SkinList::setSkins(const std::vector<std::wstring>& names) {
  entries_.clear();
  SendMessageW(list_, LB_RESETCONTENT, 0, 0);
  for (const std::wstring& name : names) {
    entries_.push_back({name, false, std::nullopt});
    SendMessageW(list_, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(name.c_str()));
  }
}

void SkinList::select(int index) {
  SendMessageW(list_, LB_SETCURSEL, static_cast<WPARAM>(index), 0);
}

std::optional<int> SkinList::selected() const {
  const LRESULT index = SendMessageW(list_, LB_GETCURSEL, 0, 0);
  if (index == LB_ERR) return std::nullopt;
  return static_cast<int>(index);
}

const std::optional<Image>& SkinList::pictureOf(int index) {
  Entry& entry = entries_[static_cast<std::size_t>(index)];
  if (!entry.painted) {
    // Once only, also where there is no picture to be had.
    entry.painted = true;
    entry.picture = paint_(index, {kCardWidth - 2 * kCardAir, kCardHeight - 2 * kCardAir},
                           pixelOfSystemColor(COLOR_WINDOW));
  }
  return entry.picture;
}

void SkinList::draw(const DRAWITEMSTRUCT& item) {
  if (item.itemID >= entries_.size()) return;
  const int index = static_cast<int>(item.itemID);
  const bool chosen = item.itemState & ODS_SELECTED;
  const BufferedDc buffer(item.hDC, item.rcItem);
  const HDC context = buffer.get();
  const auto font = reinterpret_cast<HGDIOBJ>(SendMessageW(list_, WM_GETFONT, 0, 0));
  const SelectedObject selected(context, font);
  FillRect(context, &item.rcItem, GetSysColorBrush(chosen ? COLOR_HIGHLIGHT : COLOR_WINDOW));
  const RECT card{item.rcItem.left + kAir, item.rcItem.top + kAir,
                  item.rcItem.left + kAir + kCardWidth, item.rcItem.top + kAir + kCardHeight};
  drawPicture(context, card, index);
  RECT text = item.rcItem;
  text.left = card.right + 2 * kAir;
  text.right -= kAir;
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, GetSysColor(chosen ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
  DrawTextW(context, entries_[item.itemID].name.c_str(), -1, &text,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
  if (item.itemState & ODS_FOCUS) DrawFocusRect(context, &item.rcItem);
}

void SkinList::drawPicture(HDC context, const RECT& card, int index) {
  FillRect(context, &card, GetSysColorBrush(COLOR_WINDOW));
  frameSolid(context, card, GetSysColor(COLOR_3DSHADOW));
  if (const std::optional<Image>& picture = pictureOf(index)) {
    blitAt(context, *picture, card.left + (kCardWidth - picture->width()) / 2,
           card.top + (kCardHeight - picture->height()) / 2);
    return;
  }
  RECT text = card;
  InflateRect(&text, -kAir, -kAir);
  SetTextColor(context, GetSysColor(COLOR_GRAYTEXT));
  DrawTextW(context, L"This skin is not whole.", -1, &text, DT_WORDBREAK | DT_CENTER);
}

}  // namespace kalvora
