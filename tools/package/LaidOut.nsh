; Files of ours in the program root, which others fill and change too. Of each we keep the time that it had when it
; was laid there: a file with another time is somebody's work, and stays as it is.

!define LAID_OUT_KEY "${OWN_KEY}\LaidOut" ; a value a file, named by its path

; The time of FILE, as a word.
!macro TimeOf RESULT FILE
  GetFileTime "${FILE}" $R4 $R5
  StrCpy ${RESULT} "$R4:$R5"
!macroend

Var LaidOutFrom
Var LaidOutTo

; All files below FROM to the same places below TO.
!macro LayOut FROM TO
  StrCpy $LaidOutFrom "${FROM}"
  StrCpy $LaidOutTo "${TO}"
  ${Locate} "${FROM}" "/L=F" LayOutFile
!macroend

; $R0 is the target, $R1 the time that it has by our record, $R9 the source.
Function LayOutOver
  !insertmacro TimeOf $R2 "$R0"
  ${If} ${FileExists} "$R0"
  ${AndIf} $R1 != $R2
    ${Tell} "It stays as it is: $R0"
    Return
  ${EndIf}

  System::Call 'kernel32::CopyFileW(w R9, w R0, i 0) i .R3'
  ${If} $R3 == 0
    ${Tell} "Error: it can't be written: $R0"
    Return
  ${EndIf}
  !insertmacro TimeOf $R2 "$R0"
  WriteRegStr HKLM "${LAID_OUT_KEY}" "$R0" "$R2"
FunctionEnd

; Called with each file: its path in $R9, its folder in $R8, its name in $R7. It may use $R0 to $R5.
Function LayOutFile
  StrLen $R0 $LaidOutFrom
  StrCpy $R0 $R8 "" $R0
  StrCpy $R0 "$LaidOutTo$R0"
  CreateDirectory "$R0"
  StrCpy $R0 "$R0\$R7"
  ReadRegStr $R1 HKLM "${LAID_OUT_KEY}" "$R0"
  Call LayOutOver
  ClearErrors ; which would end the walk
  Push "" ; and this goes on with it
FunctionEnd

; Folders that nothing is left in go with them.
Function un.RemoveLaidOut
  StrCpy $0 0
  ${Do}
    EnumRegValue $1 HKLM "${LAID_OUT_KEY}" $0
    ${If} $1 == ""
      ${ExitDo}
    ${EndIf}
    ReadRegStr $2 HKLM "${LAID_OUT_KEY}" $1
    !insertmacro TimeOf $3 "$1"
    ${If} $2 == $3
      Delete "$1"
    ${ElseIf} ${FileExists} "$1"
      ${Tell} "It stays, for it has been changed: $1"
    ${EndIf}
    ${GetParent} $1 $4
    RMDir "$4" ; only when nothing else is in it
    IntOp $0 $0 + 1
  ${Loop}
FunctionEnd
