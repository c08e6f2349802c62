#include "notes/WebAddresses.h"

#include <algorithm>

namespace kalvora {

namespace {

bool isPlain(wchar_t c) {
  const bool letter = (c >= L'A' && c <= L'Z') || (c >= L'a' && c <= L'z');
  const bool digit = c >= L'0' && c <= L'9';
  return letter || digit || std::wstring_view(L"./_~-").find(c) != std::wstring_view::npos;
}

}  // namespace

WebAddresses configuredWebAddresses() {
  return {KALVORA_SITE_URL, KALVORA_SKINS_URL};
}

bool isPlainWebAddress(std::wstring_view text) {
  for (const std::wstring_view scheme : {L"https://", L"http://"}) {
    if (text.starts_with(scheme) && text.size() > scheme.size()) {
      return std::ranges::all_of(text.substr(scheme.size()), isPlain);
    }
  }
  return false;
}

}  // namespace kalvora
