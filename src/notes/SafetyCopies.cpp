#include "notes/SafetyCopies.h"

#include <algorithm>
#include <array>
#include <cwchar>
#include <exception>
#include <limits>
#include <utility>

#include "base/Errors.h"
#include "base/Numbers.h"
#include "base/Text.h"

namespace kalvora {

namespace fs = std::filesystem;

namespace {

/// Between the note's name and the extension; 0 stands for a digit. Sorted as texts, moments of
/// this form are sorted as times.
constexpr std::wstring_view kMomentForm = L" 0000-00-00 00-00-00";
/// Between the moment and the number of a draft.
constexpr std::wstring_view kDraftMark = L" draft";
constexpr std::wstring_view kNoMark;
/// A longer name of a note is cut in its copy: a file name has 255 characters at most, and a path
/// 259 where the system was not set up for more.
constexpr std::size_t kLongestName = 220;
constexpr std::size_t kLongestPath = 259;
/// The moment, the mark, a number, the extension and the separator before the name.
constexpr std::size_t kLongestRest = kMomentForm.size() + kDraftMark.size() + 6 + 4 + 1;
/// Of a folder that lies so deep that nothing fits, something is tried all the same.
constexpr std::size_t kShortestName = 20;
constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max();
/// A file that is locked costs the user a quarter of a second at each save; no more of them than
/// this are tried.
constexpr int kMostFailedRemovals = 2;

bool isDigit(wchar_t c) {
  return c >= L'0' && c <= L'9';
}

int numberAt(std::wstring_view text, std::size_t begin, std::size_t length) {
  int number = 0;
  for (const wchar_t digit : text.substr(begin, length)) number = number * 10 + (digit - L'0');
  return number;
}

/// What the copy of a file is called before and behind the moment.
struct NameParts {
  std::wstring name;
  std::wstring extension;
};

NameParts partsOf(const fs::path& file, std::size_t longestName) {
  const std::wstring fileName = file.filename().wstring();
  const std::size_t length =
      kindOfFileName(fileName) ? titleOf(fileName).size() : file.stem().wstring().size();
  return {fileName.substr(0, std::min(length, longestName)), fileName.substr(length)};
}

std::wstring momentText(const LocalTime& time) {
  std::array<wchar_t, 64> text{};
  std::swprintf(text.data(), text.size(), L" %04d-%02d-%02d %02d-%02d-%02d", time.year, time.month,
                time.day, time.hour, time.minute, time.second);
  return text.data();
}

bool isMoment(std::wstring_view text) {
  return std::ranges::equal(text, kMomentForm, [](wchar_t c, wchar_t form) {
    return form == L'0' ? isDigit(c) : c == form;
  });
}

LocalTime momentOf(std::wstring_view text) {
  LocalTime time;
  time.year = numberAt(text, 1, 4);
  time.month = numberAt(text, 6, 2);
  time.day = numberAt(text, 9, 2);
  time.hour = numberAt(text, 12, 2);
  time.minute = numberAt(text, 15, 2);
  time.second = numberAt(text, 18, 2);
  return time;
}

std::wstring numberText(int number) {
  return number == 1 ? L"" : L" (" + numberToText(number) + L")";
}

/// Takes " (7)" from the end of a text; 1 where there is none.
int takeNumber(std::wstring_view& text) {
  constexpr std::size_t kMostDigits = 3;
  const std::size_t open = text.rfind(L" (");
  if (open == std::wstring_view::npos || !text.ends_with(L')')) return 1;
  const std::wstring_view digits = text.substr(open + 2, text.size() - open - 3);
  if (digits.empty() || digits.size() > kMostDigits || !std::ranges::all_of(digits, isDigit)) {
    return 1;
  }
  text = text.substr(0, open);
  return numberAt(digits, 0, digits.size());
}

/// Takes the mark of a draft from the end of a text. False where there is none.
bool takeDraftMark(std::wstring_view& text) {
  if (!text.ends_with(kDraftMark)) return false;
  text.remove_suffix(kDraftMark.size());
  return true;
}

std::optional<SafetyCopy> copyOf(const std::wstring& fileName) {
  const auto kind = kindOfFileName(fileName);
  if (!kind) return std::nullopt;
  std::wstring_view rest = titleOf(fileName);
  const int number = takeNumber(rest);
  const bool isDraft = takeDraftMark(rest);
  if (rest.size() < kMomentForm.size()) return std::nullopt;
  const std::size_t length = rest.size() - kMomentForm.size();
  const std::wstring_view moment = rest.substr(length);
  if (!isMoment(moment)) return std::nullopt;
  return SafetyCopy{fileName, std::wstring(rest.substr(0, length)), *kind, momentOf(moment), number,
                    isDraft};
}

/// Texts that stand in the order of the copies' age, each with the file's name at its end.
std::wstring ageText(const SafetyCopy& copy) {
  std::array<wchar_t, 16> number{};
  std::swprintf(number.data(), number.size(), L"%03d", copy.number);
  return momentText(copy.when) + number.data() + copy.fileName;
}
constexpr std::size_t kAgeLength = kMomentForm.size() + 3;

}  // namespace

bool SafetyCopies::moveIn(const fs::path& file) noexcept {
  try {
    // What is gone, or is a folder, is not moved.
    if (!files_.size(file)) return false;
    writer_.createFolder(folder_);
    const fs::path place = freePlaceFor(file, kNoMark);
    writer_.move(file, place);
    tidyUp(file, place);
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

void SafetyCopies::keepBeforeRemoving(const fs::path& file) {
  if (!files_.size(file)) return;
  std::wstring_view failure = L"This file cannot be deleted: ";
  try {
    const std::string bytes = files_.read(file, kMostBytes + 1);
    failure = L"This file cannot be deleted, because no copy of it can be kept: ";
    copy(file, bytes);
  } catch (const FileError&) {
    throw FileError(failure, file);
  }
}

std::optional<fs::path> SafetyCopies::keepBeforeWriting(const fs::path& note,
                                                        std::string_view bytes) noexcept {
  try {
    if (!files_.size(note)) return std::nullopt;
    const std::string old = files_.read(note, kMostBytes + 1);
    if (old == bytes) return std::nullopt;
    return copy(note, old);
  } catch (const std::exception&) {
    // A copy is a kindness. On a full disk, or without the right to make the folder, the user still
    // wants the note saved, and could not do anything about a message at each save.
    return std::nullopt;
  }
}

fs::path SafetyCopies::copy(const fs::path& file, std::string_view bytes) {
  if (bytes.size() > kMostBytes) throw FileError(L"This file is too large to be copied: ", file);
  const auto newest = newestOf(file, {});
  if (newest && holds(*newest, bytes)) return renewed(*newest, file);
  writer_.createFolder(folder_);
  fs::path place = freePlaceFor(file, kNoMark);
  writer_.writeSafely(place, bytes);
  dropOldest(place);
  return place;
}

fs::path SafetyCopies::renewed(const fs::path& copy, const fs::path& file) noexcept {
  try {
    const auto older = copyOf(copy.filename().wstring());
    if (older && momentText(older->when) == momentText(clock_.now())) return copy;
    fs::path place = freePlaceFor(file, kNoMark);
    writer_.move(copy, place);
    return place;
  } catch (const std::exception&) {
    return copy;
  }
}

std::size_t SafetyCopies::longestName() const {
  const std::size_t taken = folder_.native().size() + kLongestRest;
  return std::clamp(kLongestPath - std::min(taken, kLongestPath), kShortestName, kLongestName);
}

void SafetyCopies::tidyUp(const fs::path& file, const fs::path& movedTo) noexcept {
  try {
    const auto older = newestOf(file, movedTo);
    if (older && holds(*older, files_.read(movedTo, kNoLimit))) drop(*older);
    dropOldest(movedTo);
  } catch (const std::exception&) {
    // The next copy tidies up again.
  }
}

std::optional<fs::path> SafetyCopies::newestOf(const fs::path& note, const fs::path& except) const {
  const NameParts parts = partsOf(note, longestName());
  for (const SafetyCopy& copy : newestFirst()) {
    fs::path place = folder_ / copy.fileName;
    if (!copy.isDraft && equalIgnoringCase(copy.name, parts.name) &&
        equalIgnoringCase(extensionOf(copy.kind), parts.extension) && place != except) {
      return place;
    }
  }
  return std::nullopt;
}

bool SafetyCopies::holds(const fs::path& copy, std::string_view bytes) const noexcept {
  try {
    return files_.size(copy) == bytes.size() && files_.read(copy, kNoLimit) == bytes;
  } catch (const std::exception&) {
    return false;
  }
}

bool SafetyCopies::drop(const fs::path& copy) noexcept {
  try {
    writer_.remove(copy);
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

fs::path SafetyCopies::freePlaceFor(const fs::path& file, std::wstring_view mark) const {
  const NameParts parts = partsOf(file, longestName());
  std::wstring begin = parts.name;
  begin.append(momentText(clock_.now())).append(mark);
  // Ends, because no more files than these stay in the folder.
  for (int number = 1;; ++number) {
    fs::path place = folder_ / (begin + numberText(number) + parts.extension);
    if (!files_.size(place)) return place;
  }
}

std::vector<SafetyCopy> SafetyCopies::newestFirst() const {
  std::vector<std::wstring> byAge;
  for (const std::wstring& fileName : files_.files(folder_, L"*")) {
    if (const auto copy = copyOf(fileName)) byAge.push_back(ageText(*copy));
  }
  std::ranges::sort(byAge, nameComesBefore);
  std::vector<SafetyCopy> copies;
  for (; !byAge.empty(); byAge.pop_back()) {
    copies.push_back(*copyOf(byAge.back().substr(kAgeLength)));
  }
  return copies;
}

std::vector<SafetyCopy> SafetyCopies::dearestFirst() const {
  std::vector<SafetyCopy> copies = newestFirst();
  const std::wstring now = momentText(clock_.now());
  std::stable_partition(copies.begin(), copies.end(),
                        [&](const auto& copy) { return momentText(copy.when) <= now; });
  std::stable_partition(copies.begin(), copies.end(),
                        [](const auto& copy) { return !copy.isDraft; });
  return copies;
}

fs::path SafetyCopies::keepDraft(const Draft& draft, const std::optional<fs::path>& former) {
  if (draft.bytes.size() > kMostBytes) throw FileError(L"This is too large to be kept: ", folder_);
  fs::path place = writeDraft(draft, former);
  if (former && *former != place) drop(*former);
  return place;
}

fs::path SafetyCopies::writeDraft(const Draft& draft, const std::optional<fs::path>& former) {
  writer_.createFolder(folder_);
  if (former && isPlaceOf(*former, draft)) {
    try {
      writer_.writeSafely(*former, draft.bytes);
      return *former;
    } catch (const DiskFullError&) {
      throw;
    } catch (const FileError&) {
      // Open elsewhere, or protected: what is typed goes into a file of its own.
    }
  }
  fs::path place = freePlaceFor(draft.name + std::wstring(extensionOf(draft.kind)), kDraftMark);
  writer_.writeSafely(place, draft.bytes);
  dropOldest(place);
  return place;
}

bool SafetyCopies::isPlaceOf(const fs::path& place, const Draft& draft) {
  const auto copy = copyOf(place.filename().wstring());
  return copy && copy->isDraft && copy->kind == draft.kind && copy->name == draft.name;
}

std::optional<fs::path> SafetyCopies::newestDraftOf(const Draft& draft,
                                                    const std::optional<fs::path>& except) const {
  for (const SafetyCopy& copy : newestFirst()) {
    fs::path place = folder_ / copy.fileName;
    if (place != except && isPlaceOf(place, draft)) return place;
  }
  return std::nullopt;
}

std::string SafetyCopies::read(const SafetyCopy& copy) const {
  return files_.read(folder_ / copy.fileName, kNoLimit);
}

void SafetyCopies::remove(const SafetyCopy& copy) {
  writer_.remove(folder_ / copy.fileName);
}

void SafetyCopies::putBack(const SafetyCopy& copy, std::string_view bytes) noexcept {
  try {
    writer_.writeSafely(folder_ / copy.fileName, bytes);
  } catch (const std::exception&) {
    // As for a copy that cannot be made.
  }
}

void SafetyCopies::dropOldest(const fs::path& justMade) {
  // From the dearest of them on: the last may be locked for good, and would stop this each time.
  int failed = 0;
  for (const fs::path& copy : beyondTheLimits(justMade)) {
    if (!drop(copy) && ++failed == kMostFailedRemovals) return;
  }
}

std::vector<fs::path> SafetyCopies::beyondTheLimits(const fs::path& justMade) const {
  std::vector<fs::path> beyond;
  // The new copy is never the one to go, not even where the clock was set back, and takes no other
  // one's place where it is larger than all of them may be.
  std::uintmax_t bytes = files_.size(justMade).value_or(0);
  if (bytes > kMostBytes) bytes = 0;
  std::size_t kept = 1;
  bool isFull = false;
  const auto made = copyOf(justMade.filename().wstring());
  const bool ofDrafts = made && made->isDraft;
  for (const SafetyCopy& copy : dearestFirst()) {
    fs::path place = folder_ / copy.fileName;
    if (copy.isDraft != ofDrafts || place == justMade) continue;
    const std::uintmax_t size = files_.size(place).value_or(0);
    const bool isTooLarge = size > kMostBytes;
    isFull = isFull || kept == kMostCopies || (!isTooLarge && bytes + size > kMostBytes);
    if (isFull || isTooLarge) {
      beyond.push_back(std::move(place));
    } else {
      bytes += size;
      ++kept;
    }
  }
  return beyond;
}

}  // namespace kalvora
