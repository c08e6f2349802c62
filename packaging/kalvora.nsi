; The installer: for one user, without administrator's rights. Built by tools/package.

Unicode true
!include "MUI2.nsh"
!include "Sections.nsh"
!include "FileFunc.nsh"
!include "WinMessages.nsh"
!include "${FILES}"

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Kalvora"
!define PROCESS_QUERY_LIMITED_INFORMATION 0x1000
!define RUN_KEY "Software\Microsoft\Windows\CurrentVersion\Run"
!define SETTINGS "Software\Kalvora"

Name "Kalvora"
Caption "Kalvora ${VERSION}"
BrandingText "Kalvora ${VERSION}"
OutFile "${OUTPUT}"
!uninstfinalize '"${ROOT}/tools/sign" "%1"'
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

; Ends the copy of the program that runs from this folder, as the end of a session does, and waits until it
; is gone. Other copies are left alone.
Function un.EndProgram
  StrCpy $0 0
  nextWindow:
  FindWindow $0 "KalvoraMain" "" 0 $0
  StrCmp $0 0 noMore
  System::Call 'user32::GetWindowThreadProcessId(p r0, *i .r1)'
  System::Call 'kernel32::OpenProcess(i ${PROCESS_QUERY_LIMITED_INFORMATION}, i 0, i r1) p .r2'
  StrCpy $3 ""
  System::Call 'kernel32::QueryFullProcessImageNameW(p r2, i 0, t .r3, *i ${NSIS_MAX_STRLEN})'
  System::Call 'kernel32::CloseHandle(p r2)'
  StrCmp $3 "$INSTDIR\kalvora.exe" 0 nextWindow
  SendMessage $0 ${WM_ENDSESSION} 1 0 /TIMEOUT=5000
  noMore:
  StrCpy $1 100
  stillThere:
  ClearErrors
  FileOpen $0 "$INSTDIR\kalvora.exe" a
  IfErrors 0 gone
  Sleep 100
  IntOp $1 $1 - 1
  StrCmp $1 0 leave stillThere
  gone:
  FileClose $0
  leave:
FunctionEnd

; What an earlier version brought goes before this one is copied: no file stays that is not shipped any more. A
; file that is not of the same moment as the list was changed since, and is the user's.
!macro RemoveShippedBefore
  ClearErrors
  GetFileTime "$INSTDIR\${SHIPPED_FILES}" $1 $2
  IfErrors noList
  FileOpen $0 "$INSTDIR\${SHIPPED_FILES}" r
  IfErrors noList
  nextFile:
  FileReadUTF16LE $0 $3
  StrCmp $3 "" endOfList
  StrCpy $3 $3 -2 ; the end of the line
  ClearErrors
  GetFileTime "$INSTDIR\$3" $4 $5
  IfErrors nextFile
  StrCmp "$1 $2" "$4 $5" 0 nextFile
  Delete "$INSTDIR\$3"
  ${GetParent} "$INSTDIR\$3" $4
  RMDir "$4" ; a folder that is not empty stays
  Goto nextFile
  endOfList:
  FileClose $0
  noList:
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
  !insertmacro RemoveShippedBefore
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
  SectionGetSize ${SectionProgram} $0
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
!ifdef SITE_URL
  WriteRegStr HKCU "${UNINSTALL_KEY}" "URLInfoAbout" "${SITE_URL}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "URLUpdateInfo" "${SITE_URL}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "HelpLink" "${SITE_URL}"
!endif
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

; The keys of comfortTicks().
Section "Comfort" SectionComfort
  !insertmacro WriteInitialSetting "Comfort" "Ring_while_out" "True"
  !insertmacro WriteInitialSetting "Comfort" "Catch_up" "True"
  !insertmacro WriteInitialSetting "Comfort" "Each_day" "True"
  !insertmacro WriteInitialSetting "Comfort" "Once_a_minute" "True"
  !insertmacro WriteInitialSetting "Comfort" "Once_notes" "True"
  !insertmacro WriteInitialSetting "Comfort" "Keep_typing" "True"
SectionEnd

; An update leaves out what the user has done away with since, the entry in the Start menu and the start
; with Windows, and what would change the program that the user knows. A silent one has nobody who could take the ticks away again.
Function .onInit
  ReadRegStr $0 HKCU "${UNINSTALL_KEY}" "InstallLocation"
  StrCmp $0 "" first
  !insertmacro UnselectSection ${SectionComfort}
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
  !insertmacro MUI_DESCRIPTION_TEXT ${SectionComfort} "Reminders also while the window is out, what you missed is shown later, and more. The options can change that at any time."
!insertmacro MUI_FUNCTION_DESCRIPTION_END

Section "un.Kalvora" SectionRemoveProgram
  SectionIn RO
  ; Nobody is there to end the program: the caller of a silent removal would not even learn that it runs.
  IfSilent 0 +2
  Call un.EndProgram
  !insertmacro RequireNotRunning
  !insertmacro RemoveProgram
  Delete "$INSTDIR\uninstall.exe"
  Delete "$SMPROGRAMS\Kalvora.lnk"
  DeleteRegValue HKCU "${RUN_KEY}" "Kalvora"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  DeleteRegKey HKCU "${SETTINGS}"
SectionEnd

; The files of all kinds, and the folder if nothing else is in it.
!macro RemoveNotesOf FOLDER
  Delete "${FOLDER}\*.txt"
  Delete "${FOLDER}\*.tx1"
  Delete "${FOLDER}\*.tx2"
  Delete "${FOLDER}\*.tx3"
  Delete "${FOLDER}\*.tx4"
  Delete "${FOLDER}\*.tx5"
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
