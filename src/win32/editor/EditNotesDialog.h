#pragma once

#include <windows.h>

#include <array>
#include <chrono>
#include <memory>

#include "notes/All_Notes_frmView.h"
#include "win32/editor/EditNotesIds.h"
#include "win32/editor/EditNotesPage.h"
#include "win32/toolkit/DialogFrame.h"
#include "win32/toolkit/EventDelivery.h"

namespace kalvora {

class All_Notes_frm;

/// The dialog of the note editor. It lives as long as the program; its window only while it is
/// open.
class EditNotesDialog final : public All_Notes_frmView,
                              private DialogFrame,
                              private EditNotesPageEvents {
 public:
  /// `form` gets events only while the window is open; the others must outlive this object.
  EditNotesDialog(HWND owner, ModelessDialogs& dialogs, const EventDelivery& deliver,
                  All_Notes_frm& form)
      : DialogFrame(owner, dialogs), deliver_(deliver), form_(form) {}
  // While its pages are there.
  ~EditNotesDialog() override { destroy(); }

  /// Opens the dialog, or brings it to the front where it is open. Throws Failure where it cannot
  /// be created.
  void open();
  using DialogFrame::window;

  void createPages(NoteKinds kinds) override;
  std::wstring text(const EditorControl& control) const override;
  void setText(const EditorControl& control, std::wstring_view text) override;
  std::size_t caret(const EditorControl& control) const override;
  void setCaret(const EditorControl& control, std::size_t caret) override;
  int selection(const EditorControl& control) const override;
  void select(const EditorControl& control, int position) override;
  void setItems(const EditorControl& control, const std::vector<std::wstring>& items) override;
  std::chrono::year_month_day date(const EditorControl& control) const override;
  void setDate(const EditorControl& control, std::chrono::year_month_day date) override;
  bool ticked(const EditorControl& control) const override;
  void setTicked(const EditorControl& control, bool ticked) override;
  void setEnabled(const EditorControl& control, bool enabled) override;
  void centre() override { DialogFrame::centre(); }
  void showPage(NoteKind kind) override;
  void startNaming(NoteKind kind) override;
  void showPiece(const EditorControl& control, std::size_t begin, std::size_t length) override;
  void startFinding() override;
  void setNotice(std::wstring_view text) override;
  void unload() noexcept override { destroy(); }
  void startDraftTimer(int interval) override;
  void stopDraftTimer() override;
  std::optional<std::size_t> chooseCopy(const std::vector<SafetyCopy>& copies,
                                        const CopyPreview& preview) override;
  void showError(std::wstring_view title, std::wstring_view text) override;
  bool ask(std::wstring_view title, std::wstring_view text) override;

 private:
  INT_PTR handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept override;
  void resized() noexcept override;
  bool takesMessage(MSG& message) noexcept override;
  void onPageCommand(const EditorControl& control, int notification) noexcept override;
  void onPageCancel() noexcept override { close(); }
  void onCommand(WPARAM wParam) noexcept;
  void find() noexcept;
  void goTo(HWND box);
  void onTab() noexcept;
  bool keyDown(const MSG& message) noexcept;
  void close() noexcept;

  void createTab(NoteKind kind);
  void createPage(NoteKind kind);
  RECT pagePlace() const;
  HWND tabs() const { return control(IDC_TBSOPTIONS); }
  const EditNotesPage* page(NoteKind kind) const {
    return pages_[static_cast<std::size_t>(kind)].get();
  }
  HWND handleOf(const EditorControl& control) const;

  const EventDelivery& deliver_;
  All_Notes_frm& form_;
  std::array<std::unique_ptr<EditNotesPage>, kNoteKinds.size()> pages_;
  // What the program sets is no typing: the change events that it causes are left out.
  bool setting_ = false;
  // The Enter that led here from another window, which must not write over what it led to.
  bool enterHeldOn_ = false;
};

}  // namespace kalvora
