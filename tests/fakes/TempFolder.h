#pragma once

#include <atomic>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace kalvora {

/// A new folder of a test's own, removed with all that is in it.
class TempFolder {
 public:
  TempFolder() : path_(create()) {}
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }

  /// Writes a file of these bytes, and the folders on the way to it. Returns its full path.
  std::filesystem::path write(const std::filesystem::path& name, std::string_view bytes) const {
    std::filesystem::path file = path_ / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out) throw std::runtime_error("cannot write " + file.string());
    return file;
  }

 private:
  static std::filesystem::path create() {
    static std::atomic<int> number = 0;
    const auto moment = std::chrono::steady_clock::now().time_since_epoch().count();
    for (;;) {
      std::filesystem::path folder =
          std::filesystem::temp_directory_path() /
          ("kalvora-" + std::to_string(moment) + "-" + std::to_string(++number));
      // False where another process was given the same name first.
      if (std::filesystem::create_directory(folder)) return folder;
    }
  }

  std::filesystem::path path_;
};

}  // namespace kalvora
