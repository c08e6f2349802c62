#include "notes/RoomMaker.h"

#include <algorithm>
#include <utility>

#include "base/Errors.h"

namespace kalvora {

namespace {

/// A copy that is locked costs the user a quarter of a second. A few may be open elsewhere; where
/// more are, it is the folder that lets nothing go.
constexpr int kMostFailures = 8;

}  // namespace

RoomMaker::~RoomMaker() {
  // The newest first: should the room be taken meanwhile, they are worth more.
  for (; !removed_.empty(); removed_.pop_back()) {
    copies_.putBack(removed_.back().copy, removed_.back().bytes);
  }
}

bool RoomMaker::removeOne() {
  listOnce();
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
  if (from_ == RoomFrom::Drafts && !holdsEnough(*left_)) left_->clear();
  // By its name it may be older than others: the clock was set back.
  std::stable_partition(left_->begin(), left_->end(),
                        [this](const auto& copy) { return isJustMade(copy); });
}

bool RoomMaker::mayGo(const SafetyCopy& copy) const {
  if (copy.isDraft) return !copies_.isBeingTyped(copy);
  return from_ == RoomFrom::DraftsAndCopies;
}

bool RoomMaker::holdsEnough(const std::vector<SafetyCopy>& drafts) const {
  std::uintmax_t bytes = 0;
  for (const SafetyCopy& draft : drafts) bytes += copies_.size(draft);
  return bytes >= needed_;
}

void RoomMaker::remove(const SafetyCopy& copy) {
  if (isJustMade(copy)) return copies_.remove(copy);
  Removed removed{copy, copies_.read(copy)};
  removed_.reserve(removed_.size() + 1);  // Nothing may fail once the file is gone.
  copies_.remove(copy);
  removed_.push_back(std::move(removed));
}

}  // namespace kalvora
