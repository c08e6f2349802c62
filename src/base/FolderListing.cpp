#include "base/FolderListing.h"

#include <algorithm>
#include <iterator>

#include "base/Text.h"

namespace kalvora {

namespace {

/// Of the place of a name: no folder has names of two thousand million letters.
constexpr std::uint32_t kBeginBits = 0x7FFFFFFF;

bool isAsciiText(std::wstring_view text) {
  return std::ranges::all_of(text, [](wchar_t c) { return c < 0x80; });
}

}  // namespace

FileStamp stampOf(std::uint64_t bytes, std::int64_t written, std::int64_t listed) {
  const bool settled = written <= listed - FileStamp::kSettling;
  return {settled ? written : FileStamp::kUnsettled, static_cast<std::uint32_t>(bytes)};
}

bool isUnchanged(const FileStamp& before, const FileStamp& after) {
  return before.settled() && before.written == after.written && before.bytes == after.bytes;
}

FolderListing FolderListing::brokenOff() {
  FolderListing listing;
  listing.whole_ = false;
  return listing;
}

ListedFile FolderListing::operator[](std::size_t place) const {
  const Entry& entry = entries_[place];
  return {nameOf(entry), {entry.written, entry.bytes}, place};
}

bool FolderListing::lists(std::wstring_view name) const {
  // Names that differ in case only stand side by side.
  const auto found = std::ranges::partition_point(entries_, [&](const Entry& entry) {
    const std::wstring listed = nameOf(entry);
    return !equalIgnoringCase(listed, name) && nameComesBefore(listed, name);
  });
  return found != entries_.end() && equalIgnoringCase(nameOf(*found), name);
}

std::vector<std::wstring> FolderListing::names() const {
  std::vector<std::wstring> names;
  names.reserve(size());
  for (const Entry& entry : entries_) names.push_back(nameOf(entry));
  return names;
}

void FolderListing::append(std::wstring_view name, const FileStamp& stamp) {
  const bool isAscii = isAsciiText(name);
  const std::size_t begin = isAscii ? ascii_.size() : others_.size();
  if (isAscii) {
    std::ranges::transform(name, std::back_inserter(ascii_),
                           [](wchar_t c) { return static_cast<char>(c); });
    ascii_ += '\0';
  } else {
    others_ += name;
    others_ += L'\0';
  }
  entries_.push_back(
      {stamp.written, stamp.bytes, isAscii, static_cast<std::uint32_t>(begin) & kBeginBits});
}

std::wstring FolderListing::nameOf(const Entry& entry) const {
  if (entry.isAscii == 0) return others_.c_str() + entry.begin;
  const std::string_view name = ascii_.c_str() + entry.begin;
  return {name.begin(), name.end()};
}

void FolderListing::Builder::add(std::wstring_view name, const FileStamp& stamp) {
  files_.push_back({names_.size(), name.size(), stamp});
  names_ += name;
}

FolderListing FolderListing::Builder::build() {
  std::ranges::sort(files_, nameComesBefore, [this](const Found& file) { return nameOf(file); });
  FolderListing listing;
  listing.entries_.reserve(files_.size());
  for (const Found& file : files_) listing.append(nameOf(file), file.stamp);
  return listing;
}

}  // namespace kalvora
