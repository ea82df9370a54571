; The machine's search path for programs. It is longer than a text of this language may be: it is never held in one,
; but in memory, as ";PATH;", where each folder has a semicolon on both sides.

!define ENVIRONMENT_KEY "SYSTEM\CurrentControlSet\Control\Session Manager\Environment"
!define TEXT_NOT_EXPANDED 0x10000006
!define OF_ENVIRONMENT 'p ${MACHINE}, w "${ENVIRONMENT_KEY}", w "Path"'

; $R0 is the folder; its place in the path is answered in $R3, 0 when it has none. $R1 is the path, $R2 its type.
; Nothing is answered, $R1 is 0, when the path can't be read.
!macro SearchPathFunctions UN
Function ${UN}ReadSearchPath
  StrCpy $R1 0
  System::Call 'advapi32::RegGetValueW(${OF_ENVIRONMENT}, i ${TEXT_NOT_EXPANDED}, *i .R2, p 0, *i .r1) i .r0'
  ${If} $0 <> 0
    Return
  ${EndIf}
  StrLen $2 $R0
  IntOp $2 $2 * 2
  IntOp $2 $2 + $1
  IntOp $2 $2 + 16 ; semicolons and the terminator
  System::Alloc $2
  Pop $R1
  IntPtrOp $3 $R1 + 2
  System::Call 'advapi32::RegGetValueW(${OF_ENVIRONMENT}, i ${TEXT_NOT_EXPANDED}, p 0, p r3, *i r1) i .r0'
  System::Call '*$R1(&i2 59)'
  System::Call 'kernel32::lstrcatW(p R1, w ";")'
  System::Call 'shlwapi::StrStrIW(p R1, w ";$R0;") p .R3'
FunctionEnd

; Without the semicolons at its ends.
Function ${UN}WriteSearchPath
  System::Call 'kernel32::lstrlenW(p R1) i .r0'
  IntOp $1 $0 - 1
  IntOp $1 $1 * 2
  IntPtrOp $2 $R1 + $1
  System::Call '*$2(&i2 0)'
  IntPtrOp $2 $R1 + 2
  System::Call 'advapi32::RegSetKeyValueW(${OF_ENVIRONMENT}, i R2, p r2, i r1) i .r0'
  ${If} $0 <> 0
    ${Tell} "Error $0: the search path can't be written"
  ${EndIf}
  SendMessage ${HWND_BROADCAST} ${WM_SETTINGCHANGE} 0 "STR:Environment" /TIMEOUT=500
FunctionEnd
!macroend

!insertmacro SearchPathFunctions ""
!insertmacro SearchPathFunctions "un."

Function AddToSearchPath
  Call ReadSearchPath
  ${If} $R1 == 0
    ${Tell} "Error: the search path can't be read"
    Return
  ${EndIf}
  ${If} $R3 == 0
    System::Call 'kernel32::lstrcatW(p R1, w "$R0;")'
    Call WriteSearchPath
  ${EndIf}
  System::Free $R1
FunctionEnd

Function un.RemoveFromSearchPath
  Call un.ReadSearchPath
  ${If} $R1 == 0
    Return
  ${EndIf}
  ${If} $R3 != 0
    StrLen $0 $R0
    IntOp $0 $0 + 1
    IntOp $0 $0 * 2
    IntPtrOp $1 $R3 + $0
    System::Call 'kernel32::lstrlenW(p r1) i .r2'
    IntOp $2 $2 + 1
    IntOp $2 $2 * 2
    System::Call 'kernel32::RtlMoveMemory(p R3, p r1, p r2)'
    Call un.WriteSearchPath
  ${EndIf}
  System::Free $R1
FunctionEnd
