#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/Image.h"

namespace kalvora {

/// The list box of the skins: each entry with a small picture of the skin. A picture is made when
/// it is first to be seen.
class SkinList {
 public:
  /// Given the place of a skin, the room for its picture and the colour around it: its picture.
  using Painter = std::function<std::optional<Image>(int index, Size room, Pixel ground)>;

  /// Takes the list box of a template into its hands, until the box ends.
  void attach(HWND list, Painter paint);
  void setSkins(const std::vector<std::wstring>& names);
  void select(int index);
  std::optional<int> selected() const;
  /// Draws an entry.
  void draw(const DRAWITEMSTRUCT& item);

 private:
  struct Entry {
    std::wstring name;
    bool painted = false;
    std::optional<Image> picture;
  };
  const std::optional<Image>& pictureOf(int index);
  void drawPicture(HDC context, const RECT& card, int index);

  HWND list_ = nullptr;
  Painter paint_;
  std::vector<Entry> entries_;
};

}  // namespace kalvora
