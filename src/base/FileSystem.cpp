#include "base/FileSystem.h"

#include <algorithm>
#include <utility>

#include "base/Text.h"

namespace kalvora {

namespace {

/// Finds the folder anew for each file.
class JoiningReader : public FolderReader {
 public:
  JoiningReader(const FileSystem& files, std::filesystem::path folder)
      : files_(files), folder_(std::move(folder)) {}
  std::string read(std::wstring_view name, std::size_t limit) const override {
    return files_.read(folder_ / name, limit);
  }

 private:
  const FileSystem& files_;
  const std::filesystem::path folder_;
};

}  // namespace

std::unique_ptr<FolderReader> FileSystem::readerOf(const std::filesystem::path& folder) const {
  return std::make_unique<JoiningReader>(*this, folder);
}

bool FileSystem::fileExists(const std::filesystem::path& folder, std::wstring_view name) const {
  const std::vector<std::wstring> File_Exist_FileList = files(folder, L"*");
  return std::ranges::any_of(File_Exist_FileList, [&](const std::wstring& entry) {
    return equalIgnoringCase(entry, name);
  });
}

bool matchesPattern(std::wstring_view name, std::wstring_view pattern) {
  // Greedy with one step back to the last star: linear in practice, never exponential.
  std::size_t n = 0;
  std::size_t p = 0;
  std::size_t star = std::wstring_view::npos;
  std::size_t resume = 0;
  while (n < name.size()) {
    if (p < pattern.size() && pattern[p] == L'*') {
      star = p++;
      resume = n;
    } else if (p < pattern.size() &&
               (pattern[p] == L'?' || ordinalUpper(pattern[p]) == ordinalUpper(name[n]))) {
      ++p;
      ++n;
    } else if (star != std::wstring_view::npos) {
      p = star + 1;
      n = ++resume;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of(L'*', p) == std::wstring_view::npos;
}

}  // namespace kalvora
