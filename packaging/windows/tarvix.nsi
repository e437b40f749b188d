; The installer of the Windows program, compiled by make-windows.sh:
;
;   makensis -DVERSION=3.0.0 -DCOPYRIGHT=... -DFOLDER=... -DLISTS=... -DHERE=... -DOUTPUT=...
;
; FOLDER: what is installed; LISTS: a folder with install.nsh and uninstall.nsh, its files by name;
; HERE: the folder of this script.
; For the user who runs it alone, and with that user's rights. "/S" asks nothing, "/D=FOLDER" (last,
; without quotes) installs elsewhere.
Unicode true
Target amd64-unicode
ManifestSupportedOS Win10
ManifestDPIAware true
RequestExecutionLevel user
SetCompressor /SOLID lzma
; The times of the files are the build's alone; the same files give the same installer.
SetDateSave off

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarvix"
!include "MUI2.nsh"
!include "FileFunc.nsh"

Name "Tarvix"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Tarvix"
; A newer version goes where the older one is.
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"
BrandingText "Tarvix ${VERSION}"

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Tarvix"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Tarvix installer"
VIAddVersionKey "CompanyName" "The Tarvix developers"
VIAddVersionKey "LegalCopyright" "${COPYRIGHT}"

!define MUI_ICON "${HERE}/tarvix.ico"
!define MUI_UNICON "${HERE}/tarvix.ico"
!define MUI_FINISHPAGE_RUN "$INSTDIR\tarvix.exe"
!insertmacro MUI_PAGE_LICENSE "${FOLDER}/LICENSE.txt"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A program that runs can neither be replaced nor removed.
!macro RefuseWhileRunning
    ${If} ${FileExists} "$INSTDIR\tarvix.exe"
        ClearErrors
        FileOpen $0 "$INSTDIR\tarvix.exe" a
        ${If} ${Errors}
            MessageBox MB_OK|MB_ICONEXCLAMATION "Tarvix is running. Close it, then try again." /SD IDOK
            SetErrorLevel 2
            Quit
        ${EndIf}
        FileClose $0
    ${EndIf}
!macroend

Section
    !insertmacro RefuseWhileRunning
    !include "${LISTS}/install.nsh"
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "$SMPROGRAMS\Tarvix.lnk" "$INSTDIR\tarvix.exe"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Tarvix"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\tarvix.exe"
    WriteRegStr HKCU "${UNINSTALL}" "Publisher" "The Tarvix developers"
    WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    IntFmt $0 "0x%08X" $0
    WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" "$0"
SectionEnd

; Takes away what was installed, and the folders where nothing else is left in them.
Section "Uninstall"
    !insertmacro RefuseWhileRunning
    !include "${LISTS}/uninstall.nsh"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Tarvix.lnk"
    DeleteRegKey HKCU "${UNINSTALL}"
SectionEnd
