#pragma once

#include <windows.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <utility>

namespace kalvora {

/// The platform's control for months, with days in bold.
class ComingCalendar {
 public:
  /// The days of a month that are to be bold: a bit each, the first the lowest.
  using BoldDays = std::function<std::uint32_t(std::chrono::year_month)>;

  explicit ComingCalendar(BoldDays boldDays) : boldDays_(std::move(boldDays)) {}

  /// Takes the control of a window that is being opened.
  void attach(HWND control);
  /// The room that it needs to show a month.
  SIZE neededSize() const;
  /// Asks anew which days are bold.
  void showBoldDays() const;
  /// A notification of the control. Returns the day that the user went to, by mouse or keys; it can
  /// be the same as before.
  std::optional<std::chrono::local_days> onNotify(const NMHDR& notification);

 private:
  std::optional<std::chrono::local_days> chosen(const NMHDR& notification);
  void answerBoldDays(const NMHDR& notification) const;

  BoldDays boldDays_;
  HWND control_ = nullptr;
  std::chrono::local_days day_{};  // that the user went to last
};

}  // namespace kalvora
