#include "notes/LiveDraft.h"

#include <exception>
#include <utility>

#include "base/Errors.h"

namespace kalvora {

namespace fs = std::filesystem;

void LiveDraft::begin() noexcept {
  end();
  try {
    begun_.emplace(typed_());
    faultHeard_ = false;
  } catch (const std::exception&) {
    // As in keep(): nothing of this note is kept then.
  }
}

void LiveDraft::end() noexcept {
  begun_.reset();
  if (place_) copies_.leaveDraft(*place_);
  place_.reset();
  earlier_.reset();
}

void LiveDraft::keep() noexcept {
  if (!begun_) return;
  try {
    store(typed_());
    faultHeard_ = false;
  } catch (const Failure& failure) {
    // The step that the user wants comes first. It is told when nothing waits for its message.
    if (!std::exchange(faultHeard_, true)) copies_.hearDraftFault(failure.message());
  } catch (const std::exception&) {
    // There is not enough memory, not for a message either.
  }
}

void LiveDraft::saved() noexcept {
  if (!begun_) return;
  try {
    TypedNote now = typed_();
    const Draft draft = draftOf(now, codePage_, copies_.longestName());
    if (!draft.canBeSaved) return store(now);
    drop();
    dropEqual(draft);
    begun_.emplace(std::move(now));
  } catch (const std::exception&) {
    // As above. The draft stays, and is one too many.
  }
}

void LiveDraft::store(const TypedNote& now) {
  // The user took it all back.
  if (now == *begun_ || isBlank(now)) return drop();
  const Draft draft = draftOf(now, codePage_, copies_.longestName());
  if (isStored(draft)) return;
  if (isKeptElsewhere(draft)) return drop();
  // What could be kept before stays where this cannot be.
  place_ = copies_.keepDraft(draft, place_);
}

/// Of an earlier editing, which had come as far.
void LiveDraft::dropEqual(const Draft& draft) {
  const auto other = copies_.newestLeftDraftOf(draft);
  if (other && holds(*other, draft.bytes)) copies_.dropDraft(*other);
}

bool LiveDraft::isStored(const Draft& draft) const {
  return place_ && SafetyCopies::isPlaceOf(*place_, draft) && holds(*place_, draft.bytes);
}

bool LiveDraft::isKeptElsewhere(const Draft& draft) {
  const std::wstring noteName = draft.name + std::wstring(extensionOf(draft.kind));
  if (holds(notesFolder_ / noteName, draft.bytes)) return true;
  const auto other = copies_.newestLeftDraftOf(draft);
  if (!other || !holds(*other, draft.bytes)) return false;
  if (other != earlier_) earlier_ = copies_.renewDraft(*other);
  return true;
}

bool LiveDraft::holds(const fs::path& file, std::string_view bytes) const {
  try {
    return files_.size(file) == bytes.size() && files_.read(file, bytes.size()) == bytes;
  } catch (const FileError&) {
    // Whatever stands in there, nobody could read it.
    return false;
  }
}

void LiveDraft::drop() {
  if (place_) copies_.dropDraft(*place_);
  place_.reset();
}

}  // namespace kalvora
