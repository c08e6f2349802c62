#pragma once

#include <windows.h>
// commctrl.h needs windows.h before it.
#include <commctrl.h>

#include <array>
#include <map>
#include <vector>

#include "options/Options.h"
#include "win32/options/IconGrid.h"
#include "win32/options/SkinList.h"
#include "win32/platform/UniqueHandle.h"
#include "win32/toolkit/DialogFrame.h"
#include "win32/toolkit/EventDelivery.h"

namespace kalvora {

/// The options dialog.
class OptionsDialog : public OptionsView, private DialogFrame {
 public:
  /// `options` gets events only while the window is open; the others must outlive this object.
  OptionsDialog(HWND owner, ModelessDialogs& dialogs, const EventDelivery& deliver,
                Options& options);
  // While its lists are there.
  ~OptionsDialog() override { destroy(); }

  using DialogFrame::window;

  void load() override;
  void unload() override;
  void comeToFront() override { bringToFront(); }
  bool checked(CheckId id) const override;
  void setChecked(CheckId id, bool checked) override;
  std::wstring text(TextId id) const override;
  void setText(TextId id, std::wstring_view text) override;
  std::size_t caret(TextId id) const override;
  void setCaret(TextId id, std::size_t caret) override;
  void takeKeyboard(TextId id) override;
  void addNode(const OptionsNode& node) override;
  void selectNode(std::wstring_view text) override;
  void showPage(OptionsPage page) override;
  Size previewArea() const override;
  void setPreview(const PositionPreview& preview) override;
  void setSkins(const std::vector<std::wstring>& names) override { Lista_skor.setSkins(names); }
  void selectSkin(int index) override { Lista_skor.select(index); }
  std::optional<int> selectedSkin() const override { return Lista_skor.selected(); }
  void setSkinPosition(std::wstring_view text) override;
  void setIcons(const std::vector<std::filesystem::path>& files,
                std::wstring_view toolTip) override;
  std::wstring pickSound(std::wstring_view filter, const std::filesystem::path& folder) override;

 private:
  INT_PTR handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept override;
  void onCommand(int id, int notification) noexcept;
  void onButton(int id) noexcept;
  void onDrawItem(const DRAWITEMSTRUCT& item) noexcept;
  void onNodeChosen(const NMTREEVIEWW& change) noexcept;
  void makePages();
  void makeTitleFont();
  void attachLists();
  // cppcheck-suppress CastIntegerToAddressAtReturn ; the array holds handles
  HWND page(OptionsPage page) const { return Tree_pic[static_cast<std::size_t>(page)]; }
  HWND TreeView1() const;
  HWND Label4() const;
  HWND box(CheckId id) const;
  HWND box(TextId id) const;
  HTREEITEM nodeOf(std::wstring_view text) const;

  const EventDelivery& deliver_;
  Options& options_;
  std::array<HWND, kOptionsPageCount> Tree_pic{};
  std::map<std::wstring, HTREEITEM, std::less<>> nodesByKey_;
  std::map<HTREEITEM, std::wstring> nodeTexts_;
  SkinList Lista_skor;
  IconGrid icons_;
  UniqueFont titleFont_;
  std::vector<Rect> Ekran_W;
  Rect Rys;
  // What the program sets is no typing: the change events that it causes are left out.
  bool setting_ = false;
};

}  // namespace kalvora
