#include "notes/SafetyCopies.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <limits>
#include <utility>

#include "base/Errors.h"
#include "base/Text.h"
#include "notes/RoomMaker.h"

namespace kalvora {

namespace fs = std::filesystem;

namespace {

/// A longer name of a note is cut in its copy: a file name has 255 characters at most, and a path
/// 259 where the system was not set up for more.
constexpr std::size_t kLongestName = 220;
constexpr std::size_t kLongestPath = 259;
/// Of a folder that lies so deep that nothing fits, something is tried all the same.
constexpr std::size_t kShortestName = 20;
constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max();
/// A file that is locked costs the user a quarter of a second at each save; no more of them than
/// this are tried.
constexpr int kMostFailedRemovals = 2;
/// No note that the program makes has more bytes, not even as a draft in UTF-8.
constexpr std::uintmax_t kLargestOrdinary = 128U << 10U;

LocalTime twoDaysAfter(LocalTime time) {
  using std::chrono::day;
  using std::chrono::month;
  const std::chrono::year_month_day date =
      std::chrono::sys_days(std::chrono::year(time.year) /
                            month(static_cast<unsigned>(time.month)) /
                            day(static_cast<unsigned>(time.day))) +
      std::chrono::days(2);
  time.year = static_cast<int>(date.year());
  time.month = static_cast<int>(static_cast<unsigned>(date.month()));
  time.day = static_cast<int>(static_cast<unsigned>(date.day()));
  return time;
}

/// Such a file has its place among those of its size, so that it pushes no ordinary one out.
bool isLarge(std::uintmax_t bytes) {
  return bytes > kLargestOrdinary;
}

}  // namespace

bool SafetyCopies::moveIn(const fs::path& file) noexcept {
  try {
    // What is gone, or is a folder, is not moved.
    if (!files_.size(file)) return false;
    writer_.createFolder(folder_);
    const fs::path place = freePlaceFor(file, CopyKind::Copy);
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
  if (newest && holds(*newest, bytes)) return renewed(*newest, file, CopyKind::Copy);
  writer_.createFolder(folder_);
  fs::path place = freePlaceFor(file, CopyKind::Copy);
  writeMakingRoom(*this, RoomFrom::Drafts, bytes.size(), {},
                  [&] { writer_.writeSafely(place, bytes); });
  dropOldest(place);
  return place;
}

fs::path SafetyCopies::renewed(const fs::path& copy, const fs::path& file, CopyKind kind) noexcept {
  try {
    const auto older = copyOf(copy.filename().wstring());
    if (older && momentText(older->when) == momentText(clock_.now())) return copy;
    fs::path place = freePlaceFor(file, kind);
    writer_.move(copy, place);
    return place;
  } catch (const std::exception&) {
    return copy;
  }
}

std::size_t SafetyCopies::longestName() const {
  const std::size_t taken = folder_.native().size() + 1 + kLongestCopyEnding;
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
  const CopyNameParts parts = copyNamePartsOf(note, longestName(), kinds_());
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

fs::path SafetyCopies::freePlaceFor(const fs::path& file, CopyKind kind) const {
  const CopyNameParts parts = copyNamePartsOf(file, longestName(), kinds_());
  const LocalTime now = clock_.now();
  // Ends, because no more files than these stay in the folder.
  for (int number = 1;; ++number) {
    fs::path place = folder_ / copyFileName(parts, now, kind, number);
    if (!files_.size(place)) return place;
  }
}

std::vector<SafetyCopy> SafetyCopies::newestFirst() const {
  return newestCopiesFirst(files_.files(folder_, L"*"), kinds_());
}

std::vector<SafetyCopy> SafetyCopies::dearestFirst() const {
  std::vector<SafetyCopy> copies = newestFirst();
  // Somebody who travels, and the end of summer time, set the clock back by a day at most.
  const std::wstring future = momentText(twoDaysAfter(clock_.now()));
  std::stable_partition(copies.begin(), copies.end(),
                        [&](const auto& copy) { return momentText(copy.when) < future; });
  std::stable_partition(copies.begin(), copies.end(),
                        [](const auto& copy) { return !copy.isDraft; });
  return copies;
}

fs::path SafetyCopies::keepDraft(const Draft& draft, const std::optional<fs::path>& former) {
  if (draft.bytes.size() > kMostBytes) throw FileError(L"This is too large to be kept: ", folder_);
  fs::path place = writeDraft(draft, former);
  if (former && *former != place) dropDraft(*former);
  beingTyped_.insert(place);
  return place;
}

void SafetyCopies::leaveDraft(const fs::path& place) noexcept {
  beingTyped_.erase(place);
}

void SafetyCopies::dropDraft(const fs::path& place) noexcept {
  leaveDraft(place);
  drop(place);
}

fs::path SafetyCopies::writeDraft(const Draft& draft, const std::optional<fs::path>& former) {
  writer_.createFolder(folder_);
  if (former && isPlaceOf(*former, draft)) {
    try {
      writeMakingRoom(*this, RoomFrom::Drafts, draft.bytes.size(), {},
                      [&] { writer_.writeSafely(*former, draft.bytes); });
      return *former;
    } catch (const DiskFullError&) {
      throw;
    } catch (const FileError&) {
      // Open elsewhere, or protected: what is typed goes into a file of its own.
    }
  }
  fs::path place =
      freePlaceFor(draft.name + std::wstring(extensionOf(draft.kind)), CopyKind::Draft);
  writeMakingRoom(*this, RoomFrom::Drafts, draft.bytes.size(), {},
                  [&] { writer_.writeSafely(place, draft.bytes); });
  dropOldest(place);
  return place;
}

fs::path SafetyCopies::renewDraft(const fs::path& place) {
  const auto draft = copyOf(place.filename().wstring());
  if (!draft) return place;
  return renewed(place, draft->name + std::wstring(extensionOf(draft->kind)), CopyKind::Draft);
}

bool SafetyCopies::isPlaceOf(const fs::path& place, const Draft& draft) {
  const auto copy = copyOf(place.filename().wstring());
  return copy && copy->isDraft && copy->kind == draft.kind && copy->name == draft.name;
}

bool SafetyCopies::isBeingTyped(const SafetyCopy& draft) const {
  return beingTyped_.contains(folder_ / draft.fileName);
}

void SafetyCopies::hearDraftFault(std::wstring_view reason) {
  draftFault_ = reason;
}

std::optional<fs::path> SafetyCopies::newestLeftDraftOf(const Draft& draft) const {
  for (const SafetyCopy& copy : newestFirst()) {
    fs::path place = folder_ / copy.fileName;
    if (isPlaceOf(place, draft) && !beingTyped_.contains(place)) return place;
  }
  return std::nullopt;
}

std::string SafetyCopies::read(const SafetyCopy& copy) const {
  return files_.read(folder_ / copy.fileName, kNoLimit);
}

std::uintmax_t SafetyCopies::size(const SafetyCopy& copy) const {
  return files_.size(folder_ / copy.fileName).value_or(0);
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
  const std::uintmax_t newSize = files_.size(justMade).value_or(0);
  // The new copy is never the one to go, not even where the clock was set back, and takes no other
  // one's place where it is larger than all of them may be.
  std::uintmax_t bytes = newSize > kMostBytes ? 0 : newSize;
  std::size_t kept = 1;
  bool isFull = false;
  const auto made = copyOf(justMade.filename().wstring());
  const bool ofDrafts = made && made->isDraft;
  for (const SafetyCopy& copy : dearestFirst()) {
    fs::path place = folder_ / copy.fileName;
    if (copy.isDraft != ofDrafts || place == justMade) continue;
    const std::uintmax_t size = files_.size(place).value_or(0);
    if (isLarge(size) != isLarge(newSize) || isBeingTyped(copy)) continue;
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
