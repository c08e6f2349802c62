#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Clock.h"
#include "base/SettingsStore.h"
#include "base/WindowMemory.h"
#include "coming/ComingHost.h"
#include "coming/ComingNotes.h"
#include "coming/ComingReader.h"
#include "coming/ComingRows.h"
#include "coming/ComingSpan.h"
#include "coming/WhatComesView.h"

namespace kalvora {

/// What the window of what comes works with. All of it outlives the presenter.
struct WhatComesPorts {
  NoteFiles files;
  const Clock& clock;
  SettingsStore& settings;
  WhatComesView& view;
  ComingHost& host;
};

/// The columns of the list but the date, which the platform writes.
enum class ComingColumn { Time, Name, Kind, State };

/// The presenter of the window "What comes": the moments ahead at which notes are due, with what is
/// snoozed and what was missed. It can be opened again after it was closed, and does nothing while
/// it is closed.
class WhatComes {
 public:
  explicit WhatComes(const WhatComesPorts& ports);

  /// Load the form: the span and the size that the user chose last, and the notes of now.
  void Form_Load();
  /// The user comes to the window: what changed meanwhile is shown.
  void activated();
  /// The view's timer: reads on, or shows what changed.
  void tick();
  void chooseSpan(ComingSpan span);
  /// Goes to the first row of a day, over a longer span where it lies beyond this one; a day on
  /// which nothing is due is told.
  void chooseDay(std::chrono::local_days day);
  /// Opens the note of a row in the note editor.
  void openRow(std::size_t row);
  /// Takes the form away, and remembers span and size where they are others.
  void unload() noexcept;

  /// Nothing where the rows have just become fewer and the view does not know yet.
  std::optional<ComingRow> row(std::size_t number);
  std::wstring text(const ComingRow& row, ComingColumn column) const;
  /// The days of a month on which something is due: a bit each, the first the lowest.
  std::uint32_t boldDays(std::chrono::year_month month);

 private:
  void refresh();
  void readOn();
  std::optional<ComingRow> selectedRow();
  void showRows(const std::optional<ComingRow>& selected);
  void tell();
  std::wstring notice() const;
  std::wstring emptyDayNotice() const;
  void loadSettings();
  void storeSettings();

  const NoteFiles files_;
  const Clock& clock_;
  WindowMemory memory_;
  WhatComesView& view_;
  ComingHost& host_;

  bool open_ = false;
  ComingSpan span_ = ComingSpan::Week;
  Size designed_;
  std::optional<ComingReader> reader_;  // while it reads
  ComingNotes notes_;
  ComingRows rows_{notes_};
  bool away_ = false;                                // the folder, when it was listed last
  std::optional<std::chrono::local_days> emptyDay_;  // a day without rows that the user chose
  std::vector<std::wstring> faulty_;
  // What the notes were read for.
  unsigned changes_ = 0;
  NoteKinds kinds_;
  // What the rows were made from.
  ComingMarks marks_;
  HourFormat hours_{};
  LocalMinute shownAt_{};
};

}  // namespace kalvora
