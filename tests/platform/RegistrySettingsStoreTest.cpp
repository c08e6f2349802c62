#include "win32/platform/RegistrySettingsStore.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <array>

#include "base/Errors.h"
#include "platform/HeldHandles.h"
#include "win32/platform/UniqueHandle.h"

namespace kalvora {
namespace {

class RegistryStore : public testing::Test {
 protected:
  RegistryStore() : root_(L"Software\\Kalvora-test-" + std::to_wstring(GetCurrentProcessId())) {}
  ~RegistryStore() override { RegDeleteTreeW(HKEY_CURRENT_USER, root_.c_str()); }

  bool exists(const std::wstring& path) const {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != ERROR_SUCCESS) {
      return false;
    }
    const UniqueKey owner(key);
    return true;
  }

  /// Stores a value of any type and bytes in the section "Graph".
  void put(const wchar_t* name, DWORD type, const void* data, std::size_t size) {
    ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, (root_ + L"\\Graph").c_str(), name, type, data,
                              static_cast<DWORD>(size)),
              ERROR_SUCCESS);
  }

  std::wstring get(std::wstring_view key) const { return store_.get(L"Graph", key, L"default"); }

  std::wstring root_;
  RegistrySettingsStore store_{root_};
};

TEST_F(RegistryStore, readingCreatesNothing) {
  EXPECT_EQ(get(L"ShWatS"), L"default");
  EXPECT_FALSE(exists(root_));
}

TEST_F(RegistryStore, whatIsSavedIsRead) {
  for (const std::wstring& text :
       {std::wstring(L"True"), std::wstring(), std::wstring(L" blanks "),
        std::wstring(L"C:\\\u017B\u00F3\u0142w\\\u4E2D.wav"), std::wstring(5000, L'x')}) {
    store_.save(L"Sounds", L"Snd_Alarm", text);
    EXPECT_EQ(store_.get(L"Sounds", L"Snd_Alarm", L"default"), text);
  }
}

TEST_F(RegistryStore, sectionsAreKeysAndValuesAreTexts) {
  store_.save(L"Graph", L"Always Save win pos", L"True");
  std::array<wchar_t, 16> text{};
  DWORD size = sizeof text;
  EXPECT_EQ(RegGetValueW(HKEY_CURRENT_USER, (root_ + L"\\Graph").c_str(), L"Always Save win pos",
                         RRF_RT_REG_SZ, nullptr, text.data(), &size),
            ERROR_SUCCESS);
  EXPECT_STREQ(text.data(), L"True");
  EXPECT_EQ(size, 5 * sizeof(wchar_t));  // with its NUL
}

TEST_F(RegistryStore, sameKeyInAnotherSectionIsAnotherValue) {
  store_.save(L"Graph", L"K", L"1");
  store_.save(L"Sys", L"K", L"2");
  EXPECT_EQ(store_.get(L"Graph", L"K", L""), L"1");
  EXPECT_EQ(store_.get(L"Sys", L"K", L""), L"2");
  EXPECT_EQ(store_.get(L"Sounds", L"K", L"none"), L"none");
  EXPECT_EQ(store_.get(L"Sys", L"L", L"none"), L"none");
}

TEST_F(RegistryStore, valueOfAnotherTypeCountsAsMissing) {
  const DWORD number = 5;
  put(L"number", REG_DWORD, &number, sizeof number);
  put(L"binary", REG_BINARY, L"5", 4);
  put(L"expandable", REG_EXPAND_SZ, L"%TEMP%", 14);
  put(L"list", REG_MULTI_SZ, L"a\0b\0", 10);
  for (const wchar_t* key : {L"number", L"binary", L"expandable", L"list"}) {
    EXPECT_EQ(get(key), L"default");
  }
}

TEST_F(RegistryStore, valueOfAbsurdSizeCountsAsMissing) {
  const std::wstring text(1U << 20U, L'x');
  put(L"huge", REG_SZ, text.data(), text.size() * sizeof(wchar_t));
  EXPECT_EQ(get(L"huge"), L"default");
}

TEST_F(RegistryStore, aLongTextIsSavedWholeOrNotAtAll) {
  const std::wstring longest((std::size_t{1} << 15U) - 1, L'x');
  store_.save(L"Graph", L"long", longest);
  EXPECT_EQ(get(L"long"), longest);
  EXPECT_THROW(store_.save(L"Graph", L"long", longest + L'x'), Failure);
  EXPECT_EQ(get(L"long"), longest);
}

TEST_F(RegistryStore, textNeedsNoNulNorAWholeNumberOfCharacters) {
  put(L"noNul", REG_SZ, L"abc", 3 * sizeof(wchar_t));
  put(L"odd", REG_SZ, L"abc", 3 * sizeof(wchar_t) - 1);
  put(L"nulInside", REG_SZ, L"a\0b", 4 * sizeof(wchar_t));
  put(L"nothing", REG_SZ, L"", 0);
  EXPECT_EQ(get(L"noNul"), L"abc");
  EXPECT_EQ(get(L"odd"), L"ab");
  EXPECT_EQ(get(L"nulInside"), L"a");
  EXPECT_EQ(get(L"nothing"), L"");
}

TEST_F(RegistryStore, savingReplacesAValueOfAnotherType) {
  const DWORD number = 5;
  put(L"K", REG_DWORD, &number, sizeof number);
  store_.save(L"Graph", L"K", L"7");
  EXPECT_EQ(get(L"K"), L"7");
}

TEST_F(RegistryStore, savingUnderANameThatCannotBeIsAFailure) {
  const std::wstring tooLong(300, L'x');  // a key name has at most 255 characters
  RegistrySettingsStore store(root_ + L"\\" + tooLong);
  EXPECT_THROW(store.save(L"Graph", L"K", L"1"), Failure);
  EXPECT_EQ(store.get(L"Graph", L"K", L"default"), L"default");
}

TEST_F(RegistryStore, allSettingsComeBackFromTheRegistry) {
  Settings saved;
  saved.AmPm = false;
  saved.Window_X = -7;
  saved.Window_Y = 8;
  saved.Snd_Show = L"\u0142.wav";
  storeSettings(store_, saved);
  Settings loaded;
  EXPECT_EQ(
      Load_options_KV(RegistrySettingsStore(root_), {{1024, 768}, {200, 161}}, loaded, [](bool) {}),
      L"");
  EXPECT_EQ(loaded, saved);
}

TEST_F(RegistryStore, noKeyStaysOpen) {
  const auto saveAndGet = [this] {
    store_.save(L"Graph", L"K", L"1");
    EXPECT_EQ(get(L"K"), L"1");
  };
  saveAndGet();
  const HeldHandles before;
  for (int i = 0; i < 100; ++i) saveAndGet();
  EXPECT_FALSE(before.grew());
}

}  // namespace
}  // namespace kalvora
