#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/SettingsStore.h"
#include "base/WindowMemory.h"
#include "find/FindHost.h"
#include "find/FindNotesView.h"
#include "find/FindReader.h"
#include "find/SearchedNotes.h"

namespace kalvora {

/// What the window "Find" works with. All of it outlives the presenter.
struct FindPorts {
  NoteFiles files;
  SettingsStore& settings;
  FindNotesView& view;
  FindHost& host;
};

enum class FindColumn { Name, Kind, Text };

/// The presenter of the window "Find": the notes that have the words in the field, while they are
/// typed. It can be opened again after it was closed, and does nothing and holds no notes while it
/// is closed.
class FindNotes {
 public:
  explicit FindNotes(const FindPorts& ports);

  /// Load the form: the size that the user chose last, and the notes of now.
  void Form_Load();
  /// The user comes to the window: what changed meanwhile is read.
  void activated();
  /// The view's timer: reads on, or reads what changed.
  void tick();
  /// The words in the field are others: shows the notes that have them.
  void search();
  /// Opens the note of a row in the note editor, at the place that the row shows.
  void openRow(std::size_t row);
  /// Takes the form away, and remembers its size where it is another.
  void unload() noexcept;

  /// What stands in a row; nothing where the rows have just become fewer and the view does not know
  /// yet.
  std::wstring text(std::size_t row, FindColumn column) const;

 private:
  void refresh();
  void readOn();
  void finishReading();
  const SearchedNotes& notes() const { return isFirstReading() ? reader_->found() : notes_; }
  bool isFirstReading() const { return reader_ && !hasRead_; }
  void searchOn();
  const SearchedNote& noteAt(std::size_t row) const { return notes().notes()[found_[row]]; }
  std::optional<std::wstring> selectedName() const;
  std::optional<std::size_t> rowOf(std::wstring_view name) const;
  void showRows(const std::optional<std::size_t>& selected);
  void tell();
  std::wstring notice() const;

  const NoteFiles files_;
  WindowMemory memory_;
  FindNotesView& view_;
  FindHost& host_;

  bool open_ = false;
  Size designed_;
  std::optional<FindReader> reader_;  // while it reads
  bool hasRead_ = false;              // all notes, since the window was opened
  SearchedNotes notes_;
  SearchWords words_;
  std::vector<std::uint32_t> found_;  // by number, in their order
  std::size_t searched_ = 0;          // how many notes were looked through for the words
  std::vector<std::wstring> faulty_;
  // What the notes were read for.
  unsigned changes_ = 0;
  NoteKinds kinds_;
  int looksAway_ = 0;  // since the folder could not be listed; 0 where it could
};

}  // namespace kalvora
