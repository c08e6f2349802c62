#include "skin/TitleScroller.h"

#include <algorithm>
#include <cstddef>

namespace kalvora {

namespace {

constexpr int kAtOnceMilliseconds = 1;
constexpr int kRestMilliseconds = 5000;
constexpr int kStepMilliseconds = 200;
constexpr std::size_t kExtensionLength = 4;

}  // namespace

void TitleScroller::setLength(int cells) {
  row_.assign(static_cast<std::size_t>(std::max(cells, 0)), std::nullopt);
}

void TitleScroller::Aktualizuj_Scrool(std::wstring_view Text, ScrollText txt) {
  if (txt == ScrollText::FileName && Text.size() >= kExtensionLength) {
    Text.remove_suffix(kExtensionLength);
  }
  text_ = Text;
  position_ = 1;
  goOnAtOnce();
}

void TitleScroller::goOnAtOnce() {
  timers_.stopPoczekaj();
  timers_.stopScrool();
  timers_.startPoczekaj(kAtOnceMilliseconds);
}

void TitleScroller::scroolTick() {
  const int lastCell = static_cast<int>(row_.size()) - 1;
  --position_;
  if (position_ < -static_cast<int>(text_.size())) position_ = lastCell;
  drawRow();
  if (position_ == 0) {
    timers_.stopScrool();
    timers_.startPoczekaj(kRestMilliseconds);
  }
}

void TitleScroller::poczekajTick() {
  timers_.startScrool(kStepMilliseconds);
  timers_.stopPoczekaj();
}

void TitleScroller::drawRow() {
  std::ranges::fill(row_, std::nullopt);
  const int lastCell = static_cast<int>(row_.size()) - 1;
  // The text rests in cell 1 and leaves cell 0 free, so no more of it than this stands at rest, and
  // one character more while it leaves.
  const int shown = std::min(static_cast<int>(text_.size()), lastCell);
  if (position_ == 0) {
    for (int c = 1; c <= shown; ++c) drawCharacter(c, c);
  } else if (position_ < 0) {
    for (int c = -position_; c <= shown - position_; ++c) drawCharacter(c, c + position_);
  } else {
    for (int c = 1; c <= lastCell - position_; ++c) drawCharacter(c, position_ + c);
  }
}

/// Characters are counted from 1; those past the end of the text draw nothing.
void TitleScroller::drawCharacter(int character, int cell) {
  const auto index = static_cast<std::size_t>(character - 1);
  if (index < text_.size()) row_.at(static_cast<std::size_t>(cell)) = text_[index];
}

}  // namespace kalvora
