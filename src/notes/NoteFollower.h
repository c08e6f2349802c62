#pragma once

#include <string_view>

namespace kalvora {

/// Who keeps something that belongs to a note beside its file, and goes with it, or shows what is
/// in it. Notes are known by their file names, without folder and without regard to case. No call
/// may throw for a setting that cannot be stored: the note's file is changed already, or is about
/// to be.
class NoteFollower {
 public:
  virtual ~NoteFollower() = default;
  /// What belongs to one note belongs to another one as well.
  virtual void noteCopied(std::wstring_view from, std::wstring_view to) = 0;
  /// What belonged to one note belongs to another one from now on.
  virtual void noteRenamed(std::wstring_view from, std::wstring_view to) = 0;
  virtual void noteDeleted(std::wstring_view name) = 0;
  /// Its file holds something else by now, or is new.
  virtual void noteWritten(std::wstring_view name) = 0;
};

}  // namespace kalvora
