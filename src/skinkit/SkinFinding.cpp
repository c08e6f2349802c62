#include "skinkit/SkinFinding.h"

#include <algorithm>

namespace kalvora {

std::wstring findingText(const SkinFinding& finding) {
  std::wstring text = finding.severity == Severity::Advice ? L"advice: " : L"";
  if (!finding.file.empty()) text += finding.file + L": ";
  if (!finding.key.empty()) text += finding.key + L": ";
  return text + finding.problem + L" " + finding.remedy;
}

bool hasMistake(const SkinFindings& findings) {
  return std::ranges::any_of(
      findings, [](const SkinFinding& finding) { return finding.severity == Severity::Mistake; });
}

}  // namespace kalvora
