#include "base/DeviceName.h"

#include <algorithm>
#include <array>

#include "base/Text.h"

namespace kalvora {

namespace {

constexpr std::array<std::wstring_view, 6> kSingleDevices = {L"CON", L"PRN",    L"AUX",
                                                             L"NUL", L"CONIN$", L"CONOUT$"};
constexpr std::array<std::wstring_view, 2> kNumberedDevices = {L"COM", L"LPT"};
// 0 is none. The raised digits count as digits, as they do for Windows.
constexpr std::wstring_view kNumbers = L"123456789\u00B9\u00B2\u00B3";

}  // namespace

bool namesDevice(std::wstring_view fileName) {
  std::wstring_view device = fileName.substr(0, fileName.find_first_of(L".:"));
  device = device.substr(0, device.find_last_not_of(L' ') + 1);
  const auto isDevice = [&](std::wstring_view one) { return equalIgnoringCase(one, device); };
  if (std::ranges::any_of(kSingleDevices, isDevice)) return true;
  if (device.empty() || kNumbers.find(device.back()) == std::wstring_view::npos) return false;
  device.remove_suffix(1);
  return std::ranges::any_of(kNumberedDevices, isDevice);
}

}  // namespace kalvora
