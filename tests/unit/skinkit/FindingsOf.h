#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>

#include "app/Config_file.h"
#include "app/PortableProfileReader.h"
#include "base/CodePage.h"
#include "posix/StandardFileSystem.h"
#include "skinkit/SkinCheck.h"

namespace kalvora {

/// What the checker finds in a skin's folder.
inline SkinFindings findingsOf(const std::filesystem::path& folder) {
  const StandardFileSystem files;
  PortableProfileReader profiles;
  const Windows1252 codePage;
  Config_file values(profiles, codePage);
  return checkSkin(files, values, folder);
}

/// All of it, for a failing test to show.
inline std::string reportOf(const SkinFindings& findings) {
  std::string report;
  for (const SkinFinding& finding : findings) {
    const std::wstring line = findingText(finding);
    report += std::string(line.begin(), line.end()) + "\n";
  }
  return report;
}

}  // namespace kalvora
