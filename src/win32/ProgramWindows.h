#pragma once

#include "app/Config_file.h"
#include "app/Form1.h"
#include "app/OtherWindows.h"
#include "coming/ComingHost.h"
#include "coming/WhatComes.h"
#include "find/FindHost.h"
#include "find/FindNotes.h"
#include "notes/All_Notes_frm.h"
#include "notes/KeepingFileWriter.h"
#include "notes/Menu_N.h"
#include "notes/frmAbout.h"
#include "options/Options.h"
#include "win32/about/AboutWindow.h"
#include "win32/coming/WhatComesDialog.h"
#include "win32/editor/EditNotesDialog.h"
#include "win32/find/FindDialog.h"
#include "win32/main/MainWindow.h"
#include "win32/main/MenuWindow.h"
#include "win32/main/ShellTrayIcon.h"
#include "win32/options/OptionsDialog.h"
#include "win32/platform/HiddenCommand.h"
#include "win32/platform/PlatformDateTexts.h"
#include "win32/platform/PlatformProfileReader.h"
#include "win32/platform/RegistrySettingsStore.h"
#include "win32/platform/SystemClock.h"
#include "win32/platform/SystemCodePage.h"
#include "win32/platform/WaveSound.h"
#include "win32/platform/WindowsFileSystem.h"
#include "win32/platform/WindowsFileWriter.h"
#include "win32/toolkit/MessageBoxes.h"

namespace kalvora {

/// The program's windows, each with its presenter, and what they work with, in the order in which
/// they need each other. A window and its presenter know each other by reference from the
/// beginning; no event comes before run().
class ProgramWindows : private OtherWindows,
                       private Menu_NHost,
                       private All_Notes_frmHost,
                       private ComingHost,
                       private FindHost,
                       private NoteFollower {
 public:
  ProgramWindows();
  /// Runs the program to its end. Returns the exit code.
  int run();

 private:
  void openMenu() override { menu_.open(); }
  void openMenuAt(Point place) override { menu_.openAt(place); }
  void showWhatComes() override { comesDialog_.open(); }
  void showFind() override { findDialog_.open({}); }
  void keepTyped() noexcept override { notes_.keepTyped(); }
  bool leave() override;
  void saveQuietly() noexcept override { notes_.saveQuietly(); }
  void unloadAll() override;
  void followMainWindow(Point position) override { options_.Opt_win_pos_tim_Timer(position); }
  void mainWindowDropped(Point position) override { options_.windowDropped(position); }

  void showAllNotes_frm() override { editor_.open(); }
  void showOptions() override { options_.open(); }
  void showFrmAbout() override { about_.open(); }
  void Koniec_Kalvora() override { form1_.Koniec_Kalvora(); }

  // Through the main window, which so shows what they change.
  HourFormat hourFormat() const override { return form1_.hourFormat(); }
  NoteKinds noteKinds() const override { return form1_.noteKinds(); }
  bool keepsTyping() const override { return form1_.keepsTyping(); }
  void saveMainWindow() override;
  void Update_All_Al() override;
  void showFirstNote() override;

  ComingMarks comingMarks() override;
  std::optional<NoteTime> rememberedTime(NoteKind kind, const ListedFile& note) const override {
    return form1_.rememberedTime(kind, note);
  }
  unsigned noteChanges() const override { return writer_.changes(); }
  void openNote(NoteKind kind, std::wstring_view title) override { openNoteAt(kind, title, {}); }
  void showFind(std::wstring_view words) override { findDialog_.open(words); }
  void openNoteAt(NoteKind kind, std::wstring_view title, const PlaceInNote& place) override;

  // Both windows that notes are typed in.
  void noteCopied(std::wstring_view from, std::wstring_view to) override {
    form1_.noteCopied(from, to);
  }
  void noteRenamed(std::wstring_view from, std::wstring_view to) override;
  void noteDeleted(std::wstring_view name) override;
  void noteWritten(std::wstring_view name) override;

  MessageBoxReporter reporter_;
  EventGuard guard_{reporter_};
  ProgramFolders folders_;
  WindowsFileSystem files_;
  WindowsFileWriter disk_;
  RegistrySettingsStore settings_;
  SystemCodePage codePage_;
  PlatformProfileReader profiles_;
  Config_file skinValues_{profiles_, codePage_};
  SystemClock clock_;
  SafetyCopies copies_{folders_.backup(), files_, disk_, clock_, [this] { return noteKinds(); }};
  KeepingFileWriter writer_{folders_.notes(), disk_, copies_, *this};
  PlatformDateTexts dateTexts_;
  WaveSound sounds_;
  HiddenCommand shell_;
  ModelessDialogs dialogs_;

  MainWindow mainWindow_{guard_, form1_};
  ShellTrayIcon tray_{mainWindow_.window(), mainWindow_.delivery(),
                      [this](int message) { form1_.pichook_MouseMove(message); }};
  Form1 form1_{{guard_, files_, writer_, settings_, skinValues_, codePage_, clock_, dateTexts_,
                mainWindow_, tray_, sounds_, folders_, copies_, *this}};
  // Its own: what fails in the editor is told at once, also where a message of another window
  // waits.
  MessageBoxReporter editorReporter_;
  EventGuard editorGuard_{editorReporter_};
  EventDelivery deliverToEditor_{editorGuard_};
  EditNotesDialog editor_{mainWindow_.window(), dialogs_, deliverToEditor_, notes_};
  All_Notes_frm notes_{
      {files_, writer_, codePage_, editor_, *this, folders_.notes(), copies_, clock_}};
  // Nothing of the main window changes with it.
  EventDelivery deliverToComes_{guard_};
  WhatComesDialog comesDialog_{mainWindow_.window(), dialogs_, deliverToComes_, comes_};
  WhatComes comes_{{{files_, codePage_, folders_.notes()}, clock_, settings_, comesDialog_, *this}};
  EventDelivery deliverToFind_{guard_};
  FindDialog findDialog_{mainWindow_.window(), dialogs_, deliverToFind_, find_};
  FindNotes find_{{{files_, codePage_, folders_.notes()}, settings_, findDialog_, *this}};
  OptionsDialog optionsDialog_{mainWindow_.window(), dialogs_, mainWindow_.delivery(), options_};
  Options options_{files_, folders_, form1_.optionsHost(), optionsDialog_};
  AboutWindow aboutWindow_{mainWindow_.window(), dialogs_, mainWindow_.delivery(), about_};
  frmAbout about_{aboutWindow_, shell_, configuredWebAddresses()};
  MenuWindow menuWindow_{mainWindow_.window(), mainWindow_.delivery(), menu_};
  Menu_N menu_{menuWindow_, *this};
};

}  // namespace kalvora
