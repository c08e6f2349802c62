// What the end-to-end driver cannot see from outside Wine: the windows and controls of other
// programs, and the registry. It reads one request a line from its input, fields parted by tabs,
// and answers each with one line of JSON in plain ASCII. Requests:
// clang-format off
//   windows CLASS              every top-level window of that class, of any for none
//   window WINDOW              what there is to say of it; null where it is gone
//   controls WINDOW            every window inside it, in front-to-back order
//   text WINDOW                its text (a control's whole content)
//   settext WINDOW TEXT
//   press WINDOW               clicks a button
//   click WINDOW X Y           the left mouse button at that place of the window, and returns when
//                              the window has done what it does then
//   clicksoon WINDOW X Y       the same, and returns at once; what is asked of the window next
//                              comes after it
//   close WINDOW               asks it to close
//   covers WINDOW X Y          whether the pixel of the window lies inside its shape
//   items WINDOW               the texts of a list box
//   chosen WINDOW              the position selected in a list box or a combo box; -1 for none
//   rows WINDOW FIRST MOST     the texts of the rows of a list view, column by column
//   rowcount WINDOW            how many rows it has
//   rowselected WINDOW         the row selected in it; -1 for none
//   caret WINDOW               where the selection of an edit or combo box begins and ends
//   firstline WINDOW           the topmost line of an edit box, from 0
//   focus WINDOW               the window of that window's program that has the keyboard; 0: none
//   accessible WINDOW          whether it has an object for screen readers
//   held WINDOW                how many handles that window's program holds: of the kernel, of GDI
//   at X Y                     the top-level window that a click there on the screen reaches
//   pointer                    where Windows holds the mouse pointer to be
//   hold PATH                  opens a file so that nobody else can; whether that went well
//   release                    closes that file
//   regread KEY NAME           null where there is none
//   regwrite KEY NAME TEXT
//   regbytes KEY NAME TYPE HEX a value of any type, given by its number, and of any size
//   regnames KEY               the names of its values
// clang-format on

#include <windows.h>

#include <commctrl.h>

#include <iostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/HeldHandles.h"
#include "probeList.h"
#include "probeRegistry.h"
#include "probeText.h"

namespace {

constexpr UINT kAnswerTimeout = 5000;

/// Undoes the driver's \t, \n, \r and \\.
std::string unescaped(std::string_view field) {
  std::string result;
  for (std::size_t i = 0; i < field.size(); ++i) {
    if (field[i] != '\\' || i + 1 == field.size()) {
      result += field[i];
      continue;
    }
    ++i;
    const char code = field[i];
    result += code == 't' ? '\t' : code == 'n' ? '\n' : code == 'r' ? '\r' : code;
  }
  return result;
}

std::vector<std::string> fieldsOf(std::string_view line) {
  std::vector<std::string> fields;
  std::size_t start = 0;
  while (start <= line.size()) {
    const std::size_t end = std::min(line.find('\t', start), line.size());
    fields.push_back(unescaped(line.substr(start, end - start)));
    start = end + 1;
  }
  return fields;
}

HWND windowOf(const std::string& field) {
  return reinterpret_cast<HWND>(static_cast<INT_PTR>(std::stoll(field)));
}

/// What the window answers to a message; 0 when it does not answer in time.
DWORD_PTR asked(HWND window, UINT message, WPARAM first, LPARAM second) {
  DWORD_PTR result = 0;
  SendMessageTimeoutW(window, message, first, second, SMTO_ABORTIFHUNG, kAnswerTimeout, &result);
  return result;
}

/// The whole text of any window, also of another program's control; empty when it does not answer.
std::wstring textOf(HWND window) {
  std::wstring text(asked(window, WM_GETTEXTLENGTH, 0, 0) + 1, L'\0');
  text.resize(asked(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data())));
  return text;
}

/// A check box or an option button that is set.
bool isChecked(HWND window, std::wstring_view className) {
  return className == L"Button" && asked(window, BM_GETCHECK, 0, 0) == BST_CHECKED;
}

std::string described(HWND window) {
  wchar_t name[256] = {};
  GetClassNameW(window, name, 256);
  RECT place{};
  GetWindowRect(window, &place);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  const LONG_PTR extended = GetWindowLongPtrW(window, GWL_EXSTYLE);
  std::string json = "{\"handle\":" + std::to_string(reinterpret_cast<INT_PTR>(window));
  json += ",\"process\":" + std::to_string(process);
  json += ",\"class\":" + quoted(name) + ",\"id\":" + std::to_string(GetDlgCtrlID(window));
  json += ",\"text\":" + quoted(textOf(window));
  json += ",\"visible\":" + truth(IsWindowVisible(window) != FALSE);
  json += ",\"enabled\":" + truth(IsWindowEnabled(window) != FALSE);
  json += ",\"topmost\":" + truth((extended & WS_EX_TOPMOST) != 0);
  json += ",\"style\":" + std::to_string(GetWindowLongPtrW(window, GWL_STYLE));
  json += ",\"checked\":" + truth(isChecked(window, name));
  json += ",\"place\":[" + std::to_string(place.left) + "," + std::to_string(place.top) + "," +
          std::to_string(place.right - place.left) + "," + std::to_string(place.bottom - place.top);
  return json + "]}";
}

BOOL CALLBACK collect(HWND window, LPARAM list) noexcept {
  reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
  return TRUE;
}

std::string listed(const std::vector<HWND>& windows) {
  std::string json = "[";
  for (const HWND window : windows) {
    if (json.size() > 1) json += ",";
    json += described(window);
  }
  return json + "]";
}

bool isClass(HWND window, std::wstring_view name) {
  wchar_t found[256] = {};
  GetClassNameW(window, found, 256);
  return name == found;
}

/// Of all classes for none. To describe a window takes a dozen questions.
std::string windowsOfClass(const std::wstring& name) {
  std::vector<HWND> windows;
  EnumWindows(collect, reinterpret_cast<LPARAM>(&windows));
  if (!name.empty()) std::erase_if(windows, [&](HWND window) { return !isClass(window, name); });
  return listed(windows);
}

std::string controlsOf(HWND parent) {
  std::vector<HWND> windows;
  EnumChildWindows(parent, collect, reinterpret_cast<LPARAM>(&windows));
  return listed(windows);
}

/// A window without a shape of its own is all inside.
std::string covers(HWND window, int x, int y) {
  const HRGN shape = CreateRectRgn(0, 0, 0, 0);
  const bool shaped = GetWindowRgn(window, shape) != ERROR;
  const bool inside = !shaped || PtInRegion(shape, x, y) != FALSE;
  DeleteObject(shape);
  return truth(inside);
}

/// To a window that is not in front, too; a mouse would have to wait until it stands.
std::string click(HWND window, int x, int y) {
  asked(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
  asked(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
  return "true";
}

std::string clickSoon(HWND window, int x, int y) {
  SendNotifyMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
  return truth(SendNotifyMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y)) != FALSE);
}

/// What it hands out for screen readers stays unused.
std::string accessible(HWND window) {
  return truth(static_cast<LRESULT>(asked(window, WM_GETOBJECT, 0, OBJID_CLIENT)) > 0);
}

std::string held(HWND window) {
  DWORD number = 0;
  GetWindowThreadProcessId(window, &number);
  const HANDLE process = OpenProcess(PROCESS_ALL_ACCESS, FALSE, number);
  const int kernel = kalvora::kernelHandlesOf(process);
  const int gdi = kalvora::gdiHandlesOf(process);
  CloseHandle(process);
  return "{\"kernel\":" + std::to_string(kernel) + ",\"gdi\":" + std::to_string(gdi) + "}";
}

std::string windowAt(int x, int y) {
  const HWND window = WindowFromPoint(POINT{x, y});
  return window == nullptr ? "null" : described(GetAncestor(window, GA_ROOT));
}

std::string pointer() {
  POINT at{};
  GetCursorPos(&at);
  return "[" + std::to_string(at.x) + "," + std::to_string(at.y) + "]";
}

std::string itemsOf(HWND list) {
  std::string json = "[";
  const DWORD_PTR count = asked(list, LB_GETCOUNT, 0, 0);
  for (DWORD_PTR i = 0; i < count; ++i) {
    std::wstring text(asked(list, LB_GETTEXTLEN, i, 0) + 1, L'\0');
    text.resize(asked(list, LB_GETTEXT, i, reinterpret_cast<LPARAM>(text.data())));
    if (i > 0) json += ",";
    json += quoted(text);
  }
  return json + "]";
}

std::string chosenIn(HWND list) {
  const UINT question = isClass(list, L"ListBox") ? LB_GETCURSEL : CB_GETCURSEL;
  return std::to_string(static_cast<int>(asked(list, question, 0, 0)));
}

std::string selectedRowOf(HWND list) {
  return std::to_string(
      static_cast<int>(asked(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED)));
}

std::string caretOf(HWND box) {
  const auto both =
      static_cast<DWORD>(asked(box, isClass(box, L"ComboBox") ? CB_GETEDITSEL : EM_GETSEL, 0, 0));
  return "[" + std::to_string(LOWORD(both)) + "," + std::to_string(HIWORD(both)) + "]";
}

std::string focusOf(HWND window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info);
  return std::to_string(reinterpret_cast<INT_PTR>(info.hwndFocus));
}

/// The file that is held, or INVALID_HANDLE_VALUE.
HANDLE& heldFile() {
  static HANDLE file = INVALID_HANDLE_VALUE;
  return file;
}

std::string hold(const std::wstring& path) {
  heldFile() = CreateFileW(path.c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0,
                           nullptr);
  return truth(heldFile() != INVALID_HANDLE_VALUE);
}

std::string release() {
  return truth(CloseHandle(std::exchange(heldFile(), INVALID_HANDLE_VALUE)) != FALSE);
}

std::string answerWindow(const std::vector<std::string>& request) {
  const std::string& verb = request[0];
  const HWND window = windowOf(request.at(1));
  if (verb == "window") return IsWindow(window) ? described(window) : "null";
  if (verb == "controls") return controlsOf(window);
  if (verb == "text") return quoted(textOf(window));
  if (verb == "covers") return covers(window, std::stoi(request.at(2)), std::stoi(request.at(3)));
  if (verb == "items") return itemsOf(window);
  if (verb == "chosen") return chosenIn(window);
  if (verb == "caret") return caretOf(window);
  if (verb == "firstline") return std::to_string(asked(window, EM_GETFIRSTVISIBLELINE, 0, 0));
  if (verb == "rows") return rowsOf(window, std::stoi(request.at(2)), std::stoi(request.at(3)));
  if (verb == "rowcount") return std::to_string(asked(window, LVM_GETITEMCOUNT, 0, 0));
  if (verb == "rowselected") return selectedRowOf(window);
  if (verb == "focus") return focusOf(window);
  if (verb == "accessible") return accessible(window);
  if (verb == "held") return held(window);
  if (verb == "click") return click(window, std::stoi(request.at(2)), std::stoi(request.at(3)));
  if (verb == "clicksoon") {
    return clickSoon(window, std::stoi(request.at(2)), std::stoi(request.at(3)));
  }
  if (verb == "press") return truth(PostMessageW(window, BM_CLICK, 0, 0) != FALSE);
  if (verb == "close") return truth(PostMessageW(window, WM_CLOSE, 0, 0) != FALSE);
  if (verb == "settext") {
    const std::wstring text = wide(request.at(2));
    return truth(asked(window, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text.c_str())) != 0);
  }
  return "{\"error\":\"unknown request\"}";
}

std::string answer(const std::vector<std::string>& request) {
  const std::string& verb = request[0];
  if (verb == "windows") return windowsOfClass(wide(request.at(1)));
  if (verb == "at") return windowAt(std::stoi(request.at(1)), std::stoi(request.at(2)));
  if (verb == "hold") return hold(wide(request.at(1)));
  if (verb == "release") return release();
  if (verb == "pointer") return pointer();
  if (verb == "regread") return readValue(wide(request.at(1)), wide(request.at(2)));
  if (verb == "regnames") return valueNames(wide(request.at(1)));
  if (verb == "regwrite") {
    return writeValue(wide(request.at(1)), wide(request.at(2)), wide(request.at(3)));
  }
  if (verb == "regbytes") {
    return writeBytes(wide(request.at(1)), wide(request.at(2)),
                      static_cast<DWORD>(std::stoul(request.at(3))), request.at(4));
  }
  return answerWindow(request);
}

}  // namespace

int main() {
  std::string line;
  while (std::getline(std::cin, line)) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    try {
      std::cout << answer(fieldsOf(line)) << std::endl;
    } catch (const std::exception& error) {
      const std::string reason = error.what();
      std::cout << "{\"error\":" << quoted(std::wstring(reason.begin(), reason.end())) << "}"
                << std::endl;
    }
  }
}
