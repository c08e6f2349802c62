#include "win32/platform/SystemFunction.h"

#include <gtest/gtest.h>

#include "fakes/TempFolder.h"

namespace kalvora {
namespace {

TEST(SystemFunctions, areThereWhereTheSystemHasThem) {
  const auto version = systemFunction<DWORD()>(L"kernel32.dll", "GetVersion");
  ASSERT_NE(version, nullptr);
  EXPECT_EQ(version(), GetVersion());
  EXPECT_EQ(systemFunction<DWORD()>(L"kernel32.dll", "NoSuchFunction"), nullptr);
  EXPECT_EQ(systemFunction<DWORD()>(L"no-such-library.dll", "GetVersion"), nullptr);
}

/// A folder that the loader looks into for libraries before the system's.
class PlantedLibrary : public testing::Test {
 protected:
  static constexpr const wchar_t* kName = L"planted-library.dll";

  PlantedLibrary() {
    // Any program can be loaded as a library, this one too.
    std::wstring program(32768, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
    std::filesystem::copy_file(program, folder_.path() / kName);
    SetDllDirectoryW(folder_.path().c_str());
  }
  ~PlantedLibrary() override { SetDllDirectoryW(nullptr); }

 private:
  TempFolder folder_;
};

TEST_F(PlantedLibrary, isNotLoadedInPlaceOfTheSystems) {
  EXPECT_EQ(systemFunction<void()>(kName, "anything"), nullptr);
  EXPECT_EQ(GetModuleHandleW(kName), nullptr);
  const HMODULE found = LoadLibraryW(kName);
  ASSERT_NE(found, nullptr) << "who does not ask for the system's gets it";
  FreeLibrary(found);
}

}  // namespace
}  // namespace kalvora
