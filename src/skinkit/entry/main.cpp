#include <clocale>
#include <filesystem>

#include "skinkit/entry/SkinTool.h"

int main(int count, char** values) {
  std::setlocale(LC_ALL, "C.UTF-8");  // names of files are UTF-8
  std::vector<std::wstring> arguments;
  for (int i = 1; i < count; ++i) {
    arguments.push_back(std::filesystem::path(values[i]).wstring());
  }
  return kalvora::skinTool(std::filesystem::read_symlink("/proc/self/exe").parent_path(),
                           arguments);
}
