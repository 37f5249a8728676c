; The installer of Tweakloom 99, built by makensis on Linux (release/CMakeLists.txt).
; An ANSI installer: the Unicode flavour of NSIS does not run on Windows 98.
; Defined on the command line: VERSION, OUTFILE, UNINSTALLER_COPY (where a copy
; of the uninstaller goes, for the static check), and FILES_NSH / UNFILES_NSH,
; the File and Delete lines made from release/files.txt, so that the
; uninstaller removes exactly what was installed.
Unicode false
; The uninstaller is made at compile time; this copies it out, byte for byte
; the file that WriteUninstaller puts beside the program.
!uninstfinalize 'cp "%1" "${UNINSTALLER_COPY}"'
SetCompressor /SOLID lzma
RequestExecutionLevel admin
XPStyle off
ManifestSupportedOS none

!define PRODUCT "Tweakloom 99"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tweakloom 99"

Name "${PRODUCT} ${VERSION}"
Caption "${PRODUCT} ${VERSION} Setup"
OutFile "${OUTFILE}"
InstallDir "$PROGRAMFILES\${PRODUCT}"
ShowInstDetails show
ShowUninstDetails show

VIProductVersion "${VERSION}.0.0"
VIAddVersionKey "ProductName" "${PRODUCT}"
VIAddVersionKey "FileDescription" "${PRODUCT} Setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "${PRODUCT}"

Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

Section "Install"
  SetOutPath "$INSTDIR"
  !include "${FILES_NSH}"
  WriteUninstaller "$INSTDIR\uninst.exe"
  ; The shortcut starts the program in its own folder, where it finds its side files.
  SetOutPath "$INSTDIR"
  CreateShortCut "$SMPROGRAMS\${PRODUCT}.lnk" "$INSTDIR\${PRODUCT}.exe" "" "$INSTDIR\${PRODUCT}.exe" 0
  WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayName" "${PRODUCT}"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninst.exe"'
SectionEnd

Section "Uninstall"
  !include "${UNFILES_NSH}"
  Delete "$INSTDIR\uninst.exe"
  ; Only an empty folder goes: files the user put there stay.
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\${PRODUCT}.lnk"
  DeleteRegKey HKLM "${UNINSTALL_KEY}"
SectionEnd
