#pragma once

#include <windows.h>

#include <optional>

#include "notes/EditorControls.h"
#include "win32/toolkit/AnchoredLayout.h"

namespace kalvora {

/// Where the events of a page go.
class EditNotesPageEvents {
 public:
  virtual ~EditNotesPageEvents() = default;
  virtual void onPageCommand(const EditorControl& control, int notification) noexcept = 0;
  /// Esc was pressed in the text.
  virtual void onPageCancel() noexcept = 0;
};

/// The number of a control of the note editor in the dialog templates, and back.
int idOf(const EditorControl& control);
std::optional<EditorControl> editorControlOf(int id);

/// Whether a control says that the user typed, chose or ticked something in it.
bool tellsOfChange(const EditorControl& control, int notification);

/// The page of one kind in the dialog of the note editor: a child dialog, which its parent ends.
class EditNotesPage {
 public:
  /// Creates the page, hidden. Throws Failure.
  EditNotesPage(HWND parent, NoteKind kind, EditNotesPageEvents& events);
  EditNotesPage(const EditNotesPage&) = delete;
  EditNotesPage& operator=(const EditNotesPage&) = delete;

  HWND window() const { return window_; }
  HWND control(const EditorControl& control) const { return GetDlgItem(window_, idOf(control)); }
  void setPlace(const RECT& place) const;
  void setShown(bool shown) const { ShowWindow(window_, shown ? SW_SHOWNA : SW_HIDE); }

 private:
  static LRESULT CALLBACK listProcedure(HWND list, UINT message, WPARAM wParam,
                                        LPARAM lParam) noexcept;
  static LRESULT CALLBACK textProcedure(HWND text, UINT message, WPARAM wParam,
                                        LPARAM lParam) noexcept;
  void prepareControls();
  INT_PTR handle(HWND page, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  void onCommand(WPARAM wParam) noexcept;
  void onNotify(const NMHDR& notification) noexcept;
  void tellClickOnSelected(HWND list, LPARAM point) noexcept;

  NoteKind kind_;
  EditNotesPageEvents& events_;
  HWND window_ = nullptr;
  AnchoredLayout layout_;
  bool selectionTold_ = false;
};

}  // namespace kalvora
