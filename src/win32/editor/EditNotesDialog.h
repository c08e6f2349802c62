#pragma once

#include <windows.h>

#include <array>
#include <memory>

#include "base/EventGuard.h"
#include "notes/All_Notes_frmView.h"
#include "win32/editor/EditNotesPage.h"
#include "win32/toolkit/AnchoredLayout.h"
#include "win32/toolkit/ModelessDialogs.h"

namespace kalvora {

class All_Notes_frm;

/// The dialog of the note editor. It lives as long as the program; its window only while it is
/// open. Every event of the user goes to All_Notes_frm through the event guard.
class EditNotesDialog final : public All_Notes_frmView,
                              private ModelessDialog,
                              private EditNotesPageEvents {
 public:
  /// Both outlive this object.
  EditNotesDialog(EventGuard& guard, ModelessDialogs& dialogs) : guard_(guard), dialogs_(dialogs) {}
  ~EditNotesDialog() override { unload(); }
  EditNotesDialog(const EditNotesDialog&) = delete;
  EditNotesDialog& operator=(const EditNotesDialog&) = delete;

  /// From here on events go to `form`, which must outlive the window.
  void attach(All_Notes_frm& form) { form_ = &form; }
  /// Opens the dialog in front of `owner`, or brings it to the front where it is open. Throws
  /// Failure where it cannot be created.
  void open(HWND owner);
  /// The window; null while the dialog is closed.
  HWND window() const { return window_; }

  std::wstring text(const EditorControl& control) const override;
  void setText(const EditorControl& control, std::wstring_view text) override;
  std::size_t caret(const EditorControl& control) const override;
  void setCaret(const EditorControl& control, std::size_t caret) override;
  int selection(const EditorControl& control) const override;
  void select(const EditorControl& control, int position) override;
  void setItems(const EditorControl& control, const std::vector<std::wstring>& items) override;
  bool ticked(const EditorControl& control) const override;
  void setTicked(const EditorControl& control, bool ticked) override;
  void setEnabled(const EditorControl& control, bool enabled) override;
  void centre() override;
  void showPage(NoteKind kind) override;
  void startNaming(NoteKind kind) override;
  void setNotice(std::wstring_view text) override;
  void unload() noexcept override;
  void startDraftTimer(int interval) override;
  void stopDraftTimer() override;
  std::optional<std::size_t> chooseCopy(const std::vector<SafetyCopy>& copies,
                                        const CopyPreview& preview) override;
  void showError(std::wstring_view title, std::wstring_view text) override;
  bool ask(std::wstring_view title, std::wstring_view text) override;

 private:
  INT_PTR handle(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
  bool takesMessage(MSG& message) noexcept override;
  void onPageCommand(const EditorControl& control, int notification) noexcept override;
  void onPageCancel() noexcept override { close(); }
  void onTab() noexcept;
  void onSize() noexcept;
  void onDestroyed() noexcept;
  bool keyDown(WPARAM key) noexcept;
  void close() noexcept;

  void create();
  void createTabs();
  RECT pagePlace() const;
  HWND tabs() const;
  const EditNotesPage* page(NoteKind kind) const {
    return pages_[static_cast<std::size_t>(kind)].get();
  }
  HWND handleOf(const EditorControl& control) const;

  EventGuard& guard_;
  ModelessDialogs& dialogs_;
  All_Notes_frm* form_ = nullptr;
  HWND window_ = nullptr;
  std::array<std::unique_ptr<EditNotesPage>, kNoteKinds.size()> pages_;
  AnchoredLayout layout_;
  POINT smallest_{};  // the size of the window as it is designed
  // What the program sets is no typing: the change events that it causes are left out.
  bool setting_ = false;
};

}  // namespace kalvora
