#include "notes/LiveDraft.h"

#include <exception>
#include <utility>

#include "base/Errors.h"

namespace kalvora {

namespace fs = std::filesystem;

void LiveDraft::begin() noexcept {
  end();
  try {
    now_.begun.emplace(typed_());
    now_.faultHeard = false;
  } catch (const std::exception&) {
    // As in keep(): nothing of this note is kept then.
  }
}

void LiveDraft::end() noexcept {
  now_.begun.reset();
  if (now_.place) copies_.leaveDraft(*now_.place);
  now_.place.reset();
  now_.earlier.reset();
}

void LiveDraft::giveUp() noexcept {
  keep();
  begin();
}

void LiveDraft::renamed(std::wstring_view name) {
  if (now_.begun) now_.begun->name = name;
}

void LiveDraft::keep() noexcept {
  keep(typed_);
}

void LiveDraft::keep(const std::function<TypedNote()>& typed) noexcept {
  if (!now_.begun) return;
  try {
    store(typed());
    now_.faultHeard = false;
  } catch (const Failure& failure) {
    // The step that the user wants comes first. It is told when nothing waits for its message.
    if (!std::exchange(now_.faultHeard, true)) copies_.hearDraftFault(failure.message());
  } catch (const std::exception&) {
    // There is not enough memory, not for a message either.
  }
}

void LiveDraft::saved() noexcept {
  if (!now_.begun) return;
  try {
    TypedNote now = typed_();
    const Draft draft = draftOf(now, codePage_, copies_.longestName());
    if (!draft.canBeSaved) return store(now);
    drop();
    dropEqual(draft);
    now_.begun.emplace(std::move(now));
  } catch (const std::exception&) {
    // As above. The draft stays, and is one too many.
  }
}

PausedDraft LiveDraft::pause() {
  keep();
  return {std::exchange(now_, {}), typed_()};
}

void LiveDraft::resume(const PausedDraft& paused) {
  end();
  now_ = paused.editing;
}

void LiveDraft::keepPaused(PausedDraft& paused) noexcept {
  if (!paused.editing.faultHeard) return;
  std::swap(now_, paused.editing);
  keep([&paused] { return paused.typed; });
  std::swap(now_, paused.editing);
}

void LiveDraft::giveUpPaused(PausedDraft& paused) noexcept {
  keepPaused(paused);
  std::swap(now_, paused.editing);
  end();
  std::swap(now_, paused.editing);
}

void LiveDraft::savedPaused(PausedDraft& paused) noexcept {
  try {
    paused.editing.begun = paused.typed;
    std::swap(now_, paused.editing);
    drop();
    std::swap(now_, paused.editing);
  } catch (const std::exception&) {
    // As in saved().
  }
}

void LiveDraft::store(const TypedNote& typed) {
  // The user took it all back.
  if (typed == *now_.begun || isBlank(typed)) return drop();
  const Draft draft = draftOf(typed, codePage_, copies_.longestName());
  if (isStored(draft)) return;
  if (isKeptElsewhere(draft)) return drop();
  // What could be kept before stays where this cannot be.
  now_.place = copies_.keepDraft(draft, now_.place);
}

/// Of an earlier editing, which had come as far.
void LiveDraft::dropEqual(const Draft& draft) {
  const auto other = copies_.newestLeftDraftOf(draft);
  if (other && holds(*other, draft.bytes)) copies_.dropDraft(*other);
}

bool LiveDraft::isStored(const Draft& draft) const {
  return now_.place && SafetyCopies::isPlaceOf(*now_.place, draft) &&
         holds(*now_.place, draft.bytes);
}

bool LiveDraft::isKeptElsewhere(const Draft& draft) {
  const std::wstring noteName = draft.name + std::wstring(extensionOf(draft.kind));
  if (holds(notesFolder_ / noteName, draft.bytes)) return true;
  const auto other = copies_.newestLeftDraftOf(draft);
  if (!other || !holds(*other, draft.bytes)) return false;
  if (other != now_.earlier) now_.earlier = copies_.renewDraft(*other);
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
  if (now_.place) copies_.dropDraft(*now_.place);
  now_.place.reset();
}

}  // namespace kalvora
