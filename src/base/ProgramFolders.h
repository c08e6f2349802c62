#pragma once

#include <filesystem>
#include <utility>

namespace kalvora {

/// The folders beside the program.
class ProgramFolders {
 public:
  explicit ProgramFolders(std::filesystem::path program) : program_(std::move(program)) {}

  std::filesystem::path notes() const { return program_ / L"notes"; }
  std::filesystem::path skins() const { return program_ / L"skins"; }
  std::filesystem::path icons() const { return program_ / L"icons"; }
  std::filesystem::path sounds() const { return program_ / L"sounds"; }
  /// Of the safety copies and drafts; it is made with the first of them.
  std::filesystem::path backup() const { return program_ / L"backup"; }

 private:
  std::filesystem::path program_;
};

}  // namespace kalvora
