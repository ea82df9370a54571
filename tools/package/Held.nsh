; Files that a running program has loaded can't be overwritten or deleted, but renamed.

Var Held ; 1 when there was one

; Takes FILE away now, or from its place now and for good when Windows starts again.
!macro TakeAway FILE
  Push "${FILE}"
  Call ${TAKE_AWAY}
!macroend

!macro TakeAwayFunction UN
Function ${UN}TakeAway
  Pop $0
  ClearErrors
  Delete "$0"
  ${IfNot} ${Errors}
    Return
  ${EndIf}

  StrCpy $Held 1
  StrCpy $1 0
  ${Do}
    IntOp $1 $1 + 1
  ${LoopWhile} ${FileExists} "$0.$1.old"
  ClearErrors
  Rename "$0" "$0.$1.old"
  ${If} ${Errors}
    Delete /REBOOTOK "$0"
  ${Else}
    Delete /REBOOTOK "$0.$1.old"
  ${EndIf}
  ${Tell} "A running program holds $0. It keeps it to its end, and Windows removes it when it starts again."
FunctionEnd
!macroend

; What was held once, and may be free by now.
!macro RemoveWhatWasHeld FILE
  Delete "${FILE}.*.old"
  ${If} ${FileExists} "${FILE}.*.old"
    StrCpy $Held 1
  ${EndIf}
!macroend

!define RESTART_REQUIRED 3010

!macro EndAndTellWhatIsHeld
  ${If} $Held = 1
    SetRebootFlag true
    SetErrorLevel ${RESTART_REQUIRED}
    MessageBox MB_OK|MB_ICONINFORMATION "Programs are running that use the ${PRODUCT} that was here. They keep \
      it until they end. What is left of it goes when Windows starts again." /SD IDOK
  ${EndIf}
!macroend
