; The installer: for one user, without administrator rights. "/S" is quiet; "/D=FOLDER" chooses the folder.
; Wants VERSION ("1.0.00") and NUMBERS ("1.0.0.0"), ROOT (the installed tree), OUT, and REMOVALS (what removes the files
; of the tree).
Target amd64-unicode
ManifestDPIAware true
RequestExecutionLevel user
SetCompressor /SOLID lzma
SetDateSave on

!include MUI2.nsh
!include FileFunc.nsh

!define TITLE "Orby Roof Support Workbench"
!define CLASSES "Software\Classes"
!define TYPE "ORB_File"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Orby"
!define IN_USE "The program is running. Please close it, then try again."

Name "${TITLE}"
BrandingText "${TITLE} ${VERSION}"
OutFile "${OUT}"
InstallDir "$LOCALAPPDATA\Programs\Orby"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"
VIProductVersion "${NUMBERS}"
VIAddVersionKey "CompanyName" "The Orby project"
VIAddVersionKey "FileDescription" "Installs ${TITLE}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "2026 The Orby project. GPL-3.0-or-later"
VIAddVersionKey "ProductName" "${TITLE}"
VIAddVersionKey "ProductVersion" "${VERSION}"

!define MUI_ICON "orby.ico"
!define MUI_UNICON "orby.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "setup.bmp"
!define MUI_COMPONENTSPAGE_SMALLDESC
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\orby.exe"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; Removes an installed file, unless it was changed since.
!macro REMOVE PACKED FILE
  GetFileTimeLocal "${ROOT}/${PACKED}" $0 $1
  GetFileTime "$INSTDIR\${FILE}" $2 $3
  ${If} $0 == $2
  ${AndIf} $1 == $3
    Delete "$INSTDIR\${FILE}"
  ${EndIf}
!macroend

; A program that runs cannot be opened for writing. The program that started this update may still be closing.
!macro WAIT_UNTIL_CLOSED
  StrCpy $1 0
  ${Do}
    ${If} ${FileExists} "$INSTDIR\orby.exe"
      ClearErrors
      FileOpen $0 "$INSTDIR\orby.exe" a
      ${If} ${Errors}
        IntOp $1 $1 + 1
        Sleep 500
        ${If} $1 >= 20
          MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${IN_USE}" /SD IDCANCEL IDRETRY +3
          SetErrorLevel 2
          Abort "${IN_USE}"
        ${EndIf}
      ${Else}
        FileClose $0
        ${Break}
      ${EndIf}
    ${Else}
      ${Break}
    ${EndIf}
  ${Loop}
!macroend

Section "The program" Program
  SectionIn RO
  !insertmacro WAIT_UNTIL_CLOSED
  SetOutPath "$INSTDIR"
  File /r /x examples "${ROOT}\*"
  ; An example that the user has changed stays.
  SetOverwrite off
  File /r "${ROOT}\examples"
  SetOverwrite on
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "${TITLE}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "The Orby project"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\orby.exe"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" $0
SectionEnd

Section "Start menu" StartMenu
  CreateShortcut "$SMPROGRAMS\${TITLE}.lnk" "$INSTDIR\orby.exe"
SectionEnd

; "Create File Association" in the program writes the same keys.
Section "Open .ORB files with the program" Association
  WriteRegStr HKCU "${CLASSES}\.ORB" "" "${TYPE}"
  WriteRegStr HKCU "${CLASSES}\${TYPE}" "" "${TYPE}"
  WriteRegStr HKCU "${CLASSES}\${TYPE}\shell\open\command" "" '"$INSTDIR\orby.exe" "%1"'
  WriteRegStr HKCU "${CLASSES}\${TYPE}\DefaultIcon" "" "$INSTDIR\orby.exe"
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
SectionEnd

LangString AboutProgram ${LANG_ENGLISH} "The program, its help, papers and examples."
LangString AboutStartMenu ${LANG_ENGLISH} "An entry in the Start menu."
LangString AboutAssociation ${LANG_ENGLISH} "A double click on a project opens it."
!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${Program} $(AboutProgram)
  !insertmacro MUI_DESCRIPTION_TEXT ${StartMenu} $(AboutStartMenu)
  !insertmacro MUI_DESCRIPTION_TEXT ${Association} $(AboutAssociation)
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; Removes the association only if it leads to this installation. The program writes its path in capitals.
Section "Uninstall"
  !insertmacro WAIT_UNTIL_CLOSED
  ReadRegStr $0 HKCU "${CLASSES}\${TYPE}\DefaultIcon" ""
  ${If} $0 == "$INSTDIR\orby.exe"
    DeleteRegKey HKCU "${CLASSES}\${TYPE}"
    ReadRegStr $0 HKCU "${CLASSES}\.ORB" ""
    ${If} $0 == "${TYPE}"
      DeleteRegValue HKCU "${CLASSES}\.ORB" ""
      DeleteRegKey /ifempty HKCU "${CLASSES}\.ORB"
    ${EndIf}
    System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
  ${EndIf}
  Delete "$SMPROGRAMS\${TITLE}.lnk"
  DeleteRegKey HKCU "${UNINSTALL}"
  ; Only what was installed: projects that the user keeps here stay.
  !include "${REMOVALS}"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
SectionEnd
