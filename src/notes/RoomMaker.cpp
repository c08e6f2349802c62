#include "notes/RoomMaker.h"

#include <algorithm>
#include <utility>

#include "base/Errors.h"

namespace kalvora {

namespace {

/// A copy that is locked costs the user a quarter of a second. A few may be open elsewhere; where
/// more are, it is the folder that lets nothing go.
constexpr int kMostFailures = 8;
/// What a removed file gives back on most disks at least, in bytes; but the smallest may stand in
/// the disk's own table, and another program may be faster.
constexpr std::uintmax_t kCluster = 4096;
constexpr std::size_t kMostInVain = 16;

}  // namespace

RoomMaker::~RoomMaker() {
  // The newest first: should the room be taken meanwhile, they are worth more.
  for (; !removed_.empty(); removed_.pop_back()) {
    copies_.putBack(removed_.back().copy, removed_.back().bytes);
  }
}

bool RoomMaker::removeOne() {
  listOnce();
  if (removed_.size() == mostOfUse()) return false;
  while (!left_->empty() && failed_ < kMostFailures) {
    const SafetyCopy copy = std::move(left_->back());
    left_->pop_back();
    try {
      remove(copy);
      return true;
    } catch (const FileError&) {
      ++failed_;
    }
  }
  return false;
}

void RoomMaker::listOnce() {
  if (left_) return;
  left_ = copies_.dearestFirst();
  std::erase_if(*left_, [this](const auto& copy) { return !mayGo(copy); });
  // By its name it may be older than others: the clock was set back.
  std::stable_partition(left_->begin(), left_->end(),
                        [this](const auto& copy) { return isJustMade(copy); });
}

bool RoomMaker::mayGo(const SafetyCopy& copy) const {
  if (copy.isDraft) return !copies_.isBeingTyped(copy);
  return from_ == RoomFrom::DraftsAndCopies;
}

std::size_t RoomMaker::mostOfUse() const {
  if (from_ == RoomFrom::DraftsAndCopies) return SIZE_MAX;
  return static_cast<std::size_t>(needed_ / kCluster) + kMostInVain;
}

void RoomMaker::remove(const SafetyCopy& copy) {
  if (isJustMade(copy)) return copies_.remove(copy);
  Removed removed{copy, copies_.read(copy)};
  removed_.reserve(removed_.size() + 1);  // Nothing may fail once the file is gone.
  copies_.remove(copy);
  removed_.push_back(std::move(removed));
}

}  // namespace kalvora
