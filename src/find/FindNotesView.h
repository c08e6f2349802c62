#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "base/Geometry.h"

namespace kalvora {

/// The window "Find" as the user sees it. Rows are asked of the presenter when they are to be seen.
class FindNotesView {
 public:
  virtual ~FindNotesView() = default;

  /// What is typed in the field.
  virtual std::wstring words() const = 0;
  /// The rows are others now: as many of them, with this one selected, or none. The list stays
  /// scrolled to where it is, and a row that was and stays selected is not selected anew.
  virtual void showRows(std::size_t count, std::optional<std::size_t> selected) = 0;
  virtual std::optional<std::size_t> selectedRow() const = 0;
  /// Scrolls so that a row is the first that is seen, as far as there are rows behind it.
  virtual void scrollTo(std::size_t row) = 0;
  /// A line of its own in the window; an empty one says nothing.
  virtual void setNotice(std::wstring_view text) = 0;
  /// The only timer, which ticks until the window goes. Milliseconds.
  virtual void setTimer(int interval) = 0;

  /// In pixels of the screen, with its frame, of a window that is not maximized.
  virtual Size size() const = 0;
  /// Not smaller than it is designed, nor larger than its monitor.
  virtual void setSize(Size size) = 0;
  /// Takes the window away. Does not throw.
  virtual void unload() noexcept = 0;
};

}  // namespace kalvora
