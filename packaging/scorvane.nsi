; The installer ScorvaneSetup.exe, for one user or for all users of the computer.
;
; Silent: ScorvaneSetup.exe /S /CurrentUser   or   /S /AllUsers [/Path] [/D=C:\folder]
; /Path takes the console programs into the path, as the box on the page of components does.
; Exit codes: 0 installed, 1 cancelled, 2 refused because Scorvane is running.
;
; The build passes STAGE (folder with everything that ships), SAMPLES, ICON, SIDE (a picture), OUTPUT,
; MANUAL_FILES (a macro that deletes the manual's files one by one) and VERSION.

; 64-bit like the program itself; it must come before anything else.
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true

!define PROGRAM "Scorvane"
!define SETTINGS_KEY "Software\Scorvane"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Scorvane"
!define CONTEST_TYPE "Scorvane.Contest"
!define MANUAL "ScorvaneUsersManual"

!define MULTIUSER_MUI
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_INSTALLMODE_INSTDIR "${PROGRAM}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${SETTINGS_KEY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME "Folder"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${SETTINGS_KEY}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME "Folder"
!include MultiUser.nsh
!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include WinMessages.nsh
!include "path.nsh"
!include "${MANUAL_FILES}"

Name "${PROGRAM}"
OutFile "${OUTPUT}"
BrandingText "${PROGRAM} ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${PROGRAM}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "${PROGRAM} Setup"
VIAddVersionKey "CompanyName" "The Scorvane developers"
VIAddVersionKey "LegalCopyright" "Copyright (c) 2026 The Scorvane developers"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${SIDE}"
!define MUI_ABORTWARNING
!insertmacro MUI_PAGE_LICENSE "${STAGE}/Scorvane License.txt"
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; Leaves $0 other than 0 when a program of the folder runs: its file takes no writing then.
!macro LookWhetherItRuns file
  ${If} ${FileExists} "$INSTDIR\${file}"
    ClearErrors
    FileOpen $1 "$INSTDIR\${file}" a
    ${If} ${Errors}
      StrCpy $0 1
    ${Else}
      FileClose $1
    ${EndIf}
  ${EndIf}
!macroend

; Refuses to go on while the program runs: its file is in use, and an operator is at work in it. Windows of
; other desktops are not found, and the console programs have none. Nothing has been touched so far.
!macro StopWhileRunning
  ${Do}
    FindWindow $0 "SCORVANE"
    !insertmacro LookWhetherItRuns "scorvane.exe"
    !insertmacro LookWhetherItRuns "scorvane-report.exe"
    !insertmacro LookWhetherItRuns "scorvane-contest.exe"
    ${If} $0 = 0
      ${ExitDo}
    ${EndIf}
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
      "${PROGRAM} is running.  Close it, then choose Retry." /SD IDCANCEL IDRETRY +3
    SetErrorLevel 2
    Quit
  ${Loop}
!macroend

!macro TellShellOfTypes
  System::Call "shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)"
!macroend

; Deletes the manual but for what somebody else has put into the folder of its pictures.
!macro DeleteManual
  Delete "$INSTDIR\${MANUAL}.htm"
  !insertmacro DeleteManualFiles "$INSTDIR\${MANUAL}_files"
  RMDir "$INSTDIR\${MANUAL}_files"
!macroend

; Version 1 called its licence so, as others do; theirs stay.
!macro DeleteLicenceOfVersion1
  ClearErrors
  FileOpen $1 "$INSTDIR\LICENSE.txt" r
  ${IfNot} ${Errors}
    FileRead $1 $2
    FileRead $1 $2
    FileRead $1 $2
    FileClose $1
    ${If} $2 S== "Copyright (c) 2026 The Scorvane developers$\r$\n"
      Delete "$INSTDIR\LICENSE.txt"
    ${EndIf}
  ${EndIf}
!macroend

Section "${PROGRAM}"
  SectionIn RO
  !insertmacro StopWhileRunning
  SetOutPath "$INSTDIR"
  File "${STAGE}/scorvane.exe"
  File "${STAGE}/scorvane-report.exe"
  File "${STAGE}/scorvane-contest.exe"
  !insertmacro DeleteLicenceOfVersion1
  File "${STAGE}/Scorvane License.txt"
  !insertmacro DeleteManual
  File "${STAGE}/${MANUAL}.htm"
  File /r "${STAGE}/${MANUAL}_files"

  ; A sample that somebody has worked in is a contest now: it stays as it is.
  SetOverwrite off
  SetOutPath "$DOCUMENTS\Scorvane Samples"
  File "${SAMPLES}/county.scv"
  File "${SAMPLES}/district.scv"
  File "${SAMPLES}/state.scv"
  File "${SAMPLES}/roster.csv"
  SetOverwrite on

  SetOutPath "$INSTDIR"
  CreateDirectory "$SMPROGRAMS\${PROGRAM}"
  CreateShortcut "$SMPROGRAMS\${PROGRAM}\${PROGRAM}.lnk" "$INSTDIR\scorvane.exe"
  CreateShortcut "$SMPROGRAMS\${PROGRAM}\${PROGRAM} Help.lnk" "$INSTDIR\${MANUAL}.htm"
  CreateShortcut "$SMPROGRAMS\${PROGRAM}\${PROGRAM} Samples.lnk" "$DOCUMENTS\Scorvane Samples"

  WriteRegStr SHCTX "${SETTINGS_KEY}" "Folder" "$INSTDIR"

  WriteRegStr SHCTX "Software\Classes\${CONTEST_TYPE}" "" "Scorvane contest"
  WriteRegStr SHCTX "Software\Classes\${CONTEST_TYPE}\DefaultIcon" "" "$INSTDIR\scorvane.exe,0"
  WriteRegStr SHCTX "Software\Classes\${CONTEST_TYPE}\shell\open\command" "" \
    '"$INSTDIR\scorvane.exe" "%1"'
  WriteRegStr SHCTX "Software\Classes\.scv" "" "${CONTEST_TYPE}"
  WriteRegStr SHCTX "Software\Classes\.scv\OpenWithProgids" "${CONTEST_TYPE}" ""
  !insertmacro TellShellOfTypes

  WriteUninstaller "$INSTDIR\Uninstall.exe"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayName" "${PROGRAM}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\scorvane.exe,0"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "Publisher" "The Scorvane developers"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr SHCTX "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  IntFmt $0 "0x%08X" $0
  WriteRegDWORD SHCTX "${UNINSTALL_KEY}" "EstimatedSize" "$0"
SectionEnd

Section /o "Commands in the path" PATH_SECTION
  !insertmacro EditPath 1
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${PATH_SECTION} \
    "Has every command prompt find scorvane-report and scorvane-contest."
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; A folder named by /D stands in $INSTDIR before the choice of users puts its own there.
Function .onInit
  StrCpy $R0 $INSTDIR
  !insertmacro MULTIUSER_INIT
  ${If} $R0 != ""
    StrCpy $INSTDIR $R0
  ${EndIf}
  ${GetParameters} $R0
  ClearErrors
  ${GetOptions} $R0 "/Path" $R1
  ${IfNot} ${Errors}
    !insertmacro SelectSection ${PATH_SECTION}
  ${EndIf}
FunctionEnd

; Removes the installation that this very uninstaller belongs to, even when there is one for the
; user and another one for everybody.
Function un.onInit
  StrCpy $R0 $INSTDIR
  !insertmacro MULTIUSER_UNINIT
  ReadRegStr $0 HKCU "${SETTINGS_KEY}" "Folder"
  ${If} $0 == $R0
    Call un.MultiUser.InstallMode.CurrentUser
  ${Else}
    Call un.MultiUser.InstallMode.AllUsers
  ${EndIf}
  StrCpy $INSTDIR $R0
FunctionEnd

; Whether the sample $R0 still reads as it was installed, line by line: $R1 is 1 or 0.
Function un.IsUntouchedSample
  StrCpy $R1 0
  ClearErrors
  FileOpen $1 "$PLUGINSDIR\$R0" r
  FileOpen $2 "$DOCUMENTS\Scorvane Samples\$R0" r
  ${DoUntil} ${Errors}
    FileRead $1 $3
    FileRead $2 $4
    ${If} $3 S!= $4
      ${ExitDo}
    ${EndIf}
    ${If} $3 == ""
      StrCpy $R1 1
    ${EndIf}
  ${Loop}
  FileClose $1
  FileClose $2
FunctionEnd

!macro RemoveUntouchedSample name
  StrCpy $R0 "${name}"
  Call un.IsUntouchedSample
  ${If} $R1 = 1
    Delete "$DOCUMENTS\Scorvane Samples\${name}"
  ${EndIf}
!macroend

; Contests stay: nothing is deleted but what Setup put there, and a folder only once it is empty. Unsaved
; work and earlier saves stay, too.
Section "Uninstall"
  !insertmacro StopWhileRunning
  InitPluginsDir
  File "/oname=$PLUGINSDIR\county.scv" "${SAMPLES}/county.scv"
  File "/oname=$PLUGINSDIR\district.scv" "${SAMPLES}/district.scv"
  File "/oname=$PLUGINSDIR\state.scv" "${SAMPLES}/state.scv"
  File "/oname=$PLUGINSDIR\roster.csv" "${SAMPLES}/roster.csv"
  !insertmacro RemoveUntouchedSample "county.scv"
  !insertmacro RemoveUntouchedSample "district.scv"
  !insertmacro RemoveUntouchedSample "state.scv"
  !insertmacro RemoveUntouchedSample "roster.csv"
  RMDir "$DOCUMENTS\Scorvane Samples"

  Delete "$SMPROGRAMS\${PROGRAM}\${PROGRAM}.lnk"
  Delete "$SMPROGRAMS\${PROGRAM}\${PROGRAM} Help.lnk"
  Delete "$SMPROGRAMS\${PROGRAM}\${PROGRAM} Samples.lnk"
  RMDir "$SMPROGRAMS\${PROGRAM}"

  ; The file type may have been given to another program since.
  ReadRegStr $0 SHCTX "Software\Classes\.scv" ""
  ${If} $0 == "${CONTEST_TYPE}"
    DeleteRegValue SHCTX "Software\Classes\.scv" ""
  ${EndIf}
  DeleteRegValue SHCTX "Software\Classes\.scv\OpenWithProgids" "${CONTEST_TYPE}"
  DeleteRegKey /ifempty SHCTX "Software\Classes\.scv\OpenWithProgids"
  DeleteRegKey /ifempty SHCTX "Software\Classes\.scv"
  DeleteRegKey SHCTX "Software\Classes\${CONTEST_TYPE}"
  !insertmacro TellShellOfTypes
  DeleteRegKey SHCTX "${UNINSTALL_KEY}"
  Delete "$INSTDIR\scorvane.exe"
  Delete "$INSTDIR\scorvane-report.exe"
  Delete "$INSTDIR\scorvane-contest.exe"
  Delete "$INSTDIR\Scorvane License.txt"
  !insertmacro DeleteManual
  Delete "$INSTDIR\Uninstall.exe"
  !insertmacro EditPath 0
  RMDir "$INSTDIR"

  DeleteRegKey SHCTX "${SETTINGS_KEY}"

  ReadEnvStr $0 LOCALAPPDATA
  ${If} ${FileExists} "$0\Scorvane\*.*"
    MessageBox MB_OK|MB_ICONINFORMATION \
      "Your contests were left where they are, and so were unsaved work and earlier saves: $0\Scorvane" /SD IDOK
  ${EndIf}
SectionEnd
