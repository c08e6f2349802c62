#include "base/WindowMemory.h"

#include "base/Errors.h"
#include "base/Numbers.h"

namespace kalvora {

namespace {

constexpr std::wstring_view kWidthKey = L"Width";
constexpr std::wstring_view kHeightKey = L"Height";

}  // namespace

int WindowMemory::number(std::wstring_view key, int fallback) const {
  try {
    return textToInt32(settings_.get(section_, key, numberToText(fallback)));
  } catch (const Failure&) {
    return fallback;
  }
}

void WindowMemory::store(std::wstring_view key, int number, int fallback) {
  if (this->number(key, fallback) == number) return;
  settings_.save(section_, key, numberToText(number));
}

Size WindowMemory::size(Size designed) const {
  return {number(kWidthKey, designed.width), number(kHeightKey, designed.height)};
}

void WindowMemory::storeSize(Size size, Size designed) {
  store(kWidthKey, size.width, designed.width);
  store(kHeightKey, size.height, designed.height);
}

}  // namespace kalvora
