#include "app/PortableProfileReader.h"

#include <algorithm>
#include <fstream>

#include "app/IniAnswer.h"
#include "app/IniText.h"

namespace kalvora {

namespace {

std::string contentOf(const std::filesystem::path& file) {
  std::error_code error;
  // Anything else, such as a pipe, could keep the reader waiting.
  if (!std::filesystem::is_regular_file(file, error)) return {};
  const std::uintmax_t size = std::filesystem::file_size(file, error);
  if (error) return {};
  std::ifstream in(file, std::ios::binary);
  const auto wanted = std::min<std::uintmax_t>(size, PortableProfileReader::kLargestFile);
  std::string bytes(static_cast<std::size_t>(wanted), '\0');
  in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<std::size_t>(in.gcount()));
  return iniTextOf(std::move(bytes));
}

}  // namespace

std::size_t PortableProfileReader::privateProfileString(const std::string& section,
                                                        const std::string& key,
                                                        const std::string& fallback,
                                                        std::span<char> buffer,
                                                        const std::filesystem::path& file) {
  return iniAnswer(contentOf(file), section, key, fallback, buffer);
}

}  // namespace kalvora
