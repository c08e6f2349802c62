#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "coming/WhatComesView.h"
#include "win32/coming/ComingCalendar.h"
#include "win32/platform/PlatformDateTexts.h"
#include "win32/toolkit/DialogFrame.h"
#include "win32/toolkit/EventDelivery.h"
#include "win32/toolkit/RowList.h"

namespace kalvora {

class WhatComes;

/// The window of what comes. It lives as long as the program; its window only while it is open.
class WhatComesDialog final : public WhatComesView, private DialogFrame {
 public:
  /// `form` gets events only while the window is open; the others must outlive this object.
  WhatComesDialog(HWND owner, ModelessDialogs& dialogs, const EventDelivery& deliver,
                  WhatComes& form);
  ~WhatComesDialog() override { destroy(); }

  /// Opens the window, or brings it to the front where it is open. Throws Failure where it cannot
  /// be created.
  void open();
  using DialogFrame::window;

  void showSpan(ComingSpan span) override;
  void showRows(std::size_t count, std::optional<std::size_t> selected) override {
    rows_.showRows(count, selected);
  }
  std::optional<std::size_t> selectedRow() const override { return rows_.selectedRow(); }
  void selectRow(std::size_t row) override { rows_.selectRow(row); }
  void scrollTo(std::size_t row) override { rows_.scrollTo(row); }
  void showBoldDays() override { calendar_.showBoldDays(); }
  void setNotice(std::wstring_view text) override;
  void setTimer(int interval) override;
  Size size() const override { return normalSize(); }
  void setSize(Size size) override { setNormalSize(size); }
  void unload() noexcept override { destroy(); }

 private:
  INT_PTR handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept override;
  bool takesMessage(MSG& message) noexcept override;
  void resized() noexcept override { rows_.fitColumns(); }
  void onCommand(WPARAM wParam) noexcept;
  void onEnter() noexcept;
  void onSpan() noexcept;
  void onNotify(NMHDR& notification) noexcept;
  void onRowsNotify(NMHDR& notification) noexcept;
  void onCalendarNotify(const NMHDR& notification) noexcept;
  void onRowAsked(LVITEMW& item) noexcept;
  void openRow(std::size_t row) noexcept;

  void prepare();
  void makeRoomForCalendar();
  std::wstring cell(std::size_t row, int column) const;
  HWND list() const;

  const EventDelivery& deliver_;
  WhatComes& form_;
  RowList rows_;
  ComingCalendar calendar_;
  PlatformDateTexts dateTexts_;
};

}  // namespace kalvora
