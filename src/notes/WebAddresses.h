#pragma once

#include <string>
#include <string_view>

namespace kalvora {

/// The maker's two web pages, set when the program is built (KALVORA_SITE_URL, KALVORA_SKINS_URL):
/// both or neither.
struct WebAddresses {
  std::wstring site;
  std::wstring skins;

  bool given() const { return !site.empty(); }
};
WebAddresses configuredWebAddresses();

/// Whether a text is a plain web address and nothing that a shell gives a meaning to: "https://" or
/// "http://", then letters, digits and . / _ ~ - only.
bool isPlainWebAddress(std::wstring_view text);

}  // namespace kalvora
