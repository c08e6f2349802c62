// psapi.h's own names are functions of a library of their own; these are the system's.
#define PSAPI_VERSION 2
#include <windows.h>
// psapi.h needs windows.h before it.
#include <psapi.h>

#include <gtest/gtest.h>

#include <iostream>
#include <vector>

#include "fakes/SkinFiles.h"
#include "fakes/TempFolder.h"
#include "platform/HeldHandles.h"
#include "platform/ProgramInProcess.h"
#include "win32/platform/UniqueHandle.h"

namespace kalvora {
namespace {

constexpr int kRepetitions = 1000;
constexpr int kTaken = 20;  // handles, to see whether they are counted
// The allocators settle within this many repetitions.
constexpr int kWarmUp = 200;
// Far less than a window's picture or a region a repetition would come to.
constexpr std::ptrdiff_t kAllowedGrowth = std::ptrdiff_t{128} * 1024;

/// The memory that is the process's own. Taken from the counter that every system fills in.
std::ptrdiff_t privateBytes() {
  PROCESS_MEMORY_COUNTERS counters{};
  counters.cb = sizeof counters;
  GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
  return static_cast<std::ptrdiff_t>(counters.PagefileUsage);
}

/// What the process holds.
struct Held {
  HeldHandles handles;
  std::ptrdiff_t bytes = privateBytes();
};

/// One step takes every animation to its end.
class Leaks : public testing::Test {
 protected:
  Leaks() {
    writeSmallSkin(folder_, "skins/One");
    folder_.write("notes/a.txt", "7|30|Alpha");
    folder_.write("notes/b.txt", "||Bravo");
    for (const wchar_t* jump : {L"Graph/Win1_Jump", L"Graph/Win2_Jump"}) {
      program_.store().values[jump] = L"2000";
    }
    program_.load();
  }

  void showOrHide() {
    program_.deliver([this] { program_.form().pichook_MouseMove(515); });
    program_.tick(TimerId::Timer1);
  }
  void roll() {
    const Rect button = program_.form().window().buttonRect(ButtonId::Buttons_Down);
    const Point middle{button.x + button.width / 2, button.y + button.height / 2};
    program_.deliver([&] { program_.form().Form_MouseDown(MouseButton::Left, middle); });
    program_.deliver([&] { program_.form().mouseUp(MouseButton::Left, middle); });
    program_.tick(TimerId::Timer2);
  }
  void reskin() {
    program_.reskin();
    program_.store().calls.clear();  // the record of what was stored is no leak
  }

  void repeat(int times) {
    for (int i = 0; i < times; ++i) {
      showOrHide();
      roll();
      roll();
      reskin();
      showOrHide();
    }
  }

  ProgramInProcess& program() { return program_; }

 private:
  TempFolder folder_;
  ProgramInProcess program_{folder_.path()};
};

TEST_F(Leaks, aRepetitionGoesAllTheWay) {
  showOrHide();
  EXPECT_TRUE(program().visible());
  EXPECT_EQ(program().window().place().size(), (Size{60, 40}));
  roll();
  EXPECT_EQ(program().window().place().height, 20);
  roll();
  EXPECT_EQ(program().window().place().height, 40);
  reskin();
  EXPECT_TRUE(program().visible());
  showOrHide();
  EXPECT_FALSE(program().visible());
  EXPECT_TRUE(program().reporter().messages.empty());
}

TEST_F(Leaks, theMeasuresSeeWhatIsTaken) {
  const Held before;
  ASSERT_GT(before.bytes, 0);
  const std::vector<char> memory(8U << 20U, 'x');
  std::vector<UniqueHandle<HANDLE, &CloseHandle>> events;
  std::vector<UniqueBrush> brushes;
  for (int i = 0; i < kTaken; ++i) {
    events.emplace_back(CreateEventW(nullptr, FALSE, FALSE, nullptr));
    brushes.emplace_back(CreateSolidBrush(RGB(1, 2, 3)));
  }
  const Held after;
  EXPECT_GT(after.bytes - before.bytes, 4 << 20) << memory.size();
  // The system may take one for itself meanwhile, or give one back.
  EXPECT_NEAR(after.handles.kernel - before.handles.kernel, kTaken, kTaken / 2.0);
  EXPECT_NEAR(after.handles.gdi - before.handles.gdi, kTaken, kTaken / 2.0);
  EXPECT_TRUE(before.handles.grew());
}

TEST_F(Leaks, aThousandRepetitionsOfShowingRollingReskinningAndHidingLeakNothing) {
  repeat(kWarmUp);
  const Held before;
  repeat(kRepetitions);
  const Held after;
  EXPECT_EQ(after.handles.gdi, before.handles.gdi);
  EXPECT_EQ(after.handles.user, before.handles.user);
  // The system may hold one of its own for a timer that is due just now.
  EXPECT_LT(after.handles.kernel, before.handles.kernel + kTaken);
  EXPECT_LT(after.bytes - before.bytes, kAllowedGrowth);
  EXPECT_TRUE(program().reporter().messages.empty());
  std::cout << "private bytes: " << before.bytes << ", then " << after.bytes << "; "
            << testing::PrintToString(before.handles) << ", then "
            << testing::PrintToString(after.handles) << '\n';
}

}  // namespace
}  // namespace kalvora
