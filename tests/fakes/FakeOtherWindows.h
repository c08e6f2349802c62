#pragma once

#include <functional>
#include <vector>

#include "app/OtherWindows.h"

namespace kalvora {

/// Remembers what the windows beside the main one were told.
class FakeOtherWindows : public OtherWindows {
 public:
  void openMenu() override { ++menus; }
  void openMenuAt(Point place) override { menuPlaces.push_back(place); }
  void showWhatComes() override { ++whatComes; }
  void showFind() override { ++finds; }
  void keepTyped() noexcept override { ++keeps; }
  bool leave() override {
    ++leaves;
    if (onLeave) onLeave();
    return mayLeave;
  }
  void saveQuietly() noexcept override { ++saves; }
  void unloadAll() override { ++unloads; }
  void followMainWindow(Point position) override { followed.push_back(position); }
  void mainWindowDropped(Point position) override { dropped.push_back(position); }

  int menus = 0;
  std::vector<Point> menuPlaces;
  int whatComes = 0;
  int finds = 0;
  int keeps = 0;
  int leaves = 0;
  bool mayLeave = true;
  std::function<void()> onLeave;
  int saves = 0;
  int unloads = 0;
  std::vector<Point> followed;
  std::vector<Point> dropped;
};

}  // namespace kalvora
