#pragma once

#include <optional>
#include <string>

#include "coming/WhatComesView.h"

namespace kalvora {

/// Shows what comes to nobody.
class FakeWhatComesView : public WhatComesView {
 public:
  void showSpan(ComingSpan shown) override { span = shown; }
  void showRows(std::size_t count, std::optional<std::size_t> row) override {
    rows = count;
    selected = row;
    ++timesShown;
  }
  std::optional<std::size_t> selectedRow() const override { return selected; }
  void selectRow(std::size_t row) override { selected = row; }
  void scrollTo(std::size_t row) override { scrolledTo = row; }
  void showBoldDays() override { ++timesBold; }
  void setNotice(std::wstring_view text) override { notice = text; }
  void setTimer(int milliseconds) override { interval = milliseconds; }
  Size size() const override { return place; }
  void setSize(Size size) override { place = size; }
  void unload() noexcept override { ++unloads; }

  std::optional<ComingSpan> span;
  std::size_t rows = 0;
  std::optional<std::size_t> selected;
  std::optional<std::size_t> scrolledTo;
  int timesShown = 0;
  int timesBold = 0;
  std::wstring notice;
  int interval = 0;
  Size place{640, 400};
  int unloads = 0;
};

}  // namespace kalvora
