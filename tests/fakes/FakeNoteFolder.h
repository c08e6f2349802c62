#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "base/Errors.h"
#include "base/FileSystem.h"

namespace kalvora {

/// One folder of files in memory, whatever folder is asked for, with a record of what was read.
class FakeNoteFolder : public FileSystem {
 public:
  FolderListing list(const std::filesystem::path&, std::wstring_view pattern) const override {
    ++listings;
    FolderListing::Builder listing;
    if (away) return FolderListing::brokenOff();
    for (const auto& [name, bytes] : notes) {
      if (matchesPattern(name, pattern)) {
        listing.add(name, {whenWritten(name), static_cast<std::uint32_t>(bytes.size())});
      }
    }
    return listing.build();
  }
  std::vector<std::wstring> folders(const std::filesystem::path&) const override {
    return {L"notes"};
  }

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

  /// The folder as it is now.
  SharedListing listed() const { return std::make_shared<const FolderListing>(list({}, L"*")); }

  std::map<std::wstring, std::string> notes;            // bytes by name
  std::map<std::wstring, std::int64_t> written;         // what is missing is unsettled
  bool away = false;                                    // there is a folder, which leads nowhere
  std::wstring locked;                                  // listed, but cannot be read
  std::function<void(const std::wstring&)> beforeRead;  // may change the folder
  mutable std::vector<std::wstring> reads;
  mutable int listings = 0;

 private:
  std::int64_t whenWritten(const std::wstring& name) const {
    const auto found = written.find(name);
    return found == written.end() ? FileStamp::kUnsettled : found->second;
  }
};

}  // namespace kalvora
