; The installer: for one user, without any rights of an administrator. Made by pack.sh, which defines
;   VERSION  the version, FILES the folder of what is installed, LIST a file with its deletion, SIDEBAR a picture for the
;   last page, RESULT the installer.
; Silent with /S; then /D=FOLDER (last, without quotes) names the folder and /DESKTOP asks for the entry on the desktop.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
RequestExecutionLevel user

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh

Name "Tolvo"
OutFile "${RESULT}"
InstallDir "$LOCALAPPDATA\Programs\Tolvo"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "Tolvo ${VERSION}"

VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Tolvo"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Installs Tolvo"
VIAddVersionKey LegalCopyright "The Tolvo developers"

!define MUI_ICON "tolvo.ico"
!define MUI_UNICON "tolvo.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${SIDEBAR}"
!define MUI_COMPONENTSPAGE_NODESC
!define MUI_FINISHPAGE_RUN "$INSTDIR\Tolvo.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Start Tolvo with the text on the clipboard"
!define MUI_FINISHPAGE_NOAUTOCLOSE
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; The files of the version before, which may have other names. Settings lie in the user's own folder.
!macro deleteFiles
  !include "${LIST}"
!macroend

; A program that runs keeps its file open.
!macro refuseWhileRunning UN
Function ${UN}refuseWhileRunning
  retry:
  ${IfNot} ${FileExists} "$INSTDIR\Tolvo.exe"
    Return
  ${EndIf}
  ClearErrors
  FileOpen $0 "$INSTDIR\Tolvo.exe" a
  ${IfNot} ${Errors}
    FileClose $0
    Return
  ${EndIf}
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Tolvo is running, or its folder can't be written.$\r$\n\
    Please close Tolvo and try again." /SD IDCANCEL IDRETRY retry
  SetErrorLevel 2
  Quit
FunctionEnd
!macroend
!insertmacro refuseWhileRunning ""
!insertmacro refuseWhileRunning "un."

Section "Tolvo (required)" partProgram
  SectionIn RO
  Call refuseWhileRunning
  ${If} ${FileExists} "$INSTDIR\Uninstall.exe"
    ExecWait '"$INSTDIR\Uninstall.exe" /S /UPGRADE _?=$INSTDIR'
  ${EndIf}
  SetOutPath "$INSTDIR"
  ClearErrors
  File /r "${FILES}/*"
  WriteUninstaller "$INSTDIR\Uninstall.exe"
  ${If} ${Errors}
    MessageBox MB_OK|MB_ICONSTOP "Not all files could be written to $INSTDIR." /SD IDOK
    SetErrorLevel 2
    Abort
  ${EndIf}
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Tolvo"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\Tolvo.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "The Tolvo developers"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\Uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\Uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
  WriteRegStr HKCU "Software\Classes\.tolvobutton" "" "Tolvo.PowerButton"
  WriteRegStr HKCU "Software\Classes\Tolvo.PowerButton" "" "Tolvo PowerButton"
  WriteRegStr HKCU "Software\Classes\Tolvo.PowerButton\DefaultIcon" "" "$INSTDIR\Tolvo.exe,0"
  WriteRegStr HKCU "Software\Classes\Tolvo.PowerButton\shell\open\command" "" '"$INSTDIR\Tolvo.exe" "%1"'
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

Section "Entry in the start menu" partStartMenu
  CreateShortcut "$SMPROGRAMS\Tolvo.lnk" "$INSTDIR\Tolvo.exe"
SectionEnd

Section /o "Entry on the desktop" partDesktop
  CreateShortcut "$DESKTOP\Tolvo.lnk" "$INSTDIR\Tolvo.exe"
SectionEnd

Function .onInit
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/DESKTOP" $1
  ${IfNot} ${Errors}
  ${OrIf} ${FileExists} "$DESKTOP\Tolvo.lnk"
    SectionSetFlags ${partDesktop} ${SF_SELECTED}
  ${EndIf}
FunctionEnd

Section "Uninstall"
  Call un.refuseWhileRunning
  ; The file of the user's own words, which every run makes, goes unless it has some: those stay as the settings do.
  ${If} ${FileExists} "$INSTDIR\Dictionaries\persdict.dat"
    FileOpen $0 "$INSTDIR\Dictionaries\persdict.dat" r
    FileSeek $0 0 END $1
    FileClose $0
    ${If} $1 = 0
      Delete "$INSTDIR\Dictionaries\persdict.dat"
    ${EndIf}
  ${EndIf}
  !insertmacro deleteFiles
  Delete "$INSTDIR\Uninstall.exe"
  RMDir "$INSTDIR"
  ${GetParameters} $0
  ClearErrors
  ${GetOptions} $0 "/UPGRADE" $1
  ${IfNot} ${Errors}
    Return
  ${EndIf}
  Delete "$SMPROGRAMS\Tolvo.lnk"
  Delete "$DESKTOP\Tolvo.lnk"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  DeleteRegKey HKCU "Software\Classes\Tolvo.PowerButton"
  DeleteRegKey HKCU "Software\Classes\.tolvobutton"
  MessageBox MB_YESNO|MB_ICONQUESTION|MB_DEFBUTTON2 \
    "Remove your settings, PowerButtons and dictionaries too?" /SD IDNO IDNO keep
  RMDir /r "$APPDATA\Tolvo"
  Delete "$INSTDIR\Dictionaries\persdict*.dat"
  RMDir "$INSTDIR\Dictionaries"
  RMDir "$INSTDIR"
  keep:
SectionEnd
