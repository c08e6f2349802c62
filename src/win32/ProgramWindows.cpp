#include "win32/ProgramWindows.h"

namespace kalvora {

ProgramWindows::ProgramWindows(const Form1Ports& ports, MainWindow& mainWindow, Form1& form1,
                               ModelessDialogs& dialogs)
    : mainWindow_(mainWindow),
      form1_(form1),
      deliver_([this](const std::function<void()>& handler) { mainWindow_.deliver(handler); }),
      editorGuard_(editorReporter_),
      editor_(editorGuard_, dialogs),
      notes_({ports.files, ports.writer, ports.codePage, editor_, *this,
              ports.programFolder / L"notes", ports.copies, ports.clock}),
      optionsDialog_(mainWindow.window(), dialogs, deliver_),
      options_(ports.files, ports.programFolder, form1.optionsHost(), optionsDialog_),
      aboutWindow_(mainWindow.window(), dialogs, deliver_),
      about_(aboutWindow_, shell_, configuredWebAddresses()),
      menuWindow_(mainWindow.window(), deliver_),
      menu_(menuWindow_, *this) {
  editor_.attach(notes_);
  optionsDialog_.attach(options_);
  aboutWindow_.attach(about_);
  menuWindow_.attach(menu_);
}

void ProgramWindows::Update_All_Al() {
  mainWindow_.deliver([this] { form1_.Update_All_Al(); });
}

void ProgramWindows::showFirstNote() {
  mainWindow_.deliver([this] { form1_.showFirstNote(); });
}

void ProgramWindows::unloadAll() {
  notes_.unload();
  about_.unload();
  options_.unload();
}

}  // namespace kalvora
