#include "app/OptionsForm.h"

#include "base/Numbers.h"
#include "options/ComfortTable.h"
#include "options/OptionsInputError.h"

namespace kalvora {

namespace {

constexpr OptionsRow check(CheckBox box, int item, bool Settings::*member) {
  return {CheckId{box, item}, member};
}
template <typename Member>
constexpr OptionsRow text(TextBox box, int item, Member member) {
  return {TextId{box, item}, member};
}

constexpr std::array kOptionsRows = {
    check(CheckBox::Display_chk, 0, kDisplaySwitches[0]),
    check(CheckBox::Display_chk, 1, kDisplaySwitches[1]),
    check(CheckBox::Display_chk, 2, kDisplaySwitches[2]),
    check(CheckBox::Display_chk, 3, kDisplaySwitches[3]),
    check(CheckBox::Display_chk, 4, kDisplaySwitches[4]),
    text(TextBox::WindowTime, 0, &Settings::Window1_interval),
    text(TextBox::WindowSize, 0, &Settings::Win1_Jump),
    text(TextBox::NotesTime, 0, &Settings::Window2_interval),
    text(TextBox::NotesSize, 0, &Settings::Win2_Jump),
    text(TextBox::WinPos, 0, &Settings::Window_X),
    text(TextBox::WinPos, 1, &Settings::Window_Y),
    check(CheckBox::Sound_ch_all, 0, &Settings::Use_Sounds),
    text(TextBox::Sound_path, 0, kSoundPaths[0]),
    text(TextBox::Sound_path, 1, kSoundPaths[1]),
    text(TextBox::Sound_path, 2, kSoundPaths[2]),
    text(TextBox::Sound_path, 3, kSoundPaths[3]),
    text(TextBox::Sound_path, 4, kSoundPaths[4]),
    text(TextBox::Sound_path, 5, kSoundPaths[5]),
    text(TextBox::Sound_path, 6, kSoundPaths[6]),
    check(CheckBox::AmPmCheck, 0, &Settings::AmPm),
    check(CheckBox::AlwOnTop, 0, &Settings::AlwOnTop),
    check(CheckBox::Fast_delete_msg_check, 0, &Settings::Fast_delete_msg),
};

void show(OptionsView& form, const OptionsRow& row, bool value) {
  const CheckId id = std::get<CheckId>(row.control);
  if (id.box != CheckBox::Display_chk) {
    form.setChecked(id, value);
  } else if (value) {
    form.setChecked(id, true);
  } else {
    form.setChecked({CheckBox::Display_chk, 0}, false);  // item 0, whichever switch is off
  }
}
void show(OptionsView& form, const OptionsRow& row, std::int32_t value) {
  form.setText(std::get<TextId>(row.control), numberToText(value));
}
void show(OptionsView& form, const OptionsRow& row, const std::wstring& value) {
  form.setText(std::get<TextId>(row.control), value);
}

void take(const OptionsView& form, const OptionsRow& row, bool& value) {
  value = form.checked(std::get<CheckId>(row.control));
}
void take(const OptionsView& form, const OptionsRow& row, std::int16_t& value) {
  value = textToInt16(form.text(std::get<TextId>(row.control)));
}
void take(const OptionsView& form, const OptionsRow& row, std::int32_t& value) {
  value = textToInt32(form.text(std::get<TextId>(row.control)));
}
void take(const OptionsView& form, const OptionsRow& row, std::wstring& value) {
  value = form.text(std::get<TextId>(row.control));
}

bool isPosition(const OptionsRow& row) {
  const TextId* const id = std::get_if<TextId>(&row.control);
  return id != nullptr && id->box == TextBox::WinPos;
}

void takeRow(const OptionsView& form, const OptionsRow& row, Settings& settings) {
  try {
    std::visit([&](auto member) { take(form, row, settings.*member); }, row.member);
  } catch (const Failure& failure) {
    throw OptionsInputError(std::get<TextId>(row.control), failure);
  }
}

/// Calls `each` with every tick of comfort and its box.
template <typename Each>
void forEachTick(const Each& each) {
  int item = 0;
  for (const ComfortTick& tick : comfortTicks()) each(tick, CheckId{CheckBox::Comfort, item++});
}

}  // namespace

std::span<const OptionsRow> optionsRows() {
  return kOptionsRows;
}

void Options_to_form(const Settings& settings, OptionsView& form) {
  for (const OptionsRow& row : kOptionsRows) {
    std::visit([&](auto member) { show(form, row, settings.*member); }, row.member);
  }
  forEachTick([&](const ComfortTick& tick, CheckId box) {
    form.setChecked(box, settings.comfort.*tick.member);
  });
}

Settings enteredOptions(const OptionsView& form, const Settings& held, PositionBoxes position) {
  Settings entered = held;
  for (const OptionsRow& row : kOptionsRows) {
    if (position == PositionBoxes::Taken || !isPosition(row)) takeRow(form, row, entered);
  }
  forEachTick([&](const ComfortTick& tick, CheckId box) {
    entered.comfort.*tick.member = form.checked(box);
  });
  return entered;
}

}  // namespace kalvora
