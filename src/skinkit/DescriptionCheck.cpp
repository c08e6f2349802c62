#include "skinkit/DescriptionCheck.h"

#include <algorithm>
#include <optional>
#include <set>

#include "app/IniText.h"
#include "base/Errors.h"
#include "base/Numbers.h"
#include "base/Text.h"
#include "skin/SkinDescription.h"
#include "skinkit/DescriptionText.h"
#include "skinkit/LayoutParts.h"
#include "skinkit/NearestName.h"

namespace kalvora {

namespace {

std::wstring keyName(std::wstring_view section, std::wstring_view key) {
  return L"[" + std::wstring(section) + L"] " + std::wstring(key);
}

SkinFinding mistake(std::wstring key, std::wstring problem, std::wstring remedy) {
  return {Severity::Mistake, std::wstring(kDescriptionFile), std::move(key), std::move(problem),
          std::move(remedy)};
}

SkinFinding advice(std::wstring key, std::wstring problem, std::wstring remedy) {
  SkinFinding finding = mistake(std::move(key), std::move(problem), std::move(remedy));
  finding.severity = Severity::Advice;
  return finding;
}

std::wstring inLine(int number) {
  return L" (line " + std::to_wstring(number) + L")";
}

std::wstring suggestion(std::wstring_view written, const std::vector<std::wstring>& names) {
  const std::optional<std::wstring> nearest = nearestName(written, names);
  if (!nearest) return L"Remove it, or look the name up in the skin author's guide.";
  return L"Write \"" + *nearest + L"\".";
}

/// A skin need not have the face of a reminder.
bool isOfFace(const std::wstring& section) {
  return std::ranges::any_of(kFaceButtons,
                             [&](ButtonId id) { return sectionName(id) == L"[" + section + L"]"; });
}

/// The description's own text against the names that the program asks for.
class NameCheck {
 public:
  NameCheck(const std::vector<DescriptionLine>& lines, const std::vector<KnownKey>& known)
      : lines_(lines), known_(known) {}

  SkinFindings run() {
    for (const DescriptionLine& line : lines_) checkLine(line);
    for (const KnownKey& key : known_) checkPresence(key);
    return findings_;
  }

 private:
  void checkLine(const DescriptionLine& line) {
    switch (line.kind) {
      case DescriptionLine::Kind::Section:
        return checkSection(line);
      case DescriptionLine::Kind::Key:
        return checkKey(line);
      case DescriptionLine::Kind::Neither:
        break;
    }
    findings_.push_back(
        mistake({}, L"This line is neither a section nor a key" + inLine(line.number) + L".",
                L"Write \"[Section]\" or \"Key=Number\", or begin a comment with a "
                L"semicolon."));
  }

  void checkSection(const DescriptionLine& line) {
    if (!knowsSection(line.section)) {
      findings_.push_back(mistake(L"[" + line.section + L"]",
                                  L"The program knows no such section" + inLine(line.number) + L".",
                                  suggestion(line.section, sectionNames())));
    } else if (!sections_.insert(upper(line.section)).second) {
      findings_.push_back(mistake(L"[" + line.section + L"]",
                                  L"The section stands here a second time" + inLine(line.number) +
                                      L"; only the first one is read.",
                                  L"Put its keys together under one heading."));
    }
  }

  void checkKey(const DescriptionLine& line) {
    if (!knowsSection(line.section)) return;  // told of the section already
    const std::wstring name = keyName(line.section, line.key);
    if (!knows(line.section, line.key)) {
      findings_.push_back(mistake(name,
                                  L"The program knows no such key" + inLine(line.number) + L".",
                                  suggestion(line.key, keysOf(line.section))));
    } else if (!keys_.insert(upper(name)).second) {
      findings_.push_back(mistake(name,
                                  L"The key stands here a second time" + inLine(line.number) +
                                      L"; only the first one is read.",
                                  L"Remove one of the two."));
    }
  }

  void checkPresence(const KnownKey& key) {
    if (!sections_.contains(upper(key.section))) {
      if (!isOfFace(key.section) && missing_.insert(key.section).second) {
        findings_.push_back(mistake(L"[" + key.section + L"]", L"The section is missing.",
                                    L"Add it: without it its keys have their defaults."));
      }
    } else if (!keys_.contains(upper(keyName(key.section, key.key)))) {
      findings_.push_back(mistake(keyName(key.section, key.key), L"The key is missing.",
                                  L"Add it: without it the value is " + key.fallback + L"."));
    }
  }

  static std::wstring upper(std::wstring text) {
    std::ranges::transform(text, text.begin(), ordinalUpper);
    return text;
  }

  bool knowsSection(std::wstring_view section) const {
    return std::ranges::any_of(
        known_, [&](const KnownKey& key) { return equalIgnoringCase(key.section, section); });
  }

  bool knows(std::wstring_view section, std::wstring_view name) const {
    return std::ranges::any_of(known_, [&](const KnownKey& key) {
      return equalIgnoringCase(key.section, section) && equalIgnoringCase(key.key, name);
    });
  }

  std::vector<std::wstring> sectionNames() const {
    std::vector<std::wstring> names;
    for (const KnownKey& key : known_) names.push_back(key.section);
    return names;
  }

  std::vector<std::wstring> keysOf(std::wstring_view section) const {
    std::vector<std::wstring> names;
    for (const KnownKey& key : known_) {
      if (equalIgnoringCase(key.section, section)) names.push_back(key.key);
    }
    return names;
  }

  const std::vector<DescriptionLine>& lines_;
  const std::vector<KnownKey>& known_;
  std::set<std::wstring> sections_;
  std::set<std::wstring> keys_;
  std::set<std::wstring> missing_;
  SkinFindings findings_;
};

bool isColor(const KnownKey& key) {
  return key.key.find(L"color, ") != std::wstring::npos;
}

/// Nothing where the program can use the value as it stands.
std::optional<SkinFinding> valueFinding(const KnownKey& key, const std::wstring& text) {
  const std::wstring name = keyName(key.section, key.key);
  const std::wstring instead = L" The program takes " + key.fallback + L" instead.";
  try {
    const int number = textToInt16(text);
    if (isColor(key) && (number < 0 || number > 255)) {
      return mistake(name, L"A part of a colour is 0 to 255, not " + text + L".",
                     L"Write a number of that range.");
    }
    if (text.find_first_not_of(L"+-0123456789") != std::wstring::npos) {
      return advice(name, L"\"" + text + L"\" is not a whole number.",
                    L"Write it without a fraction.");
    }
  } catch (const ConversionError&) {
    return mistake(name, L"\"" + text + L"\" is not a number." + instead,
                   L"Write a whole number of pixels, such as 12.");
  } catch (const OverflowError&) {
    return mistake(name, text + L" is too large." + instead,
                   L"Write a number from -32768 to 32767.");
  }
  return {};
}

}  // namespace

SkinFindings checkDescription(const FileSystem& files, SkinValues& values,
                              const std::filesystem::path& skinFolder) {
  const std::filesystem::path file = skinFolder / kDescriptionFile;
  const std::optional<std::uintmax_t> size = files.size(file);
  if (!size) {
    return {mistake({}, L"The file is missing.",
                    L"Write one: without it every button has its default place.")};
  }
  if (*size > kMostDescriptionBytes) {
    return {mistake({}, L"The file is larger than a megabyte.", L"Shorten it to what is needed.")};
  }
  const std::vector<KnownKey> known = knownKeys();
  const std::vector<DescriptionLine> lines =
      descriptionLines(iniTextOf(files.read(file, static_cast<std::size_t>(*size))));
  SkinFindings findings = NameCheck(lines, known).run();
  for (const KnownKey& key : known) {
    const auto finding = valueFinding(key, values.value(key.section, key.key, file, key.fallback));
    if (finding) findings.push_back(*finding);
  }
  return findings;
}

}  // namespace kalvora
