#pragma once

#include <optional>
#include <string>

#include "find/FindNotesView.h"

namespace kalvora {

/// Shows what is found to nobody.
class FakeFindNotesView : public FindNotesView {
 public:
  std::wstring words() const override { return typed; }
  void showRows(std::size_t count, std::optional<std::size_t> row) override {
    rows = count;
    selected = row;
    ++timesShown;
  }
  std::optional<std::size_t> selectedRow() const override { return selected; }
  void scrollTo(std::size_t row) override { scrolledTo = row; }
  void setNotice(std::wstring_view text) override { notice = text; }
  void setTimer(int milliseconds) override { interval = milliseconds; }
  Size size() const override { return place; }
  void setSize(Size size) override { place = size; }
  void unload() noexcept override { ++unloads; }

  std::wstring typed;
  std::size_t rows = 0;
  std::optional<std::size_t> selected;
  std::optional<std::size_t> scrolledTo;
  int timesShown = 0;
  std::wstring notice;
  int interval = 0;
  Size place{640, 400};
  int unloads = 0;
};

}  // namespace kalvora
