#pragma once

#include "app/Form1.h"
#include "app/OtherWindows.h"
#include "notes/All_Notes_frm.h"
#include "notes/Menu_N.h"
#include "notes/frmAbout.h"
#include "options/Options.h"
#include "win32/about/AboutWindow.h"
#include "win32/editor/EditNotesDialog.h"
#include "win32/main/MainWindow.h"
#include "win32/main/MenuWindow.h"
#include "win32/options/OptionsDialog.h"
#include "win32/platform/HiddenCommand.h"
#include "win32/toolkit/MessageBoxes.h"

namespace kalvora {

/// The windows beside the main one, each with its presenter. They belong to the main window and
/// end before it.
class ProgramWindows : public OtherWindows, private Menu_NHost, private All_Notes_frmHost {
 public:
  /// All must outlive this object.
  ProgramWindows(const Form1Ports& ports, MainWindow& mainWindow, Form1& form1,
                 ModelessDialogs& dialogs);

  void openMenu() override { menu_.open(); }
  void keepTyped() noexcept override { notes_.keepTyped(); }
  void unloadAll() override;
  void followMainWindow(Point position) override { options_.Opt_win_pos_tim_Timer(position); }
  void mainWindowDropped(Point position) override { options_.windowDropped(position); }

 private:
  void showAllNotes_frm() override { editor_.open(mainWindow_.window()); }
  void showOptions() override { options_.open(); }
  void showFrmAbout() override { about_.open(); }
  void Koniec_Kalvora() override { form1_.Koniec_Kalvora(); }

  // Through the main window, which so shows what they change.
  HourFormat hourFormat() const override { return form1_.hourFormat(); }
  void Update_All_Al() override;
  void showFirstNote() override;

  MainWindow& mainWindow_;
  Form1& form1_;
  EventDelivery deliver_;
  // Its own: what fails in the editor is told at once, also where a message of another window
  // waits.
  MessageBoxReporter editorReporter_;
  EventGuard editorGuard_;
  EditNotesDialog editor_;
  All_Notes_frm notes_;
  OptionsDialog optionsDialog_;
  Options options_;
  HiddenCommand shell_;
  AboutWindow aboutWindow_;
  frmAbout about_;
  MenuWindow menuWindow_;
  Menu_N menu_;
};

}  // namespace kalvora
