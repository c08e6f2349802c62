#pragma once

#include <functional>
#include <map>
#include <utility>

#include "options/OptionsView.h"

namespace kalvora {

/// An options dialog in memory.
class FakeOptionsView : public OptionsView {
 public:
  void load() override {
    loaded = true;
    ++loads;
  }
  void unload() override { loaded = false; }
  void comeToFront() override { ++broughtToFront; }

  bool checked(CheckId id) const override { return checks_.contains(key(id)); }
  void setChecked(CheckId id, bool on) override {
    if (on) {
      checks_[key(id)] = true;
    } else {
      checks_.erase(key(id));
    }
  }
  std::wstring text(TextId id) const override {
    const auto found = texts_.find(key(id));
    return found == texts_.end() ? std::wstring() : found->second;
  }
  void setText(TextId id, std::wstring_view text) override {
    texts_[key(id)] = text;
    carets_[key(id)] = 0;
    ++textsSet;
  }
  std::size_t caret(TextId id) const override {
    const auto found = carets_.find(key(id));
    return found == carets_.end() ? 0 : found->second;
  }
  void setCaret(TextId id, std::size_t caret) override { carets_[key(id)] = caret; }
  void takeKeyboard(TextId id) override { keyboard = id; }

  void addNode(const OptionsNode& node) override {
    nodes.push_back(node);
    pagesWhenAdded.push_back(page);
  }
  void selectNode(std::wstring_view text) override { selectedNode = text; }
  void showPage(OptionsPage shown) override { page = shown; }

  Size previewArea() const override { return area; }
  void setPreview(const PositionPreview& preview) override {
    previewScreens = preview.screens;
    previewWindow = preview.window;
  }

  void setSkins(const std::vector<std::wstring>& names) override {
    skins = names;
    skin.reset();
  }
  void selectSkin(int index) override { skin = index; }
  std::optional<int> selectedSkin() const override { return skin; }
  void setSkinPosition(std::wstring_view text) override { Label4 = text; }

  void setIcons(const std::vector<std::filesystem::path>& files,
                std::wstring_view toolTip) override {
    icons = files;
    iconToolTip = toolTip;
  }
  std::wstring pickSound(std::wstring_view filter, const std::filesystem::path& folder) override {
    soundFilter = filter;
    soundFolder = folder;
    if (whilePicking) whilePicking();
    return pickedSound;
  }

  bool loaded = false;
  int loads = 0;
  int broughtToFront = 0;
  int textsSet = 0;
  std::optional<TextId> keyboard;
  std::vector<OptionsNode> nodes;
  std::vector<std::optional<OptionsPage>> pagesWhenAdded;
  std::wstring selectedNode;
  std::optional<OptionsPage> page;
  Size area{100, 75};
  std::vector<Rect> previewScreens;
  Rect previewWindow;
  std::vector<std::wstring> skins;
  std::optional<int> skin;
  std::wstring Label4;
  std::vector<std::filesystem::path> icons;
  std::wstring iconToolTip;
  std::wstring soundFilter;
  std::filesystem::path soundFolder;
  std::wstring pickedSound;
  std::function<void()> whilePicking;

 private:
  template <typename Id>
  static std::pair<int, int> key(Id id) {
    return {static_cast<int>(id.box), id.item};
  }

  std::map<std::pair<int, int>, bool> checks_;
  std::map<std::pair<int, int>, std::wstring> texts_;
  std::map<std::pair<int, int>, std::size_t> carets_;
};

}  // namespace kalvora
