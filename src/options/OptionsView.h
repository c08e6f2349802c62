#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Geometry.h"
#include "options/OptionsControls.h"
#include "options/PositionPreview.h"

namespace kalvora {

enum class NodeState { Collapsed, Expanded };

/// One entry of the tree TreeView1. A node of no parent stands at the top.
struct OptionsNode {
  std::wstring_view key;
  std::wstring_view parent;
  std::wstring_view text;
  NodeState state = NodeState::Collapsed;
};

/// The options dialog as the user sees it. What the program sets is no typing: it causes no change
/// events. Calls that wait for the user (pickSound) run the program's other events meanwhile.
class OptionsView {
 public:
  virtual ~OptionsView() = default;

  /// Makes the dialog, hidden and with empty controls.
  virtual void load() = 0;
  /// Ends it; harmless where it is not loaded.
  virtual void unload() = 0;
  /// Shows it, in front and with the keyboard.
  virtual void comeToFront() = 0;

  virtual bool checked(CheckId id) const = 0;
  virtual void setChecked(CheckId id, bool checked) = 0;
  virtual std::wstring text(TextId id) const = 0;
  virtual void setText(TextId id, std::wstring_view text) = 0;
  /// The number of characters before the caret.
  virtual std::size_t caret(TextId id) const = 0;
  virtual void setCaret(TextId id, std::size_t caret) = 0;
  /// Gives the keyboard to a box, with its whole text selected.
  virtual void takeKeyboard(TextId id) = 0;

  virtual void addNode(const OptionsNode& node) = 0;
  /// Marks a node as the chosen one.
  virtual void selectNode(std::wstring_view text) = 0;
  /// Hides all pages but one.
  virtual void showPage(OptionsPage page) = 0;

  /// The room there is for the picture of the screens, in pixels.
  virtual Size previewArea() const = 0;
  /// Ekran_W, the picture of the screens, and Rys, the shape of the window on it, both in pixels of
  /// the preview area. What of the window lies outside the screens is not to be seen.
  virtual void setPreview(const PositionPreview& preview) = 0;

  /// Fills Lista_skor; nothing is chosen then.
  virtual void setSkins(const std::vector<std::wstring>& names) = 0;
  virtual void selectSkin(int index) = 0;
  virtual std::optional<int> selectedSkin() const = 0;
  /// Label4, the place of the chosen skin.
  virtual void setSkinPosition(std::wstring_view text) = 0;

  /// One Icon_btn a file, with the file's picture and this tool tip.
  virtual void setIcons(const std::vector<std::filesystem::path>& files,
                        std::wstring_view toolTip) = 0;

  /// Lets the user pick a file to open, looking into `folder` first. `filter` is a caption and a
  /// pattern with "|" between them. Empty where the user cancels.
  virtual std::wstring pickSound(std::wstring_view filter, const std::filesystem::path& folder) = 0;
};

}  // namespace kalvora
