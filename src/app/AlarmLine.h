#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "app/Form1View.h"
#include "app/Settings.h"
#include "notes/HourDisplay.h"
#include "notes/NoteReader.h"

namespace kalvora {

/// The time of the note on show: the box Text3 and, beside it, the label AmPmLabel with the half of
/// the day. The label stands empty for a while after the options were applied, so the half that the
/// user last saw in it is kept here, and is what a save stores.
class AlarmLine {
 public:
  /// Both must outlive this object.
  AlarmLine(Form1View& view, const Settings& settings) : view_(view), settings_(settings) {}

  /// The settings are there: the first half of the day, in 12-hour time.
  void begin();
  /// Shows a note's time. One without a time leaves the half that the user last saw.
  void show(const ShownNote& note);
  void clear();

  /// What it holds, as text in the box and beside it.
  struct Time {
    std::wstring text;
    HalfOfDay half = HalfOfDay::Am;
    HourFormat format = HourFormat::Hours12;
  };
  Time time() const;
  /// Shows it again, as the options are by now.
  void showAgain(const Time& time);

  HalfOfDay half() const { return half_; }

  /// The user turns the half of the day.
  void AmPmLabel_Click();
  /// The clock writes the half of the day again, where 12-hour time shows one.
  void drawHalf();
  /// Takes the half off the label until drawHalf(). Where 12-hour time was switched on or off,
  /// turns what stands in the box into the hour that stores the same; what is no hour stays.
  void followOptions();

 private:
  void convertBox(HourFormat from, HourFormat to);
  void replaceHour(std::size_t length, std::wstring_view hour);

  Form1View& view_;
  const Settings& settings_;
  HalfOfDay half_ = HalfOfDay::Am;
  HourFormat format_ = HourFormat::Hours12;  // of the hour in the box
};

}  // namespace kalvora
