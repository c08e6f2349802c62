#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "notes/SafetyCopies.h"

namespace kalvora {

/// What may be removed to make room on a full disk. Of drafts alone no more go than should have
/// been of use: a program that is killed meanwhile has lost what was removed.
enum class RoomFrom { Drafts, DraftsAndCopies };

/// Makes room on a full disk by removing drafts, and safety copies where they may go: the least
/// dear first, as where their folder is full, and last the one that was made for this very save. A
/// draft that is still being typed stays. Unless the room was of use in the end, they come back, so
/// that none is lost in vain.
class RoomMaker {
 public:
  /// `copies` must outlive this object. `justMade` is the copy of the note that is to be written.
  /// `needed` is the size, in bytes, of what is to be written.
  RoomMaker(SafetyCopies& copies, RoomFrom from, std::uintmax_t needed,
            std::optional<std::filesystem::path> justMade)
      : copies_(copies), from_(from), needed_(needed), justMade_(std::move(justMade)) {}
  /// Brings back what was removed, but for the copy just made: the note is as it was.
  ~RoomMaker();
  RoomMaker(const RoomMaker&) = delete;
  RoomMaker& operator=(const RoomMaker&) = delete;

  /// Removes one more copy. False where there is none that can be removed.
  bool removeOne();
  /// The note is written: what was removed stays away.
  void wasOfUse() noexcept { removed_.clear(); }

 private:
  struct Removed {
    SafetyCopy copy;
    std::string bytes;
  };

  bool isJustMade(const SafetyCopy& copy) const {
    return justMade_ && justMade_->filename() == copy.fileName;
  }
  void listOnce();
  void remove(const SafetyCopy& copy);

  bool mayGo(const SafetyCopy& copy) const;
  std::size_t mostOfUse() const;

  SafetyCopies& copies_;
  RoomFrom from_;
  std::uintmax_t needed_;
  std::optional<std::filesystem::path> justMade_;
  std::optional<std::vector<SafetyCopy>> left_;  // the next one at the end
  std::vector<Removed> removed_;
  int failed_ = 0;
};

/// Writes, and where the disk is full again and again, as long as there is something that makes
/// room for it. `justMade` as above. Throws what `write` throws, DiskFullError where nothing is
/// left.
template <typename Write>
void writeMakingRoom(SafetyCopies& copies, RoomFrom from, std::uintmax_t needed,
                     std::optional<std::filesystem::path> justMade, const Write& write) {
  RoomMaker room(copies, from, needed, std::move(justMade));
  for (;;) {
    try {
      write();
      return room.wasOfUse();
    } catch (const DiskFullError&) {
      if (!room.removeOne()) throw;
    }
  }
}

}  // namespace kalvora
