#include "win32/about/AboutWindow.h"

#include "base/Numbers.h"
#include "base/Version.h"
#include "win32/about/AboutIds.h"
#include "win32/toolkit/BufferedDc.h"
#include "win32/toolkit/ControlText.h"

namespace kalvora {

namespace {

constexpr UINT_PTR kTimer1 = 1;

// Not the system's colour of links: some themes have one that cannot be read on a dialog.
constexpr COLORREF kLinkColor = RGB(0, 92, 175);

// What is linked into the program and whose it is.
constexpr const wchar_t* kLicences =
    L"Kalvora is free software under the MIT licence. Copyright (c) the Kalvora developers.\r\n"
    L"\r\n"
    L"It comes with no warranty of any kind.\r\n"
    L"\r\n"
    L"Linked into this program; the full texts of these licences are in the file "
    L"THIRD-PARTY.txt beside it:\r\n"
    L"\r\n"
    L"stb_image, the decoder of the skins' pictures, by Sean Barrett and contributors: in the "
    L"public domain, or under the MIT licence, whichever you prefer.\r\n"
    L"\r\n"
    L"libstdc++ and libgcc, the run-time libraries of the compiler, copyright (c) the Free "
    L"Software Foundation: GNU General Public License, version 3, with the GCC Runtime Library "
    L"Exception, version 3.1.\r\n"
    L"\r\n"
    L"winpthreads and the run-time files of mingw-w64, copyright (c) the mingw-w64 project: MIT "
    L"licence and Zope Public License.\r\n";

int idOfLink(LinkLabel label) {
  return label == LinkLabel::Label2 ? IDC_LABEL2 : IDC_START_URL;
}

UniqueFont derivedFont(HFONT base, int percent, LONG weight, BYTE underline) {
  LOGFONTW font{};
  GetObjectW(base, sizeof font, &font);
  font.lfHeight = font.lfHeight * percent / 100;
  font.lfWeight = weight;
  font.lfUnderline = underline;
  return UniqueFont(CreateFontIndirectW(&font));
}

Size sizeOf(HBITMAP bitmap) {
  BITMAP description{};
  GetObjectW(bitmap, sizeof description, &description);
  return {description.bmWidth, description.bmHeight};
}

}  // namespace

void AboutWindow::load() {
  scr_img = UniqueBitmap(
      static_cast<HBITMAP>(LoadImageW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(IDB_ABOUT_BAND),
                                      IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
  bandSize_ = sizeOf(scr_img.get());
  create(IDD_ABOUT);
  centre();
  makeFonts();
  writeTexts();
  fitBandFrame();
}

void AboutWindow::unload() {
  destroy();
  scr_img.reset();
  nameFont_.reset();
  linkFont_.reset();
}

void AboutWindow::makeFonts() {
  const auto base = reinterpret_cast<HFONT>(SendMessageW(window(), WM_GETFONT, 0, 0));
  nameFont_ = derivedFont(base, 190, FW_BOLD, FALSE);
  linkFont_ = derivedFont(base, 100, FW_NORMAL, TRUE);
  SendMessageW(control(IDC_ABOUT_NAME), WM_SETFONT, reinterpret_cast<WPARAM>(nameFont_.get()),
               FALSE);
}

void AboutWindow::writeTexts() {
  SetDlgItemTextW(window(), IDC_ABOUT_VERSION,
                  L"Version " KALVORA_VERSION_TEXT L" \u2013 notes and reminders in a skin");
  SetDlgItemTextW(window(), IDC_ABOUT_LICENCES, kLicences);
}

HWND AboutWindow::scr_pic() const {
  return control(IDC_SCR_PIC);
}

/// Makes the frame as high as the picture and as wide as the window.
void AboutWindow::fitBandFrame() {
  RECT client{};
  GetClientRect(window(), &client);
  MoveWindow(scr_pic(), 0, 0, client.right, bandSize_.height, FALSE);
}

std::wstring AboutWindow::caption(LinkLabel label) const {
  return textOf(control(idOfLink(label)));
}

void AboutWindow::setCaption(LinkLabel label, std::wstring_view text) {
  const HWND link = control(idOfLink(label));
  SetWindowTextW(link, std::wstring(text).c_str());
  // The link is as wide as its text, so that only the text itself can be clicked.
  const HDC context = GetDC(link);
  SIZE extent{};
  {
    const SelectedObject font(context, linkFont_.get());
    GetTextExtentPoint32W(context, text.data(), static_cast<int>(text.size()), &extent);
  }
  ReleaseDC(link, context);
  RECT place{};
  GetClientRect(link, &place);
  SetWindowPos(link, nullptr, 0, 0, extent.cx + 4, place.bottom,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  InvalidateRect(link, nullptr, TRUE);
}

void AboutWindow::hideLinks() {
  for (const int id : {IDC_START_URL_WORDS, IDC_START_URL, IDC_LABEL2_WORDS, IDC_LABEL2}) {
    ShowWindow(control(id), SW_HIDE);
  }
  // The licences get the room.
  const RECT links = placeOf(IDC_START_URL_WORDS);
  const RECT words = placeOf(IDC_ABOUT_LICENCES_WORDS);
  const RECT text = placeOf(IDC_ABOUT_LICENCES);
  const int up = words.top - links.top;
  MoveWindow(control(IDC_ABOUT_LICENCES_WORDS), words.left, links.top, words.right - words.left,
             words.bottom - words.top, FALSE);
  MoveWindow(control(IDC_ABOUT_LICENCES), text.left, text.top - up, text.right - text.left,
             text.bottom - text.top + up, FALSE);
}

RECT AboutWindow::placeOf(int id) const {
  RECT place{};
  GetWindowRect(control(id), &place);
  MapWindowPoints(nullptr, window(), reinterpret_cast<POINT*>(&place), 2);
  return place;
}

int AboutWindow::frameWidth() const {
  RECT client{};
  GetClientRect(scr_pic(), &client);
  return client.right * kTwipsPerPixel;
}

int AboutWindow::bandWidth() const {
  return bandSize_.width * kTwipsPerPixel;
}

void AboutWindow::setBandLeft(int left) {
  bandLeft_ = toPixels(left);
  InvalidateRect(scr_pic(), nullptr, FALSE);
}

void AboutWindow::startTimer1(int interval) {
  SetTimer(window(), kTimer1, static_cast<UINT>(interval), nullptr);
}

void AboutWindow::stopTimer1() {
  KillTimer(window(), kTimer1);
}

INT_PTR AboutWindow::handle(HWND, UINT message, WPARAM wParam, LPARAM lParam) noexcept {
  switch (message) {
    case WM_TIMER:
      deliver_([this] { about_.Timer1_Timer(); });
      return TRUE;
    case WM_COMMAND:
      return onCommand(LOWORD(wParam), HIWORD(wParam));
    case WM_CLOSE:
      deliver_([this] { about_.unload(); });
      return TRUE;
    case WM_DRAWITEM:
      onDrawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
      return TRUE;
    case WM_SETCURSOR:
      return onSetCursor(reinterpret_cast<HWND>(wParam));
    default:
      return FALSE;
  }
}

bool AboutWindow::onCommand(int id, int notification) noexcept {
  switch (id) {
    case IDC_ABOUT_LICENCES:
      // The key that leads here selects the whole text, which would scroll it to its end.
      if (notification == EN_SETFOCUS) PostMessageW(control(id), EM_SETSEL, 0, 0);
      return true;
    case IDOK:
    case IDCANCEL:
      deliver_([this] { about_.cmdOK_Click(); });
      return true;
    case IDC_START_URL:
      deliver_([this] { about_.link_Click(LinkLabel::StartUrl_Label); });
      return true;
    case IDC_LABEL2:
      deliver_([this] { about_.link_Click(LinkLabel::Label2); });
      return true;
    default:
      return false;
  }
}

// cppcheck-suppress constParameter ; a handle is no pointer to anything
bool AboutWindow::onSetCursor(HWND overControl) noexcept {
  if (overControl != control(IDC_START_URL) && overControl != control(IDC_LABEL2)) return false;
  SetCursor(LoadCursorW(nullptr, IDC_HAND));
  SetWindowLongPtrW(window(), DWLP_MSGRESULT, TRUE);
  return true;
}

void AboutWindow::onDrawItem(const DRAWITEMSTRUCT& item) noexcept {
  if (item.CtlID == IDC_SCR_PIC) {
    drawBand(item);
  } else {
    drawLink(item);
  }
}

void AboutWindow::drawBand(const DRAWITEMSTRUCT& item) const {
  if (bandSize_.width <= 0) return;
  const BufferedDc buffer(item.hDC, item.rcItem);
  for (int left = bandLeft_; left < item.rcItem.right; left += bandSize_.width) {
    drawBitmap(buffer.get(), scr_img.get(), left, 0);
  }
}

void AboutWindow::drawLink(const DRAWITEMSTRUCT& item) const {
  const LinkLabel label = item.CtlID == IDC_LABEL2 ? LinkLabel::Label2 : LinkLabel::StartUrl_Label;
  const std::wstring text = caption(label);
  const SelectedObject font(item.hDC, linkFont_.get());
  FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_3DFACE));
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, kLinkColor);
  RECT area = item.rcItem;
  area.left += 1;
  DrawTextW(item.hDC, text.c_str(), -1, &area, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
  if (item.itemState & ODS_FOCUS) DrawFocusRect(item.hDC, &item.rcItem);
}

}  // namespace kalvora
