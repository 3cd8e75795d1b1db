; The folder of the console programs in the path, of one user or of all. A path may be longer than a string
; of the installer: it is worked on in memory.

; !insertmacro EditPath ADDS: takes $INSTDIR into the path where it is not in it yet, or (ADDS 0) takes it out.
!macro EditPath adds
  ${If} $MultiUser.InstallMode == "AllUsers"
    StrCpy $R5 -2147483646 ; HKEY_LOCAL_MACHINE
    StrCpy $R6 "SYSTEM\CurrentControlSet\Control\Session Manager\Environment"
  ${Else}
    StrCpy $R5 -2147483647 ; HKEY_CURRENT_USER
    StrCpy $R6 "Environment"
  ${EndIf}
  System::Call "advapi32::RegOpenKeyExW(p R5, w R6, i 0, i 3, *p .R1) i .R0"
  ${If} $R0 = 0
    StrCpy $R3 2 ; a new path is one of REG_EXPAND_SZ
    StrCpy $R4 0
    System::Call "advapi32::RegQueryValueExW(p R1, w 'Path', p 0, p 0, p 0, *i R4R4)"
    IntOp $R4 $R4 + 4096
    System::Alloc $R4
    Pop $R2
    System::Call "advapi32::RegQueryValueExW(p R1, w 'Path', p 0, *i R3R3, p R2, *i R4R4)"

    ; $R5 is where ";folder" begins, as a whole entry, and $R6 where it ends; or $R5 is 0.
    StrCpy $R7 ";$INSTDIR"
    StrLen $R8 $R7
    IntOp $R8 $R8 * 2
    StrCpy $R5 $R2
    ${Do}
      System::Call "shlwapi::StrStrIW(p R5, w R7) p .R5"
      ${If} $R5 P= 0
        ${ExitDo}
      ${EndIf}
      IntPtrOp $R6 $R5 + $R8
      System::Call "*$R6(&i2 .R9)"
      ${If} $R9 = 0
      ${OrIf} $R9 = 59
        ${ExitDo}
      ${EndIf}
      StrCpy $R5 $R6
    ${Loop}

    !if ${adds} = 1
      ${If} $R5 P= 0
        System::Call "kernel32::lstrcatW(p R2, w R7)"
    !else
      ${If} $R5 P<> 0
        System::Call "kernel32::lstrlenW(p R6) i .R9"
        IntOp $R9 $R9 * 2
        IntOp $R9 $R9 + 2
        System::Call "ntdll::RtlMoveMemory(p R5, p R6, p R9)"
    !endif
        System::Call "kernel32::lstrlenW(p R2) i .R9"
        IntOp $R4 $R9 * 2
        IntOp $R4 $R4 + 2
        ${If} $R9 = 0
          System::Call "advapi32::RegDeleteValueW(p R1, w 'Path')"
        ${Else}
          System::Call "advapi32::RegSetValueExW(p R1, w 'Path', i 0, i R3, p R2, i R4)"
        ${EndIf}
        SendMessage ${HWND_BROADCAST} ${WM_SETTINGCHANGE} 0 "STR:Environment" /TIMEOUT=1000
      ${EndIf}
    System::Free $R2
    System::Call "advapi32::RegCloseKey(p R1)"
  ${EndIf}
!macroend
