; The installer, for all users of the machine. It has no words of its own, so it speaks each language that NSIS has words
; for. Defined by packaging/windows/pack.cmake: VERSION, COPYRIGHT, HOMEPAGE, FILES (a folder), SIZE of it in KiB,
; REMOVAL (what takes its files away again) and OUTPUT.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
RequestExecutionLevel admin

!include MUI2.nsh
!define NAME "Orvan Begleiter"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\orvanbeg"

Name "${NAME}"
OutFile "${OUTPUT}"
BrandingText "${NAME} ${VERSION}"
InstallDir "$PROGRAMFILES64\${NAME}"
InstallDirRegKey HKLM "${UNINSTALL_KEY}" InstallLocation

VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "${NAME}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "${NAME}"
VIAddVersionKey LegalCopyright "Copyright (c) ${COPYRIGHT}"

!define MUI_ICON "orvanbeg.ico"
!define MUI_UNICON "orvanbeg.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "setup.bmp"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\bin\orvanbeg.exe"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

; The languages of the program; the first stands for all others.
!insertmacro MUI_LANGUAGE English
!insertmacro MUI_LANGUAGE Danish
!insertmacro MUI_LANGUAGE Dutch
!insertmacro MUI_LANGUAGE Finnish
!insertmacro MUI_LANGUAGE French
!insertmacro MUI_LANGUAGE German
!insertmacro MUI_LANGUAGE Italian
!insertmacro MUI_LANGUAGE Norwegian
!insertmacro MUI_LANGUAGE Portuguese
!insertmacro MUI_LANGUAGE PortugueseBR
!insertmacro MUI_LANGUAGE Spanish
!insertmacro MUI_LANGUAGE Swedish

Section
  SetRegView 64
  SetShellVarContext all
  ; Files of an older version that this one has no more do not stay.
  IfFileExists "$INSTDIR\uninstall.exe" 0 +2
    ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR'
  SetOutPath "$INSTDIR"
  File /r "${FILES}/*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "$INSTDIR\bin\orvanbeg.exe"
  WriteRegStr HKLM "${UNINSTALL_KEY}" DisplayName "${NAME}"
  WriteRegStr HKLM "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
  WriteRegStr HKLM "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\bin\orvanbeg.exe"
  WriteRegStr HKLM "${UNINSTALL_KEY}" Publisher "The Orvan Begleiter developers"
  WriteRegStr HKLM "${UNINSTALL_KEY}" URLInfoAbout "${HOMEPAGE}"
  WriteRegStr HKLM "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
  WriteRegStr HKLM "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKLM "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" EstimatedSize ${SIZE}
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" NoModify 1
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" NoRepair 1
SectionEnd

; The files that were installed and nothing else, wherever that was, or none while the program runs. What users have set
; and saved stays theirs.
Section Uninstall
  SetRegView 64
  SetShellVarContext all
  StrCpy $0 "$INSTDIR\bin\orvanbeg.exe"
  again:
  ClearErrors
  Delete $0
  IfErrors 0 +3
    MessageBox MB_RETRYCANCEL|MB_ICONSTOP "$(^FileError_NoIgnore)" /SD IDCANCEL IDRETRY again
    Abort
  !include "${REMOVAL}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\${NAME}.lnk"
  DeleteRegKey HKLM "${UNINSTALL_KEY}"
SectionEnd
