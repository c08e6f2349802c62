#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "notes/Menu_N.h"

namespace kalvora {

class FakeMenuView : public Menu_NView {
 public:
  void load() override { isOpen = true; }
  void unload() override {
    isOpen = false;
    ++unloads;
  }
  Size size() const override { return {170, 104}; }
  void show(Point topLeft) override { corner = topLeft; }
  Rect place() const override { return {corner.x, corner.y, 170, 104}; }
  Point pointer() const override { return mouse; }
  Rect monitorAt(Point point) const override {
    return point.x < 1024 ? Rect{0, 0, 1024, 768} : Rect{1024, -200, 800, 600};
  }
  void setBackColor(int item, Pixel color) override { colors[item] = color; }
  void startTimer1(int milliseconds) override { interval = milliseconds; }
  void stopTimer1() override { interval = 0; }

  std::vector<int> highlighted() const {
    std::vector<int> items;
    for (const auto& [item, color] : colors) {
      if (color == kMenuHighlightColor) items.push_back(item);
    }
    return items;
  }

  bool isOpen = false;
  int unloads = 0;
  Point corner;
  Point mouse{300, 200};
  std::map<int, Pixel> colors;
  int interval = 0;
};

class FakeMenuHost : public Menu_NHost {
 public:
  void showAllNotes_frm() override { act("editor"); }
  void showOptions() override { act("options"); }
  void showFrmAbout() override { act("about"); }
  void Koniec_Kalvora() override { act("exit"); }
  void act(const std::string& what) {
    actions.push_back(what);
    if (during) during();
  }

  std::vector<std::string> actions;
  std::function<void()> during;
};

class Menu_NTest : public testing::Test {
 protected:
  void openAt(Point pointer) {
    view.mouse = pointer;
    menu.open();
  }
  void pointAt(Point pointer) {
    view.mouse = pointer;
    menu.Timer1_Timer();
  }

  FakeMenuView view;
  FakeMenuHost host;
  Menu_N menu{view, host};
};

}  // namespace kalvora
