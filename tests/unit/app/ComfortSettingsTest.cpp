// The ticks of comfort in the settings.

#include <gtest/gtest.h>

#include "app/Settings.h"
#include "fakes/MemorySettingsStore.h"
#include "options/ComfortTable.h"

namespace kalvora {
namespace {

constexpr PlacementSizes kAnyScreen = {{1024, 768}, {200, 161}};

TEST(ComfortSettings, areOffWhereMissingAndNotStoredUntilTheUserChoosesThem) {
  MemorySettingsStore store;
  Settings settings;
  settings.comfort.Each_day = true;
  EXPECT_EQ(Load_options_KV(store, kAnyScreen, settings, [](bool) {}), L"");
  EXPECT_EQ(settings.comfort, Comfort());
  storeSettings(store, settings);
  EXPECT_EQ(store.values.lower_bound(L"Comfort/"), store.values.lower_bound(L"Comfort0"));
}

TEST(ComfortSettings, eachTickIsStoredUnderItsKeyAndReadAgainAndTakenBack) {
  for (const ComfortTick& tick : comfortTicks()) {
    MemorySettingsStore store;
    Settings settings;
    settings.comfort.*tick.member = true;
    storeSettings(store, settings);
    Settings loaded;
    EXPECT_EQ(Load_options_KV(store, kAnyScreen, loaded, [](bool) {}), L"");
    EXPECT_EQ(loaded.comfort, settings.comfort);
    const std::wstring name = L"Comfort/" + std::wstring(tick.key);
    EXPECT_EQ(store.values[name], L"True");
    settings.comfort.*tick.member = false;
    storeSettings(store, settings);
    EXPECT_EQ(store.values[name], L"False");
  }
}

TEST(ComfortSettings, oneThatCannotBeReadIsOffAndToldAndMendedByStoring) {
  MemorySettingsStore store;
  store.values[L"Comfort/Each_day"] = L"perhaps";
  Settings settings;
  EXPECT_NE(Load_options_KV(store, kAnyScreen, settings, [](bool) {})
                .find(L"The setting \"Each_day\" in \"Comfort\": "),
            std::wstring::npos);
  EXPECT_EQ(settings.comfort, Comfort());
  storeSettings(store, settings);
  EXPECT_EQ(store.values[L"Comfort/Each_day"], L"False");
}

}  // namespace
}  // namespace kalvora
