; The two roots of the store: where the registry says, and otherwise where we make them.

!define LOCATIONS_KEY "SOFTWARE\Marvolt\Shared Tools\NorvDOS64"
!define FIXED_FOLDER "Marvolt\Automation\Corvane OAM"

; The system functions that are called here take the sign of the machine's key for part of it.
!define MACHINE -2147483646
!define ANY_TYPE 0xFFFF

Var DataRoot
Var ProgramRoot

; Answers a root in VARIABLE. Whatever value is there stays, also one that we can't make sense of.
!macro ReadOrNameRoot VARIABLE VALUE DEFAULT
  System::Call 'advapi32::RegGetValueW(p ${MACHINE}, w "${LOCATIONS_KEY}", w "${VALUE}", i ${ANY_TYPE}, p 0, p 0, p 0) i .r0'
  ${If} $0 == 0
    ReadRegStr ${VARIABLE} HKLM "${LOCATIONS_KEY}" "${VALUE}"
    ${Tell} "${VALUE} stays as it is: ${VARIABLE}"
  ${Else}
    StrCpy ${VARIABLE} "${DEFAULT}"
    WriteRegStr HKLM "${LOCATIONS_KEY}" "${VALUE}" "${VARIABLE}"
    WriteRegStr HKLM "${OWN_KEY}" "${VALUE}" "${VARIABLE}"
    ${Tell} "${VALUE} is set: ${VARIABLE}"
  ${EndIf}
!macroend

; Answers a root in VARIABLE if it is as we named it, and nothing otherwise.
!macro ReadOwnRoot VARIABLE VALUE
  ReadRegStr ${VARIABLE} HKLM "${OWN_KEY}" "${VALUE}"
  ReadRegStr $0 HKLM "${LOCATIONS_KEY}" "${VALUE}"
  ${If} $0 != ${VARIABLE}
    StrCpy ${VARIABLE} ""
  ${EndIf}
!macroend

!macro ForgetRoot OWN VALUE
  ${If} ${OWN} != ""
    DeleteRegValue HKLM "${LOCATIONS_KEY}" "${VALUE}"
  ${EndIf}
!macroend

!macro ForgetEmptyKeys
  DeleteRegKey /ifempty HKLM "${LOCATIONS_KEY}"
  DeleteRegKey /ifempty HKLM "SOFTWARE\Marvolt\Shared Tools"
  DeleteRegKey /ifempty HKLM "SOFTWARE\Marvolt"
!macroend

!define MODIFY 0x1301BF
!define FILE_OBJECT 1
!define OWN_ENTRIES_AND_THOSE_ABOVE 0x20000004

; The folder in $R0 may be changed by whoever has signed in, with all that will be in it: every tool and driver
; writes to the store, whoever runs it. The rights that it has from the folder above stay.
Function LetUsersChange
  System::Call 'advapi32::ConvertStringSecurityDescriptorToSecurityDescriptorW(w "D:(A;OICI;${MODIFY};;;AU)", i 1, *p .r1, p 0) i .r0'
  System::Call 'advapi32::GetSecurityDescriptorDacl(p r1, *i, *p .r2, *i) i .r0'
  System::Call 'advapi32::SetNamedSecurityInfoW(w R0, i ${FILE_OBJECT}, i ${OWN_ENTRIES_AND_THOSE_ABOVE}, p 0, p 0, p r2, p 0) i .r0'
  System::Call 'kernel32::LocalFree(p r1)'
  ${If} $0 == 0
    ${Tell} "Users may change $R0"
  ${Else}
    ${Tell} "Error $0: users may not change $R0. Give them the right to."
  ${EndIf}
FunctionEnd

!macro MakeFolder FOLDER
  ClearErrors
  CreateDirectory "${FOLDER}"
  ${If} ${Errors}
    ${Tell} "Error: there is no folder ${FOLDER}, and none can be made"
  ${EndIf}
!macroend

Function MakeDataRoot
  ${If} $DataRoot == ""
    Return
  ${EndIf}
  ${IfNot} ${FileExists} "$DataRoot\*.*"
    !insertmacro MakeFolder "$DataRoot"
    StrCpy $R0 $DataRoot
    Call LetUsersChange
  ${EndIf}
  !insertmacro MakeFolder "$DataRoot\data\LogDevices"
  !insertmacro MakeFolder "$DataRoot\data\LogNames"
  !insertmacro MakeFolder "$DataRoot\data\ParameterData"
FunctionEnd

Function MakeProgramRoot
  ${If} $ProgramRoot == ""
    Return
  ${EndIf}
  !insertmacro MakeFolder "$ProgramRoot\meta\Boards"
  !insertmacro MakeFolder "$ProgramRoot\meta\Protocols"
  !insertmacro MakeFolder "$ProgramRoot\meta\DefaultLogDevices"
  !insertmacro MakeFolder "$ProgramRoot\Schemes"
FunctionEnd

; ROOT, where it is empty, and the two folders above it that we have made for it.
!macro RemoveEmptyRoot ROOT
  RMDir "${ROOT}"
  ${GetParent} "${ROOT}" $0
  RMDir "$0"
  ${GetParent} "$0" $0
  RMDir "$0"
!macroend

; What nobody has put anything in goes.
Function un.RemoveEmptyProgramRoot
  ${If} $ProgramRoot == ""
    Return
  ${EndIf}
  RMDir "$ProgramRoot\meta\Boards"
  RMDir "$ProgramRoot\meta\Protocols"
  RMDir "$ProgramRoot\meta\DefaultLogDevices"
  RMDir "$ProgramRoot\meta"
  RMDir "$ProgramRoot\Schemes"
  RMDir "$ProgramRoot\bin"
  !insertmacro RemoveEmptyRoot "$ProgramRoot"
FunctionEnd
