#pragma once

#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "base/Errors.h"
#include "base/FileSystem.h"
#include "base/Text.h"

namespace kalvora {

/// One folder of files in memory, whatever folder is asked for, with a record of what was read.
class FakeNoteFolder : public FileSystem {
 public:
  std::vector<std::wstring> files(const std::filesystem::path&,
                                  std::wstring_view pattern) const override {
    ++listings;
    std::vector<std::wstring> names;
    if (away) return names;
    for (const auto& [name, bytes] : notes) {
      if (matchesPattern(name, pattern)) names.push_back(name);
    }
    std::ranges::sort(names, nameComesBefore);
    return names;
  }
  std::vector<std::wstring> folders(const std::filesystem::path&) const override {
    return {L"notes"};
  }
  bool canBeListed(const std::filesystem::path&) const override { return !away; }

  std::optional<std::uintmax_t> size(const std::filesystem::path& file) const override {
    const auto found = notes.find(file.filename().wstring());
    if (away || found == notes.end()) return std::nullopt;
    return found->second.size();
  }
  LocalTime lastWritten(const std::filesystem::path&) const override { return {}; }

  std::string read(const std::filesystem::path& file, std::size_t limit) const override {
    const std::wstring name = file.filename().wstring();
    reads.push_back(name);
    if (beforeRead) beforeRead(name);
    const auto found = notes.find(name);
    if (away || found == notes.end() || name == locked) {
      throw FileError(L"This file cannot be read: ", file);
    }
    return found->second.substr(0, limit);
  }

  std::map<std::wstring, std::string> notes;            // bytes by name
  bool away = false;                                    // there is a folder, which leads nowhere
  std::wstring locked;                                  // listed, but cannot be read
  std::function<void(const std::wstring&)> beforeRead;  // may change the folder
  mutable std::vector<std::wstring> reads;
  mutable int listings = 0;
};

}  // namespace kalvora
