#pragma once

#include <string>
#include <vector>

namespace kalvora {

/// Mistake: the skin does not look or work as its author must have meant. Advice: it works, but
/// something about it will surprise.
enum class Severity { Mistake, Advice };

/// One sentence of a report on a skin.
struct SkinFinding {
  Severity severity = Severity::Mistake;
  /// The file's name in the skin's folder, such as L"config.ini"; empty for the folder itself.
  std::wstring file;
  /// Section and key, such as L"[New] X"; empty where no key is meant.
  std::wstring key;
  /// What is wrong, and what to do about it: two sentences.
  std::wstring problem;
  std::wstring remedy;
};

using SkinFindings = std::vector<SkinFinding>;

/// "config.ini: [New] X: problem remedy", with "advice: " before it where it is no mistake.
std::wstring findingText(const SkinFinding& finding);

bool hasMistake(const SkinFindings& findings);

}  // namespace kalvora
