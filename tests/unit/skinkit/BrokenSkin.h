#pragma once

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>

#include "ProjectFolders.h"
#include "fakes/TempFolder.h"

namespace kalvora {

/// A whole shipped skin in a folder of the test's own, there to be broken.
class BrokenSkin {
 public:
  BrokenSkin() {
    std::filesystem::copy(std::filesystem::path(kSourceFolder) / "assets" / "skins" / "Almanac",
                          folder_.path(), std::filesystem::copy_options::recursive);
  }

  const std::filesystem::path& path() const { return folder_.path(); }

  void write(const std::string& name, std::string_view bytes) const { folder_.write(name, bytes); }
  void remove(const std::string& name) const { std::filesystem::remove(path() / name); }

  std::string text() const {
    std::ifstream in(path() / "config.ini", std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }

  /// Changes one key's value in the description. An empty `value` removes the whole line.
  void setKey(const std::string& section, const std::string& key, const std::string& value) const {
    const std::string all = text();
    const std::size_t heading = all.find("[" + section + "]");
    const std::size_t line = all.find("\n" + key + "=", heading);
    if (heading == std::string::npos || line == std::string::npos) {
      throw std::runtime_error("no key " + section + "/" + key);
    }
    const std::size_t end = all.find('\r', line);
    const std::string replacement = value.empty() ? "\n;" : "\n" + key + "=" + value;
    write("config.ini", all.substr(0, line) + replacement + all.substr(end));
  }

  /// Replaces the first occurrence of a piece of the description.
  void replace(const std::string& piece, const std::string& by) const {
    std::string all = text();
    const std::size_t at = all.find(piece);
    if (at == std::string::npos) throw std::runtime_error("no " + piece);
    write("config.ini", all.replace(at, piece.size(), by));
  }

  void setPlace(const std::string& section, int x, int y, int w, int h) const {
    setKey(section, "X", std::to_string(x));
    setKey(section, "Y", std::to_string(y));
    setKey(section, "W", std::to_string(w));
    setKey(section, "H", std::to_string(h));
  }

 private:
  TempFolder folder_;
};

}  // namespace kalvora
