; The installer: for one user, without administrator's rights. Built by tools/package.

Unicode true
!include "MUI2.nsh"
!include "Sections.nsh"
!include "${FILES}"

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Kalvora"
!define RUN_KEY "Software\Microsoft\Windows\CurrentVersion\Run"
!define SETTINGS "Software\Kalvora"

Name "Kalvora"
Caption "Kalvora ${VERSION}"
BrandingText "Kalvora ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Kalvora"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
RequestExecutionLevel user
SetCompressor /SOLID lzma
ManifestDPIAware true

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Kalvora"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Kalvora setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "CompanyName" "The Kalvora developers"
VIAddVersionKey "LegalCopyright" "The Kalvora developers, MIT licence"

!define MUI_ICON "${ROOT}/assets/icons/kalvora.ico"
!define MUI_UNICON "${ROOT}/assets/icons/kalvora.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${ROOT}/assets/pictures/setupSide.bmp"
!define MUI_UNWELCOMEFINISHPAGE_BITMAP "${ROOT}/assets/pictures/setupSide.bmp"
!define MUI_COMPONENTSPAGE_SMALLDESC
!define MUI_WELCOMEPAGE_TEXT "Kalvora keeps notes and reminders on your desktop, in a small window whose whole look you choose.$\r$\n$\r$\nIt is installed for you alone and needs no administrator."
!define MUI_FINISHPAGE_RUN "$INSTDIR\kalvora.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Start Kalvora"
!define MUI_FINISHPAGE_TEXT "Kalvora is installed.$\r$\n$\r$\nIts icon sits in the tray, beside the clock: a double click there shows your notes, a right click opens the menu."

!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A file of a running program cannot be opened for writing.
!macro RequireNotRunning
  again:
  IfFileExists "$INSTDIR\kalvora.exe" 0 free
  ClearErrors
  FileOpen $0 "$INSTDIR\kalvora.exe" a
  IfErrors running
  FileClose $0
  Goto free
  running:
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Kalvora is running. Choose $\"Exit$\" in the menu of its tray icon, then Retry." /SD IDCANCEL IDRETRY again
  SetErrorLevel 2
  Abort "Kalvora is running."
  free:
!macroend

; A setting that the user has already is the user's.
!macro WriteInitialSetting SECTION KEY VALUE
  ClearErrors
  ReadRegStr $0 HKCU "${SETTINGS}\${SECTION}" "${KEY}"
  IfErrors 0 +2
  WriteRegStr HKCU "${SETTINGS}\${SECTION}" "${KEY}" "${VALUE}"
!macroend

Section "Kalvora" SectionProgram
  SectionIn RO
  !insertmacro RequireNotRunning
  !insertmacro CopyProgram
  IfFileExists "$INSTDIR\notes\*.*" haveNotes
  !insertmacro CopySampleNotes
  haveNotes:
  CreateDirectory "$INSTDIR\notes"
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Kalvora"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\kalvora.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "The Kalvora developers"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

Section "Entry in the Start menu" SectionStartMenu
  CreateShortcut "$SMPROGRAMS\Kalvora.lnk" "$INSTDIR\kalvora.exe"
SectionEnd

Section "Start with Windows" SectionRun
  WriteRegStr HKCU "${RUN_KEY}" "Kalvora" '"$INSTDIR\kalvora.exe"'
SectionEnd

Section "Show the window at start" SectionShow
  !insertmacro WriteInitialSetting "Graph" "ShWatS" "True"
SectionEnd

Section /o "Sounds" SectionSounds
  !insertmacro WriteInitialSetting "Sounds" "Use_Sounds" "True"
  !insertmacro WriteInitialSetting "Sounds" "Snd_Show" "$INSTDIR\sounds\show-window.wav"
  !insertmacro WriteInitialSetting "Sounds" "Snd_Hide" "$INSTDIR\sounds\hide-window.wav"
  !insertmacro WriteInitialSetting "Sounds" "Snd_Notes_Show" "$INSTDIR\sounds\show-notes.wav"
  !insertmacro WriteInitialSetting "Sounds" "Snd_Notes_Hide" "$INSTDIR\sounds\hide-notes.wav"
  !insertmacro WriteInitialSetting "Sounds" "Snd_Alarm" "$INSTDIR\sounds\reminder.wav"
  !insertmacro WriteInitialSetting "Sounds" "Snd_Button_Press" "$INSTDIR\sounds\button.wav"
  !insertmacro WriteInitialSetting "Sounds" "Snd_Button_Delete" "$INSTDIR\sounds\delete.wav"
SectionEnd

; An update leaves out what the user has done away with since: the entry in the Start menu, the start
; with Windows. A silent one has nobody who could take the ticks away again.
Function .onInit
  ReadRegStr $0 HKCU "${UNINSTALL_KEY}" "InstallLocation"
  StrCmp $0 "" first
  IfFileExists "$SMPROGRAMS\Kalvora.lnk" haveEntry
  !insertmacro UnselectSection ${SectionStartMenu}
  haveEntry:
  ReadRegStr $0 HKCU "${RUN_KEY}" "Kalvora"
  StrCmp $0 "" 0 first
  !insertmacro UnselectSection ${SectionRun}
  first:
FunctionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionProgram} "The program, its skins, icons and sounds, and a few sample notes."
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionStartMenu} "Find Kalvora in the Start menu."
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionRun} "Reminders only ring while Kalvora runs."
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionShow} "Otherwise Kalvora waits in the tray."
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionSounds} "Hear reminders, and the window as it moves. The options can change that at any time."
!insertmacro MUI_FUNCTION_DESCRIPTION_END

Section "un.Kalvora" SectionRemoveProgram
  SectionIn RO
  !insertmacro RequireNotRunning
  !insertmacro RemoveProgram
  Delete "$INSTDIR\uninstall.exe"
  Delete "$SMPROGRAMS\Kalvora.lnk"
  DeleteRegValue HKCU "${RUN_KEY}" "Kalvora"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  DeleteRegKey HKCU "${SETTINGS}"
SectionEnd

; The files of all five kinds, and the folder if nothing else is in it.
!macro RemoveNotesOf FOLDER
  Delete "${FOLDER}\*.txt"
  Delete "${FOLDER}\*.tx1"
  Delete "${FOLDER}\*.tx2"
  Delete "${FOLDER}\*.tx3"
  Delete "${FOLDER}\*.tx4"
  RMDir "${FOLDER}"
!macroend

Section /o "un.All my notes" SectionRemoveNotes
  !insertmacro RemoveNotesOf "$INSTDIR\notes"
  !insertmacro RemoveNotesOf "$INSTDIR\backup"
SectionEnd

; After the notes, kept or not: a folder that is not empty stays.
Section "-un.Folder"
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
SectionEnd

!insertmacro MUI_UNFUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionRemoveProgram} "The program and its settings. Skins, icons and sounds that you added stay."
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionRemoveNotes} "Tick this to throw your notes and their safety copies away too. There is no way back."
!insertmacro MUI_UNFUNCTION_DESCRIPTION_END
