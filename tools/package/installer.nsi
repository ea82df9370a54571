; The installer: makensis -DVERSION=... -DTREE=STAGED-TREE -DFILES=files.nsh -DSETUP=setup.exe [-DLICENCE=FILE]
; README.md beside this tells what it does. It is a 64-bit program, which a 32-bit Windows refuses to start.

Target amd64-unicode
SetCompressor /SOLID lzma

!define PRODUCT "NorvepaBl64x"
!define PUBLISHER "Norvepa"
!define OWN_KEY "SOFTWARE\${PUBLISHER}\${PRODUCT}"
!define PROGRAMS_KEY "SOFTWARE\Microsoft\Windows\CurrentVersion\Uninstall\${PRODUCT}"

Name "${PRODUCT} ${VERSION}"
OutFile "${SETUP}"
InstallDir "$PROGRAMFILES64\${PRODUCT}"
InstallDirRegKey HKLM "${OWN_KEY}" "Folder"
RequestExecutionLevel admin
ManifestDPIAware true
BrandingText "${PRODUCT} ${VERSION}"

VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "${PRODUCT}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Installs ${PRODUCT}"
VIAddVersionKey CompanyName "${PUBLISHER}"
VIAddVersionKey LegalCopyright ""

!include LogicLib.nsh
!include FileFunc.nsh
!include Sections.nsh
!include WinMessages.nsh
!include MUI2.nsh
!include Tell.nsh
!include Roots.nsh
!include LaidOut.nsh
!include SearchPath.nsh
!include Held.nsh

!define MUI_ABORTWARNING
!define MUI_COMPONENTSPAGE_SMALLDESC
!define MUI_FINISHPAGE_NOREBOOTSUPPORT
!define MUI_FINISHPAGE_NOAUTOCLOSE
!insertmacro MUI_PAGE_WELCOME
!ifdef LICENCE
  !insertmacro MUI_PAGE_LICENSE "${LICENCE}"
!endif
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

!insertmacro TakeAwayFunction ""
!insertmacro TakeAwayFunction "un."

; Installing ----------------------------------------------------------------------------------------------

!define TAKE_AWAY TakeAway

; The version that is here goes first: so nothing stays of it that this one doesn't have. What it has written
; outside of its own folder stays.
!macro RemoveOtherVersion
  ReadRegStr $R0 HKLM "${OWN_KEY}" "Folder"
  ${If} $R0 != ""
  ${AndIf} ${FileExists} "$R0\uninstall.exe"
    ${Tell} "The version in $R0 is removed"
    ExecWait '"$R0\uninstall.exe" /S /UPGRADE _?=$R0' $0
    ${If} $0 = ${RESTART_REQUIRED}
      StrCpy $Held 1
    ${EndIf}
    ${If} $R0 != $INSTDIR
      Delete "$R0\uninstall.exe"
      Delete "$R0\install.log"
      RMDir "$R0"
    ${EndIf}
  ${EndIf}
!macroend

Section "-begin"
  SetShellVarContext all
  SetOutPath "$INSTDIR"
  !insertmacro RemoveOtherVersion
  SetOutPath "$INSTDIR" ; whatever that has left
  !insertmacro OpenLog "$INSTDIR\install.log"
  !insertmacro TakeAway "$INSTDIR\bin\NorvepaBl64x.dll"
  !insertmacro TakeAway "$INSTDIR\bin\norvctl.exe"
SectionEnd

Section "Library, norvctl and store" SecProgram
  SectionIn RO
  SetOutPath "$INSTDIR"
  File "${TREE}\README.md"
  SetOutPath "$INSTDIR\bin"
  File "${TREE}\bin\*.dll"
  File "${TREE}\bin\*.exe"
  SetOutPath "$INSTDIR\share"
  File /r "${TREE}\share\NorvepaBl64x"
  File /r "${TREE}\share\completions"
  WriteRegStr HKLM "${OWN_KEY}" "Folder" "$INSTDIR"
  WriteRegStr HKLM "${OWN_KEY}" "Version" "${VERSION}"

  !insertmacro ReadOrNameRoot $DataRoot "Corvane_Oam_Data" "$APPDATA\${FIXED_FOLDER}"
  !insertmacro ReadOrNameRoot $ProgramRoot "Corvane_Oam" "$COMMONFILES64\${FIXED_FOLDER}"
  Call MakeDataRoot
  Call MakeProgramRoot
  ${If} $ProgramRoot != ""
    !insertmacro LayOut "$INSTDIR\share\NorvepaBl64x\Schemes" "$ProgramRoot\Schemes"
  ${EndIf}
SectionEnd

Section "For developers: headers, import libraries, examples" SecDevelopment
  SetOutPath "$INSTDIR"
  File /r "${TREE}\include"
  File /r "${TREE}\lib"
  File /r "${TREE}\examples"
SectionEnd

Section "Guide and reference" SecDocuments
  SetOutPath "$INSTDIR\share"
  File /r "${TREE}\share\doc"
SectionEnd

Var StoreIsEmpty

Function NoteFile
  StrCpy $StoreIsEmpty 0
  Push StopLocate
FunctionEnd

Section /o "Sample plant, where there is no store yet" SecSample
  StrCpy $StoreIsEmpty 1
  ${Locate} "$DataRoot\data" "/L=F" NoteFile
  ${Locate} "$ProgramRoot\meta" "/L=F" NoteFile
  ${If} $DataRoot == ""
  ${OrIf} $ProgramRoot == ""
    StrCpy $StoreIsEmpty 0
  ${EndIf}
  ${If} $StoreIsEmpty = 0
    ${Tell} "The sample plant isn't laid out, for there is a store"
  ${Else}
    InitPluginsDir
    SetOutPath "$PLUGINSDIR"
    File /r "${TREE}\examples\store\data-root"
    File /r "${TREE}\examples\store\program-root"
    CopyFiles /SILENT "$PLUGINSDIR\data-root\*.*" "$DataRoot"
    !insertmacro LayOut "$PLUGINSDIR\program-root" "$ProgramRoot"
    SetOutPath "$INSTDIR" ; the other folder goes
    ${Tell} "The sample plant is laid out"
  ${EndIf}
SectionEnd

Section /o "norvctl on the search path" SecPath
  StrCpy $R0 "$INSTDIR\bin"
  Call AddToSearchPath
  WriteRegStr HKLM "${OWN_KEY}" "OnSearchPath" "$R0"
SectionEnd

Section "-end"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegStr HKLM "${PROGRAMS_KEY}" "DisplayName" "${PRODUCT}"
  WriteRegStr HKLM "${PROGRAMS_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${PROGRAMS_KEY}" "DisplayIcon" "$INSTDIR\uninstall.exe"
  WriteRegStr HKLM "${PROGRAMS_KEY}" "Publisher" "${PUBLISHER}"
  WriteRegStr HKLM "${PROGRAMS_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKLM "${PROGRAMS_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKLM "${PROGRAMS_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKLM "${PROGRAMS_KEY}" "EstimatedSize" $0
  WriteRegDWORD HKLM "${PROGRAMS_KEY}" "NoModify" 1
  WriteRegDWORD HKLM "${PROGRAMS_KEY}" "NoRepair" 1
  !insertmacro CloseLog
  !insertmacro EndAndTellWhatIsHeld
SectionEnd

; An option is given by 1, as in /SAMPLE=1.
!macro SelectByOption OPTION SECTION
  ${GetOptions} $R0 "/${OPTION}=" $0
  ${If} $0 == 1
    !insertmacro SelectSection ${SECTION}
  ${EndIf}
!macroend

Function .onInit
  ${GetParameters} $R0
  !insertmacro SelectByOption SAMPLE ${SecSample}
  !insertmacro SelectByOption PATH ${SecPath}
  ReadRegStr $0 HKLM "${OWN_KEY}" "OnSearchPath"
  ${If} $0 != ""
    !insertmacro SelectSection ${SecPath} ; as it was
  ${EndIf}
FunctionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${SecProgram} "What programs load, what it is managed with, and where it \
    keeps the configuration. A store that is there stays as it is."
  !insertmacro MUI_DESCRIPTION_TEXT ${SecDevelopment} "To write clients in C, C++ and other languages."
  !insertmacro MUI_DESCRIPTION_TEXT ${SecDocuments} "Pages for a browser."
  !insertmacro MUI_DESCRIPTION_TEXT ${SecSample} "A made-up sugar factory to try everything on."
  !insertmacro MUI_DESCRIPTION_TEXT ${SecPath} "For all users of this machine."
!insertmacro MUI_FUNCTION_DESCRIPTION_END

!undef TAKE_AWAY

; Removing ------------------------------------------------------------------------------------------------

!define TAKE_AWAY un.TakeAway

Var IsUpgrade

Section "un.${PRODUCT}" SecRemoval
  SectionIn RO
  !insertmacro TakeAway "$INSTDIR\bin\NorvepaBl64x.dll"
  !insertmacro TakeAway "$INSTDIR\bin\norvctl.exe"
  !include "${FILES}"
  !insertmacro RemoveWhatWasHeld "$INSTDIR\bin\NorvepaBl64x.dll"
  !insertmacro RemoveWhatWasHeld "$INSTDIR\bin\norvctl.exe"
  ${IfNot} $IsUpgrade = 1
    Delete "$INSTDIR\uninstall.exe"
    Delete "$INSTDIR\install.log"
    ${If} $Held = 1
      RMDir /REBOOTOK "$INSTDIR\bin"
      RMDir /REBOOTOK "$INSTDIR"
    ${Else}
      RMDir "$INSTDIR"
    ${EndIf}
  ${EndIf}
SectionEnd

Section "-un.traces"
  ReadRegStr $R0 HKLM "${OWN_KEY}" "OnSearchPath"
  ${If} $R0 != ""
    Call un.RemoveFromSearchPath ; the next version may lie elsewhere, and puts itself there again
    DeleteRegValue HKLM "${OWN_KEY}" "OnSearchPath"
  ${EndIf}
  ${If} $IsUpgrade = 1
    Goto done
  ${EndIf}
  !insertmacro ReadOwnRoot $DataRoot "Corvane_Oam_Data"
  !insertmacro ReadOwnRoot $ProgramRoot "Corvane_Oam"
  Call un.RemoveLaidOut
  Call un.RemoveEmptyProgramRoot
  !insertmacro ForgetRoot $DataRoot "Corvane_Oam_Data"
  !insertmacro ForgetRoot $ProgramRoot "Corvane_Oam"
  !insertmacro ForgetEmptyKeys
  DeleteRegKey HKLM "${PROGRAMS_KEY}"
  DeleteRegKey HKLM "${OWN_KEY}"
  DeleteRegKey /ifempty HKLM "SOFTWARE\${PUBLISHER}"
done:
SectionEnd

; Only a store that is where we have put it: whoever has named another place, keeps it.
Section /o "un.The stored configuration" SecPurge
  ${If} $DataRoot != ""
    RMDir /r "$DataRoot"
    ${If} ${FileExists} "$DataRoot\*.*"
      ${Tell} "Error: it can't be removed: $DataRoot"
    ${EndIf}
    !insertmacro RemoveEmptyRoot "$DataRoot"
  ${Else}
    ${Tell} "The stored configuration stays: it is where the registry says, and that wasn't written by the installer"
  ${EndIf}
SectionEnd

Section "-un.end"
  !insertmacro EndAndTellWhatIsHeld
SectionEnd

Function un.onInit
  SetShellVarContext all
  ${GetParameters} $R0
  ClearErrors
  ${GetOptions} $R0 "/PURGE" $0
  ${IfNot} ${Errors}
    !insertmacro SelectSection ${SecPurge}
  ${EndIf}
  ClearErrors
  ${GetOptions} $R0 "/UPGRADE" $0
  ${IfNot} ${Errors}
    StrCpy $IsUpgrade 1
  ${EndIf}
FunctionEnd

!insertmacro MUI_UNFUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${SecRemoval} "All that was installed."
  !insertmacro MUI_DESCRIPTION_TEXT ${SecPurge} "All log devices, log names and settings of this machine, for good."
!insertmacro MUI_UNFUNCTION_DESCRIPTION_END
