// A skin's "config.ini" of any bytes: what the program reads from it, a window that wears it, and
// what the skin checker says of it.
#include <map>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "FuzzCheck.h"
#include "app/Config_file.h"
#include "app/IniAnswer.h"
#include "app/IniText.h"
#include "app/PortableProfileReader.h"
#include "fakes/BmpBuilder.h"
#include "fakes/MemoryFiles.h"
#include "fakes/TempFolder.h"
#include "skin/SkinnedWindow.h"
#include "skinkit/SkinCheck.h"
#include "skinkit/SkinStates.h"

namespace kalvora {
namespace {

const TempFolder& folder() {
  static const TempFolder kFolder;
  return kFolder;
}

/// Answers from a text in memory: opening a file for every key takes long.
class TextProfiles : public ProfileReader {
 public:
  explicit TextProfiles(std::string text) : text_(std::move(text)) {}
  std::size_t privateProfileString(const std::string& section, const std::string& key,
                                   const std::string& fallback, std::span<char> buffer,
                                   const std::filesystem::path&) override {
    return iniAnswer(text_, section, key, fallback, buffer);
  }

 private:
  std::string text_;
};

/// Looks for each key once, as going through the whole text for every answer takes long.
class KeptValues : public SkinValues {
 public:
  explicit KeptValues(const std::string& text) : reader_(text) {}
  std::wstring value(std::wstring_view section, std::wstring_view key,
                     const std::filesystem::path& file, std::wstring_view fallback) override {
    const auto name = std::pair(std::wstring(section), std::wstring(key));
    const auto kept = kept_.find(name);
    if (kept != kept_.end()) return kept->second;
    return kept_[name] = config_.Read_ini_value(section, key, file, fallback);
  }

 private:
  TextProfiles reader_;
  Windows1252 codePage_;
  Config_file config_{reader_, codePage_};
  std::map<std::pair<std::wstring, std::wstring>, std::wstring> kept_;
};

/// The pictures of a whole skin with the face of a reminder, without a description.
MemoryFiles skinPictures() {
  MemoryFiles files;
  files.content[L"main1.bmp"] = BmpBuilder(31, 20, 24, 0x112233).bytes();
  files.content[L"main2.bmp"] = BmpBuilder(31, 20, 24, 0x445566).bytes();
  files.content[L"remind1.bmp"] = BmpBuilder(31, 20, 24, 0x667788).bytes();
  files.content[L"remind2.bmp"] = BmpBuilder(31, 20, 24, 0x8899AA).bytes();
  files.content[L"titlebar.bmp"] = BmpBuilder(2, 1, 24, 0x778899).bytes();
  files.content[L"text.bmp"] = BmpBuilder(57, 3, 24, 0x00FF00).bytes();
  files.content[L"shapem.bmp"] = BmpBuilder(31, 20, 24, 0x203040).bytes();
  files.content[L"shapet.bmp"] = BmpBuilder(31, 10, 24, 0x203040).bytes();
  return files;
}

/// The reader's answer stands in the file, has no NUL, and is cut to the buffer.
void checkReader(const std::string& text, const std::filesystem::path& file) {
  PortableProfileReader reader;
  for (const std::size_t room : {255U, 3U, 1U}) {
    std::vector<char> buffer(room, '\x7F');
    const std::size_t count = reader.privateProfileString("New", "X", "", buffer, file);
    require(count < room && buffer[count] == '\0', "an answer ends with a NUL in its buffer");
    const std::string answer(buffer.data(), count);
    require(answer.find('\0') == std::string::npos, "an answer has no NUL");
    require(text.find(answer) != std::string::npos, "an answer stands in the file");
  }
}

void checkWindow(const MemoryFiles& files, SkinValues& values) {
  Skin skin;
  try {
    skin = loadSkin(files, values, folder().path());
  } catch (const SkinError&) {
    return;
  }
  SkinnedWindow window;
  window.wear(skin);
  const Size size{window.windowWidth(), window.fullHeight()};
  Image picture = window.paint(size);
  window.takeDirty();
  for (const RowId row : kAllRows) window.Pokaz_Tekst(row, L"ABC xyz 019 :");
  for (const ButtonId id : kAllButtons) window.showPressed(id);
  for (const Visible mainButtons : {Visible::Yes, Visible::No}) {
    window.setMainButtonsVisible(mainButtons);
    window.paintOver(picture, window.takeDirty());
    require(picture == window.paint(size), "painting what changed gives the whole picture");
  }
  for (int x = -1; x <= size.width; x += 5) {
    const std::optional<ButtonId> found = window.buttonAt({x, size.height / 2});
    require(!found || window.buttonRect(*found).contains({x, size.height / 2}),
            "the button at a point holds the point");
  }
  skinPicture(skin, {});
}

/// What is told has a sentence, and its advice another.
void checkChecker(const MemoryFiles& files, SkinValues& values) {
  for (const SkinFinding& finding : checkSkin(files, values, folder().path())) {
    require(!finding.problem.empty() && !finding.remedy.empty(), "a finding says what to do");
    require(!findingText(finding).empty(), "a finding is told");
  }
}

}  // namespace
}  // namespace kalvora

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kalvora;
  static MemoryFiles files = skinPictures();
  const std::string bytes(bytesOf(data, size));
  files.content[std::wstring(kDescriptionFile)] = bytes;
  const std::filesystem::path file = folder().write(kDescriptionFile, bytes);
  const std::string text = iniTextOf(bytes);
  KeptValues values(text);
  checkReader(text, file);
  require(!isOrdinaryIni(bytes) || text == bytes, "an ordinary file is taken as it stands");
  checkWindow(files, values);
  checkChecker(files, values);
  return 0;
}
