#pragma once

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/Errors.h"
#include "base/FileSystem.h"
#include "base/FileWriter.h"
#include "base/Text.h"

namespace kalvora {

/// Files in memory, in one folder, with names that ignore case as on Windows. Any change of them
/// can be made to fail.
class MemoryFiles : public FileSystem, public FileWriter {
 public:
  FolderListing list(const std::filesystem::path& /*folder*/,
                     std::wstring_view pattern) const override {
    FolderListing::Builder listing;
    for (const auto& [name, bytes] : content) {
      if (matchesPattern(name, pattern)) listing.add(name);
    }
    return listing.build();
  }
  std::vector<std::wstring> folders(const std::filesystem::path& /*folder*/) const override {
    return {};
  }
  std::optional<std::uintmax_t> size(const std::filesystem::path& file) const override {
    const auto found = content.find(file.filename().wstring());
    if (found == content.end()) return std::nullopt;
    return found->second.size();
  }
  LocalTime lastWritten(const std::filesystem::path& /*file*/) const override { return {}; }
  std::string read(const std::filesystem::path& file, std::size_t limit) const override {
    const auto found = content.find(file.filename().wstring());
    if (found == content.end()) throw FileError(L"This file cannot be read: ", file);
    return found->second.substr(0, limit);
  }

  void writeSafely(const std::filesystem::path& file, std::string_view bytes) override {
    step(L"write " + file.filename().wstring(), L"This file cannot be written: ", file);
    // The name comes back in the letters that it was written with last.
    content.erase(file.filename().wstring());
    content.emplace(file.filename().wstring(), bytes);
  }
  Removal remove(const std::filesystem::path& file) override {
    step(L"remove " + file.filename().wstring(), L"This file cannot be deleted: ", file);
    return content.erase(file.filename().wstring()) > 0 ? Removal::Removed : Removal::WasMissing;
  }
  void move(const std::filesystem::path& from, const std::filesystem::path& to) override {
    step(L"move " + from.filename().wstring(), L"This file cannot be renamed: ", from);
    auto moved = content.extract(from.filename().wstring());
    if (moved.empty()) throw FileError(L"This file cannot be renamed: ", from);
    content.insert_or_assign(to.filename().wstring(), std::move(moved.mapped()));
  }

  void createFolder(const std::filesystem::path& /*folder*/) override {}

  struct NameOrder {
    bool operator()(const std::wstring& a, const std::wstring& b) const {
      return !equalIgnoringCase(a, b) && nameComesBefore(a, b);
    }
  };
  using Content = std::map<std::wstring, std::string, NameOrder>;

  Content content;
  /// Every change that was tried: L"write Gym.tx1", L"remove Gym.tx1".
  std::vector<std::wstring> steps;
  /// The number of the change that fails, counted from 1; none for 0.
  std::size_t failingStep = 0;

 private:
  void step(std::wstring what, std::wstring_view sentence, const std::filesystem::path& file) {
    steps.push_back(std::move(what));
    if (steps.size() == failingStep) throw FileError(sentence, file);
  }
};

}  // namespace kalvora
