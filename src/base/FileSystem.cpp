#include "base/FileSystem.h"

#include <algorithm>

#include "base/Text.h"

namespace kalvora {

bool fileExists(const FileSystem& files, const std::filesystem::path& folder,
                std::wstring_view name) {
  const std::vector<std::wstring> File_Exist_FileList = files.files(folder, L"*");
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
