#include "skinkit/entry/SkinTool.h"

#include <iostream>

#include "app/Config_file.h"
#include "app/PortableProfileReader.h"
#include "base/CodePage.h"
#include "posix/StandardFileSystem.h"
#include "posix/StandardFileWriter.h"
#include "skinkit/SkinCommand.h"

namespace kalvora {

int skinTool(const std::filesystem::path& programFolder,
             const std::vector<std::wstring>& arguments) {
  const StandardFileSystem files;
  StandardFileWriter writer;
  PortableProfileReader profiles;
  const Windows1252 codePage;
  Config_file values(profiles, codePage);
  const SkinCommandPorts ports{files, writer, values, programFolder / "skin-template", std::cout};
  return static_cast<int>(runSkinCommand(ports, arguments));
}

}  // namespace kalvora
