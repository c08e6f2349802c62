#include "skinkit/DescriptionText.h"

#include <algorithm>

#include "base/CodePage.h"
#include "base/Text.h"
#include "skin/SkinDescription.h"

namespace kalvora {

namespace {

/// Writes down what is asked for, instead of answering from a file: so there is no second list of
/// the keys that could differ from the program's.
class KeyRecorder : public SkinValues {
 public:
  std::wstring value(std::wstring_view section, std::wstring_view key, const std::filesystem::path&,
                     std::wstring_view fallback) override {
    keys.push_back({std::wstring(section), std::wstring(key), std::wstring(fallback)});
    return std::wstring(fallback);
  }

  std::vector<KnownKey> keys;
};

DescriptionLine parsed(std::wstring_view line, const std::wstring& section) {
  using Kind = DescriptionLine::Kind;
  if (line.front() == L'[') {
    const std::size_t end = line.rfind(L']');
    if (end == std::wstring_view::npos) return {0, Kind::Neither, section, {}};
    return {0, Kind::Section, std::wstring(trimmed(line.substr(1, end - 1))), {}};
  }
  const std::size_t equals = line.find(L'=');
  if (equals == std::wstring_view::npos) return {0, Kind::Neither, section, {}};
  return {0, Kind::Key, section, std::wstring(trimmed(line.substr(0, equals)))};
}

}  // namespace

std::vector<DescriptionLine> descriptionLines(std::string_view text) {
  const Windows1252 codePage;
  const std::wstring characters = codePage.toText(text);
  std::vector<DescriptionLine> lines;
  std::wstring section;
  int number = 0;
  for (std::size_t start = 0; start < characters.size();) {
    const std::size_t end = std::min(characters.find(L'\n', start), characters.size());
    const std::wstring_view line =
        trimmed(std::wstring_view(characters).substr(start, end - start));
    start = end + 1;
    ++number;
    if (line.empty() || line.front() == L';') continue;
    lines.push_back(parsed(line, section));
    lines.back().number = number;
    section = lines.back().section;
  }
  return lines;
}

std::vector<KnownKey> knownKeys() {
  KeyRecorder recorder;
  Odczytaj_ini(recorder, {});
  return recorder.keys;
}

}  // namespace kalvora
