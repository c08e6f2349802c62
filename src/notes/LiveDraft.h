#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>

#include "base/CodePage.h"
#include "base/FileSystem.h"
#include "notes/Draft.h"
#include "notes/SafetyCopies.h"

namespace kalvora {

/// What a LiveDraft knows of one editing.
struct DraftedEditing {
  std::optional<TypedNote> begun;              // what was shown at first
  std::optional<std::filesystem::path> place;  // of the draft
  /// The draft of an earlier editing that holds the same.
  std::optional<std::filesystem::path> earlier;
  bool faultHeard = false;  // since it was kept last
};

/// An editing that something else came over, and that is to go on afterwards.
struct PausedDraft {
  DraftedEditing editing;
  TypedNote typed;
  /// Whether anything was typed by then.
  bool changed() const { return editing.begun && *editing.begun != typed; }
  /// Whether the name was.
  bool changedName() const { return editing.begun && editing.begun->name != typed.name; }
};

/// What is typed in one window or page and not saved, as a draft among the safety copies: one file
/// while one note is edited, written anew as typing goes on. A draft that cannot be made is left
/// out; the copies hear of it, to be told once.
class LiveDraft {
 public:
  /// `typed` tells what the fields hold now. All must outlive this object.
  LiveDraft(std::filesystem::path notesFolder, const FileSystem& files, const CodePage& codePage,
            SafetyCopies& copies, std::function<TypedNote()> typed)
      : notesFolder_(std::move(notesFolder)),
        files_(files),
        codePage_(codePage),
        copies_(copies),
        typed_(std::move(typed)) {}

  /// A note is on show, in which nothing is typed yet. The draft of the one before stays.
  void begin() noexcept;
  /// Nothing is on show any more.
  void end() noexcept;
  /// Keeps what is typed now, where it is not what was shown at first and stands in no file yet.
  void keep() noexcept;
  /// What is typed now is not to be saved: it stays a draft, and counts as not typed from here on.
  void giveUp() noexcept;
  /// The note has another name, and was shown under that.
  void renamed(std::wstring_view name);
  /// What was shown at first; nothing while nothing is on show.
  const std::optional<TypedNote>& begun() const { return now_.begun; }
  /// Whether what is typed now could not be kept when that was tried last.
  bool isMissing() const { return now_.faultHeard; }
  /// Keeps what is typed now and hands it over; nothing is on show then.
  PausedDraft pause();
  /// What was typed by then is on show again.
  void resume(const PausedDraft& paused);
  /// Keeps what was typed before the pause, where that failed.
  void keepPaused(PausedDraft& paused) noexcept;
  /// What was typed before the pause is not to be saved, and stays a draft.
  void giveUpPaused(PausedDraft& paused) noexcept;
  /// Whether what the fields hold now is not what was shown at first.
  bool changed() const { return now_.begun && *now_.begun != typed_(); }
  /// What was typed before the pause was saved, and is what `paused` holds now.
  void savedPaused(PausedDraft& paused) noexcept;
  /// What is typed now was saved: it needs no draft, unless the note could not store all of it.
  void saved() noexcept;

 private:
  void keep(const std::function<TypedNote()>& typed) noexcept;
  void store(const TypedNote& typed);
  bool isStored(const Draft& draft) const;
  /// In its note, or in a draft of an earlier editing, which so was typed again.
  bool isKeptElsewhere(const Draft& draft);
  bool holds(const std::filesystem::path& file, std::string_view bytes) const;
  void drop();
  void dropEqual(const Draft& draft);

  std::filesystem::path notesFolder_;
  const FileSystem& files_;
  const CodePage& codePage_;
  SafetyCopies& copies_;
  std::function<TypedNote()> typed_;
  DraftedEditing now_;
};

}  // namespace kalvora
