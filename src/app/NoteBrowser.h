#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "app/Form1Ports.h"
#include "skin/SkinnedWindow.h"
#include "skin/TitleScroller.h"

namespace kalvora {

/// Shows the notes of the note folder in the main window, one at a time.
class NoteBrowser {
 public:
  /// All must outlive this object.
  NoteBrowser(const Form1Ports& ports, const Settings& settings, SkinnedWindow& window,
              TitleScroller& scroller);

  /// Read at a button: keeps the current index inside the list and shows the note there, or the
  /// "no notes" state where there are none.
  void Odczytaj_na_przycisku();
  /// Read: shows the note file `name` of the note folder. A file that vanished only brings the
  /// list up to date; one over 32767 bytes is refused with a message. Either way the current name
  /// is already the file's.
  void odczytaj(std::wstring_view name);

  /// Shows the first note at the next Odczytaj_na_przycisku.
  void goToFirst() { currentIndex_ = 0; }
  void goToPrevious();
  void goToNext();

  /// Reads the list of notes anew.
  void refresh();

  /// The full path of the note on show, or the keep-file name.
  const std::wstring& currentName() const { return currentName_; }
  std::int16_t currentIndex() const { return currentIndex_; }
  /// The note files in the order in which they are shown.
  const std::vector<std::wstring>& File1() const { return File1_; }

 private:
  void showNoNotes();
  std::wstring positionText() const;
  void showFile(std::wstring_view name);

  const Form1Ports& ports_;
  const Settings& settings_;
  SkinnedWindow& window_;
  TitleScroller& scroller_;
  std::filesystem::path notesPath_;
  std::vector<std::wstring> File1_;
  std::int16_t currentIndex_ = 0;
  std::wstring currentName_;
};

}  // namespace kalvora
