#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/FakeOptionsHost.h"
#include "fakes/FakeOptionsView.h"
#include "fakes/TempFolder.h"
#include "options/Options.h"
#include "posix/StandardFileSystem.h"

namespace kalvora {

/// The options dialog on fakes, over a program folder of five skins and two icons.
class OptionsTest : public testing::Test {
 protected:
  OptionsTest() {
    for (const char* name : {"Alpha", "beta", "Gamma", "Omega", "Zeta"}) {
      folder.write(std::string("skins/") + name + "/config.ini", "");
    }
    folder.write("icons/bell.ico", "");
    folder.write("icons/Anchor.ico", "");
  }

  static constexpr CheckId display(int item) { return {CheckBox::Display_chk, item}; }
  std::wstring winPos(int item) const { return view.text({TextBox::WinPos, item}); }
  void typePosition(int item, std::wstring_view text) {
    view.setText({TextBox::WinPos, item}, text);
    view.setCaret({TextBox::WinPos, item}, text.size());
    options.WinPos_Change(item);
  }
  void clickSkin(int index) {
    view.skin = index;
    options.Lista_skor_Click();
  }

  TempFolder folder;
  StandardFileSystem files;
  FakeOptionsHost host;
  FakeOptionsView view;
  Options options{files, ProgramFolders(folder.path()), host, view};
};

}  // namespace kalvora
