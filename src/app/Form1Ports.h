#pragma once

#include "app/DateTexts.h"
#include "app/Form1View.h"
#include "app/OtherWindows.h"
#include "app/Settings.h"
#include "app/SoundPlayer.h"
#include "app/TrayIcon.h"
#include "base/Clock.h"
#include "base/CodePage.h"
#include "base/EventGuard.h"
#include "base/FileSystem.h"
#include "base/FileWriter.h"
#include "base/ProgramFolders.h"
#include "notes/SafetyCopies.h"
#include "skin/SkinValues.h"

namespace kalvora {

/// What the main window works with. All of it outlives Form1.
struct Form1Ports {
  EventGuard& guard;
  const FileSystem& files;
  FileWriter& writer;
  SettingsStore& settings;
  SkinValues& skinValues;
  const CodePage& codePage;
  const Clock& clock;
  const DateTexts& dateTexts;
  Form1View& view;
  TrayIcon& tray;
  SoundPlayer& sounds;
  ProgramFolders folders;
  SafetyCopies& copies;
  OtherWindows& otherWindows;
};

}  // namespace kalvora
