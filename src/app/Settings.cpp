#include "app/Settings.h"

#include <utility>

#include "base/Errors.h"
#include "base/Numbers.h"
#include "options/ComfortTable.h"

namespace kalvora {

namespace {

constexpr std::wstring_view kGraph = L"Graph";
constexpr std::wstring_view kSounds = L"Sounds";
constexpr std::wstring_view kSys = L"Sys";

constexpr std::wstring_view kWindowX = L"Window_X";
constexpr std::wstring_view kWindowY = L"Window_Y";
constexpr std::wstring_view kIconFilename = L"Icon filename";
constexpr std::wstring_view kLastSkin = L"Last_skin";

constexpr std::array kRows = {
    SettingRow{kGraph, L"ShWatS", L"FALSE", &Settings::ShWatS},
    SettingRow{kGraph, L"AShT", L"FALSE", &Settings::AShT},
    SettingRow{kGraph, L"WysRZF1", L"TRUE", &Settings::WysRZF1},
    SettingRow{kGraph, L"ZRF1", L"FALSE", &Settings::ZRF1},
    SettingRow{kGraph, L"Always Save win pos", L"FALSE", &Settings::alwaysSaveWinPos},
    SettingRow{kGraph, L"Window1_interval", L"10", &Settings::Window1_interval},
    SettingRow{kGraph, L"Window2_interval", L"10", &Settings::Window2_interval},
    SettingRow{kGraph, L"Win1_Jump", L"10", &Settings::Win1_Jump},
    SettingRow{kGraph, L"Win2_Jump", L"20", &Settings::Win2_Jump},
    SettingRow{kGraph, kWindowX, L"9999", &Settings::Window_X},
    SettingRow{kGraph, kWindowY, L"9999", &Settings::Window_Y},
    SettingRow{kGraph, kIconFilename, L"", &Settings::iconFilename},
    SettingRow{kSounds, L"Use_Sounds", L"FALSE", &Settings::Use_Sounds},
    SettingRow{kSounds, L"Snd_Show", L"", &Settings::Snd_Show},
    SettingRow{kSounds, L"Snd_Hide", L"", &Settings::Snd_Hide},
    SettingRow{kSounds, L"Snd_Notes_Show", L"", &Settings::Snd_Notes_Show},
    SettingRow{kSounds, L"Snd_Notes_Hide", L"", &Settings::Snd_Notes_Hide},
    SettingRow{kSounds, L"Snd_Alarm", L"", &Settings::Snd_Alarm},
    SettingRow{kSounds, L"Snd_Button_Press", L"", &Settings::Snd_Button_Press},
    SettingRow{kSounds, L"Snd_Button_Delete", L"", &Settings::Snd_Button_Delete},
    SettingRow{kSys, L"AmPm", L"TRUE", &Settings::AmPm},
    SettingRow{kSys, L"AlwOnTop", L"TRUE", &Settings::AlwOnTop},
    SettingRow{kSys, L"Fast_delete_msg", L"TRUE", &Settings::Fast_delete_msg},
    SettingRow{kSys, kLastSkin, L"0", &Settings::Last_skin},
};

void take(std::wstring_view text, bool& value) {
  value = textToBoolean(text);
}
void take(std::wstring_view text, std::int16_t& value) {
  value = textToInt16(text);
}
void take(std::wstring_view text, std::int32_t& value) {
  value = textToInt32(text);
}
void take(std::wstring_view text, std::wstring& value) {
  value = text;
}

std::wstring textOf(bool value) {
  return booleanToText(value);
}
std::wstring textOf(std::int16_t value) {
  return numberToText(value);
}
std::wstring textOf(std::int32_t value) {
  return numberToText(value);
}
std::wstring textOf(const std::wstring& value) {
  return value;
}

/// Whether the row's value is kept in `member`.
template <typename Member>
bool isRowOf(const SettingRow& row, Member member) {
  return row.member == SettingMember(member);
}

std::int16_t flushWithRightEdge(const PlacementSizes& sizes) {
  return toInt16(static_cast<double>(sizes.screen.width) - sizes.window.width);
}

std::int16_t centredVertically(const PlacementSizes& sizes) {
  return toInt16(sizes.screen.height / 2.0 - sizes.window.height / 2.0);
}

}  // namespace

std::span<const SettingRow> settingRows() {
  return kRows;
}

namespace {

/// The failures of several settings, of which none keeps another from its turn.
class SettingFailures {
 public:
  void add(const Failure& failure) {
    if (count_++ > 0) lines_ += L"\r\n";
    lines_ += failure.message();
  }
  int count() const { return count_; }
  /// Each of them in a line of its own; empty where there were none.
  const std::wstring& lines() const { return lines_; }

 private:
  int count_ = 0;
  std::wstring lines_;
};

/// What the user is told of settings that could not be read; empty where there were none.
std::wstring unreadable(const SettingFailures& failures) {
  if (failures.count() == 0) return {};
  const bool one = failures.count() == 1;
  return failures.lines() + L"\r\n\r\n" +
         (one ? L"The default is used instead. To mend it, open the options, choose it again "
                L"and press OK."
              : L"The defaults are used instead. To mend them, open the options, choose them "
                L"again and press OK.");
}

void takeText(std::wstring_view text, const SettingRow& row, Settings& settings) {
  std::visit([&](auto member) { take(text, settings.*member); }, row.member);
}

/// A failure names the setting, so that the user knows which one to mend.
void addNamed(Failure& failure, std::wstring_view section, std::wstring_view key,
              SettingFailures& failures) {
  failure.prefix(L"The setting \"" + std::wstring(key) + L"\" in \"" + std::wstring(section) +
                 L"\": ");
  failures.add(failure);
}

void loadRow(const SettingsStore& store, const SettingRow& row, Settings& settings,
             SettingFailures& failures) {
  try {
    takeText(store.get(row.section, row.key, row.fallback), row, settings);
  } catch (Failure& failure) {
    addNamed(failure, row.section, row.key, failures);
    takeText(row.fallback, row, settings);
  }
}

void loadComfort(const SettingsStore& store, Comfort& comfort, SettingFailures& failures) {
  for (const ComfortTick& tick : comfortTicks()) {
    try {
      take(store.get(kComfortSection, tick.key, textOf(false)), comfort.*tick.member);
    } catch (Failure& failure) {
      addNamed(failure, kComfortSection, tick.key, failures);
    }
  }
}

}  // namespace

std::wstring Load_options_KV(const SettingsStore& store, const PlacementSizes& sizes,
                             Settings& settings,
                             const std::function<void(bool alwaysOnTop)>& applyAlwaysOnTop) {
  SettingFailures failures;
  for (const SettingRow& row : kRows) {
    loadRow(store, row, settings, failures);
    if (isRowOf(row, &Settings::Window_X) || isRowOf(row, &Settings::Window_Y)) {
      computePlaceNotSet(sizes, settings);
    } else if (isRowOf(row, &Settings::AlwOnTop)) {
      applyAlwaysOnTop(settings.AlwOnTop);
    }
  }
  loadComfort(store, settings.comfort, failures);
  return unreadable(failures);
}

void setComputedPlace(const PlacementSizes& sizes, Settings& settings) {
  settings.Window_X = kPlaceNotSet;
  settings.Window_Y = kPlaceNotSet;
  computePlaceNotSet(sizes, settings);
}

void computePlaceNotSet(const PlacementSizes& sizes, Settings& settings) {
  if (settings.Window_X == kPlaceNotSet) settings.Window_X = flushWithRightEdge(sizes);
  if (settings.Window_Y == kPlaceNotSet) settings.Window_Y = centredVertically(sizes);
}

namespace {

/// Stores several settings. One that cannot be stored keeps no other from it, so that the message
/// about it tells all that was lost.
class SettingsSaver {
 public:
  explicit SettingsSaver(SettingsStore& store) : store_(store) {}

  void save(std::wstring_view section, std::wstring_view key, std::wstring_view text) {
    try {
      store_.save(section, key, text);
    } catch (const Failure& failure) {
      failures_.add(failure);
    }
  }
  /// After the last one: throws where one was not stored.
  void end() const {
    if (failures_.count() > 0) throw Failure(failures_.lines());
  }

 private:
  SettingsStore& store_;
  SettingFailures failures_;
};

void storeComfort(const SettingsStore& stored, const Comfort& comfort, SettingsSaver& saver) {
  for (const ComfortTick& tick : comfortTicks()) {
    const std::wstring text = textOf(comfort.*tick.member);
    if (stored.get(kComfortSection, tick.key, textOf(false)) != text)
      saver.save(kComfortSection, tick.key, text);
  }
}

}  // namespace

void storeSettings(SettingsStore& store, const Settings& settings) {
  SettingsSaver saver(store);
  for (const SettingRow& row : kRows) {
    std::visit([&](auto member) { saver.save(row.section, row.key, textOf(settings.*member)); },
               row.member);
  }
  storeComfort(store, settings.comfort, saver);
  saver.end();
}

void saveWindowPosition(SettingsStore& store, std::int16_t x, std::int16_t y) {
  SettingsSaver saver(store);
  saver.save(kGraph, kWindowX, numberToText(x));
  saver.save(kGraph, kWindowY, numberToText(y));
  saver.end();
}

void saveSkin(SettingsStore& store, std::int16_t index) {
  store.save(kSys, kLastSkin, numberToText(index));
}

void saveIcon(SettingsStore& store, std::wstring_view fileName) {
  store.save(kGraph, kIconFilename, fileName);
}

}  // namespace kalvora
