// Runs a fuzz target on the files of the folders that are named, in place of a fuzzer: so what was
// once found stays mended without one.
#include <algorithm>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

#include "FuzzCheck.h"

namespace {

/// Of processor time, so that a busy machine fails nothing. An ordinary input takes hundredths.
constexpr double kMostSeconds = 1;

std::vector<std::filesystem::path> filesOf(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> files;
  if (!std::filesystem::is_directory(folder)) return files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) files.push_back(entry.path());
  }
  std::ranges::sort(files);
  return files;
}

void replay(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  const std::vector<char> bytes(std::istreambuf_iterator<char>(in), {});
  std::cout << file.string() << ", " << bytes.size() << " bytes" << std::endl;
  const std::clock_t start = std::clock();
  // A copy without a byte to spare: reading beyond its end is seen.
  LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  const double seconds = static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
  kalvora::require(seconds < kMostSeconds, "an input takes a moment");
}

}  // namespace

int main(int count, char** arguments) {
  for (int i = 1; i < count; ++i) {
    const std::vector<std::filesystem::path> files = filesOf(arguments[i]);
    kalvora::require(!files.empty(), "a folder of inputs holds some");
    for (const std::filesystem::path& file : files) replay(file);
  }
  kalvora::require(count > 1, "a folder of inputs is named");
  return 0;
}
