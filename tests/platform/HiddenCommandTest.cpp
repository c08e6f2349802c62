#include "win32/platform/HiddenCommand.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "fakes/TempFolder.h"

namespace kalvora {
namespace {

TEST(HiddenCommandTest, theShellRunsTheCommand) {
  const TempFolder folder;
  HiddenCommand().run(L"mkdir \"" + (folder.path() / "made").wstring() + L"\"");
  const ULONGLONG start = GetTickCount64();
  while (!exists(folder.path() / "made") && GetTickCount64() - start < 20000) Sleep(10);
  EXPECT_TRUE(exists(folder.path() / "made"));
}

}  // namespace
}  // namespace kalvora
