; What is done and what is left as it was: shown to whoever looks on, and kept for whoever couldn't.

Var Log ; a file, or nothing

!macro OpenLog FILE
  FileOpen $Log "${FILE}" w
  FileWriteUTF16LE /BOM $Log "${PRODUCT} ${VERSION}$\r$\n"
!macroend

!macro CloseLog
  FileClose $Log
  StrCpy $Log ""
!macroend

!macro Tell TEXT
  DetailPrint "${TEXT}"
  ${If} $Log != ""
    FileWriteUTF16LE $Log "${TEXT}$\r$\n"
  ${EndIf}
!macroend
!define Tell "!insertmacro Tell"
