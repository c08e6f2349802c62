#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "skin/SkinValues.h"

namespace kalvora {

/// The values of a description file that a test writes down, and what was asked for in which order.
class FakeSkinValues : public SkinValues {
 public:
  void set(std::wstring section, std::wstring key, std::wstring text) {
    texts_[{std::move(section), std::move(key)}] = std::move(text);
  }

  std::wstring value(std::wstring_view section, std::wstring_view key,
                     const std::filesystem::path& file, std::wstring_view fallback) override {
    file_ = file;
    asked_.emplace_back(section, key);
    const auto found = texts_.find({std::wstring(section), std::wstring(key)});
    const bool empty = found == texts_.end() || found->second.empty();
    return empty ? std::wstring(fallback) : found->second;
  }

  const std::vector<std::pair<std::wstring, std::wstring>>& asked() const { return asked_; }
  /// The file that was asked for last.
  const std::filesystem::path& file() const { return file_; }

 private:
  std::map<std::pair<std::wstring, std::wstring>, std::wstring> texts_;
  std::vector<std::pair<std::wstring, std::wstring>> asked_;
  std::filesystem::path file_;
};

}  // namespace kalvora
