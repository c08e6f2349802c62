// How long it takes to wear another skin, and to make a window's outline from its picture: the
// program's own code, with its real window. Prints the milliseconds of every repetition.
//
//   skins-bench FOLDER REPETITIONS     FOLDER holds "shape.bmp", and "skins" with one skin

#include <windows.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>

#include "platform/ProgramInProcess.h"
#include "skin/WindowShape.h"
#include "win32/platform/WindowsFileSystem.h"
#include "win32/toolkit/WindowRegion.h"

namespace kalvora {
namespace {

template <typename Work>
void printTimes(const char* name, int repetitions, Work&& work) {
  using Milliseconds = std::chrono::duration<double, std::milli>;
  work();  // fills the caches
  std::printf("%s", name);
  for (int i = 0; i < repetitions; ++i) {
    const auto start = std::chrono::steady_clock::now();
    work();
    std::printf(" %.4f", Milliseconds(std::chrono::steady_clock::now() - start).count());
  }
  std::printf("\n");
}

/// A program that complains, or is not to be seen, would be measured as a fast one.
void requireWorn(const ProgramInProcess& program) {
  const bool worn =
      program.form().started() && program.reporter().messages.empty() && program.visible();
  if (!worn) throw std::runtime_error("the skin is not worn");
}

void run(const std::filesystem::path& folder, int repetitions) {
  const Picture shape = decodePicture(
      WindowsFileSystem().read(folder / "shape.bmp", static_cast<std::size_t>(kMaxPictureBytes)));
  printTimes("region", repetitions, [&] {
    if (!regionOf(*SkinShapeToRegion(shape))) std::abort();
  });
  ProgramInProcess program(folder);
  program.store().values[L"Graph/Win1_Jump"] = L"2000";  // one step, and the window stands
  program.load();
  program.reskin();
  requireWorn(program);
  // All that it takes until the window is painted anew.
  printTimes("reskin", repetitions, [&] { program.reskin(); });
  requireWorn(program);
}

}  // namespace
}  // namespace kalvora

int main(int count, char** arguments) {
  if (count != 3) return 2;
  kalvora::run(std::filesystem::absolute(arguments[1]), std::atoi(arguments[2]));
}
