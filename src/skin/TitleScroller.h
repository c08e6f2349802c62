#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kalvora {

/// The two timers of the scrolling title. To start one that runs already restarts it.
class ScrollTimers {
 public:
  virtual ~ScrollTimers() = default;
  virtual void startScrool(int milliseconds) = 0;
  virtual void stopScrool() = 0;
  /// One-shot: it is stopped by its own tick.
  virtual void startPoczekaj(int milliseconds) = 0;
  virtual void stopPoczekaj() = 0;
};

/// What a row of font cells shows: a character for each cell, nothing for a blank one. A character
/// that the font has no glyph for leaves its cell blank too.
using ScrolledRow = std::vector<std::optional<wchar_t>>;

/// What the text given to the scroller is: of a file name the last four characters do not scroll.
enum class ScrollText { Plain, FileName };

/// The title that moves from right to left through a row of cells and rests for five seconds each
/// time it comes to the start of the row.
class TitleScroller {
 public:
  /// `timers` must outlive this object. The row has no cells until setLength().
  explicit TitleScroller(ScrollTimers& timers) : timers_(timers) {}

  /// The number of cells of the row, as a skin sets it; below 0 counts as 0. The row is blank
  /// until the next step, which goes on where the text stands.
  void setLength(int cells);

  /// Update the scrolling text: the new text stands at rest on the next turn of the timers,
  /// whatever the old one was doing. A file name of fewer than four characters scrolls whole.
  void Aktualizuj_Scrool(std::wstring_view Text, ScrollText txt);

  /// Lets the scroller go on with the next turn of the timers, from where it stands.
  void goOnAtOnce();

  /// The tick of the timer `scrool`: one step.
  void scroolTick();
  /// The tick of the timer `Poczekaj`: the rest is over.
  void poczekajTick();

  /// What the cells show now, from the left.
  const ScrolledRow& row() const { return row_; }
  const std::wstring& text() const { return text_; }
  /// The cell in which the character before the first one would stand.
  int position() const { return position_; }

 private:
  void drawRow();
  void drawCharacter(int character, int cell);

  ScrollTimers& timers_;
  std::wstring text_;
  int position_ = 1;
  ScrolledRow row_;
};

}  // namespace kalvora
