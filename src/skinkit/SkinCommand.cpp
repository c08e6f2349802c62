#include "skinkit/SkinCommand.h"

#include <algorithm>
#include <optional>
#include <system_error>

#include "base/Errors.h"
#include "base/Numbers.h"
#include "base/Version.h"
#include "skin/Skin.h"
#include "skinkit/PngBytes.h"
#include "skinkit/SkinCheck.h"
#include "skinkit/SkinStates.h"

namespace kalvora {

namespace {

namespace fs = std::filesystem;
using Result = SkinCommandResult;
using Arguments = std::vector<std::wstring>;

constexpr std::string_view kUsage =
    "kalvora-skin check FOLDER\n"
    "    tells every mistake of a skin: the file, the key, and what to do\n"
    "kalvora-skin preview FOLDER OUT.png [--scale 1..8] [--ground RRGGBB]\n"
    "             [--state full|rolled-up|pressed|reminder|reminder-pressed]\n"
    "    paints the window in that skin, on a desktop of that colour\n"
    "kalvora-skin new FOLDER\n"
    "    makes a new skin to start from, in a folder that does not exist yet\n"
    "kalvora-skin --version\n"
    "    tells its version and where the licences are\n";

constexpr std::string_view kVersion =
    "kalvora-skin " KALVORA_VERSION_TEXT
    "\n"
    "The licences of what is linked into it are in the file THIRD-PARTY.txt beside it.\n";

constexpr int kLargestScale = 8;

std::string utf8(std::wstring_view text) {
  const std::u8string bytes = fs::path(std::wstring(text)).u8string();
  return {bytes.begin(), bytes.end()};
}

Result usage(std::ostream& out) {
  out << kUsage;
  return Result::Failed;
}

bool isFolder(const fs::path& folder) {
  std::error_code ignored;
  return fs::is_directory(folder, ignored);
}

Result check(const SkinCommandPorts& ports, const fs::path& folder) {
  if (!isFolder(folder)) throw Failure(L"There is no such folder: " + folder.wstring());
  const SkinFindings findings = checkSkin(ports.files, ports.values, fs::absolute(folder));
  for (const SkinFinding& finding : findings) ports.out << utf8(findingText(finding)) << "\n";
  const auto mistakes = std::ranges::count(findings, Severity::Mistake, &SkinFinding::severity);
  ports.out << utf8(folder.wstring()) << ": " << mistakes
            << (mistakes == 1 ? " mistake, " : " mistakes, ")
            << static_cast<std::ptrdiff_t>(findings.size()) - mistakes << " advice\n";
  return mistakes == 0 ? Result::Good : Result::MistakesFound;
}

/// A colour such as 3b6ea5.
std::optional<Pixel> groundOf(const std::wstring& text) {
  if (text.size() != 6 || text.find_first_not_of(L"0123456789abcdefABCDEF") != text.npos) return {};
  return static_cast<Pixel>(std::stoul(text, nullptr, 16));
}

std::optional<int> scaleOf(const std::wstring& text) {
  if (text.size() != 1 || text[0] < L'1' || text[0] > L'0' + kLargestScale) return {};
  return text[0] - L'0';
}

/// Nothing where the options are not those of the command.
std::optional<PreviewLook> previewLook(const Arguments& arguments) {
  PreviewLook look;
  for (std::size_t i = 3; i < arguments.size(); i += 2) {
    if (i + 1 == arguments.size()) return {};
    const std::wstring& value = arguments[i + 1];
    const auto take = [](auto& place, const auto& given) {
      if (given) place = *given;
      return given.has_value();
    };
    const bool taken = (arguments[i] == L"--state" && take(look.state, skinStateOf(utf8(value)))) ||
                       (arguments[i] == L"--scale" && take(look.scale, scaleOf(value))) ||
                       (arguments[i] == L"--ground" && take(look.ground, groundOf(value)));
    if (!taken) return {};
  }
  return look;
}

Result preview(const SkinCommandPorts& ports, const Arguments& arguments) {
  const std::optional<PreviewLook> look = previewLook(arguments);
  if (!look) return usage(ports.out);
  const fs::path folder = fs::absolute(arguments[1]);
  const fs::path file = fs::absolute(arguments[2]);
  const Skin skin = loadSkin(ports.files, ports.values, folder);
  ports.writer.writeSafely(file, pngBytes(skinPicture(skin, *look)));
  ports.out << "painted: " << utf8(file.wstring()) << "\n";
  return Result::Good;
}

Result makeNew(const SkinCommandPorts& ports, const fs::path& folder) {
  std::error_code error;
  if (fs::exists(folder, error)) {
    throw Failure(L"This exists already: " + folder.wstring());
  }
  if (!isFolder(ports.templateFolder)) {
    throw Failure(L"The skin to start from is missing: " + ports.templateFolder.wstring());
  }
  fs::copy(ports.templateFolder, folder, error);
  if (error) throw Failure(L"The folder cannot be made: " + folder.wstring());
  ports.out << "made: " << utf8(folder.wstring()) << "\n";
  return Result::Good;
}

Result version(std::ostream& out) {
  out << kVersion;
  return Result::Good;
}

Result run(const SkinCommandPorts& ports, const Arguments& arguments) {
  if (arguments.size() == 1 && arguments[0] == L"--version") return version(ports.out);
  if (arguments.size() == 2 && arguments[0] == L"check") return check(ports, arguments[1]);
  if (arguments.size() >= 3 && arguments[0] == L"preview") return preview(ports, arguments);
  if (arguments.size() == 2 && arguments[0] == L"new") return makeNew(ports, arguments[1]);
  return usage(ports.out);
}

}  // namespace

SkinCommandResult runSkinCommand(const SkinCommandPorts& ports,
                                 const std::vector<std::wstring>& arguments) {
  try {
    return run(ports, arguments);
  } catch (const Failure& failure) {
    ports.out << utf8(failure.message()) << "\n";
    return Result::Failed;
  }
}

}  // namespace kalvora
