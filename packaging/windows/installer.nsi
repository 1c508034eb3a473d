; The installer: for one user, without administrator rights. The build gives
;   SOURCE   a folder as it is to be installed      VERSION  of the program, such as 1.0.0      ICON  its icon
;   OUTPUT   the installer to write                 REMOVAL  a script that removes what SOURCE holds, file by file
; setup.exe /S installs without a window, /D=FOLDER (the last word, without quotes) elsewhere.

Target amd64-unicode
Unicode true
ManifestDPIAware true
RequestExecutionLevel user
SetCompressor /SOLID lzma
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include x64.nsh

!define NAME "Varnoth Monitor"
!define CLASSES "Software\Classes"
!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\VarnothMonitor"
!define OWN "Software\VarnothMonitor\Installer"
!define PROGRAM "$INSTDIR\bin\varnoth.exe"

Name "${NAME}"
BrandingText "${NAME} ${VERSION}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\${NAME}"
InstallDirRegKey HKCU "${ENTRY}" "InstallLocation"
ShowInstDetails nevershow
ShowUninstDetails nevershow

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "${PROGRAM}"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "German"

LangString Runs ${LANG_ENGLISH} "${NAME} is running. Close it first, then choose Retry."
LangString Runs ${LANG_GERMAN} "${NAME} läuft noch. Beenden Sie das Programm und wählen Sie dann Wiederholen."
LangString Configuration ${LANG_ENGLISH} "Varnoth configuration"
LangString Configuration ${LANG_GERMAN} "Varnoth-Konfiguration"
LangString Recording ${LANG_ENGLISH} "Varnoth recording"
LangString Recording ${LANG_GERMAN} "Varnoth-Aufzeichnung"
LangString Comment ${LANG_ENGLISH} "Configure and watch the Varnoth measuring light curtain"
LangString Comment ${LANG_GERMAN} "Den messenden Lichtvorhang Varnoth einstellen und beobachten"
LangString Needs64 ${LANG_ENGLISH} "${NAME} needs a 64-bit version of Windows 10 or 11."
LangString Needs64 ${LANG_GERMAN} "${NAME} braucht Windows 10 oder 11 mit 64 Bit."

VIProductVersion "${VERSION}.0"
VIFileVersion "${VERSION}.0"
!macro VersionTexts LANGUAGE DESCRIPTION
    VIAddVersionKey /LANG=${LANGUAGE} "ProductName" "${NAME}"
    VIAddVersionKey /LANG=${LANGUAGE} "ProductVersion" "${VERSION}"
    VIAddVersionKey /LANG=${LANGUAGE} "FileVersion" "${VERSION}"
    VIAddVersionKey /LANG=${LANGUAGE} "FileDescription" "${DESCRIPTION}"
    VIAddVersionKey /LANG=${LANGUAGE} "CompanyName" "developers of the Varnoth Monitor"
    VIAddVersionKey /LANG=${LANGUAGE} "LegalCopyright" "Copyright 2026 developers of the Varnoth Monitor"
!macroend
!insertmacro VersionTexts ${LANG_ENGLISH} "${NAME} setup"
!insertmacro VersionTexts ${LANG_GERMAN} "Installation von ${NAME}"

; A program that runs cannot be replaced or removed; without a window that is exit code 3.
!macro NeedsProgramClosed
    check:
    ${If} ${FileExists} "${PROGRAM}"
        ClearErrors
        FileOpen $0 "${PROGRAM}" a
        ${If} ${Errors}
            MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(Runs)" /SD IDCANCEL IDRETRY check
            SetErrorLevel 3
            Quit
        ${EndIf}
        FileClose $0
    ${EndIf}
!macroend

; A file type: what opens it before is kept, and comes back with the removal.
!macro TakeType EXTENSION TYPE TEXT
    WriteRegStr HKCU "${CLASSES}\${TYPE}" "" "${TEXT}"
    WriteRegStr HKCU "${CLASSES}\${TYPE}\DefaultIcon" "" "${PROGRAM},0"
    WriteRegStr HKCU "${CLASSES}\${TYPE}\shell\open\command" "" '"${PROGRAM}" -- "%1"'
    ReadRegStr $0 HKCU "${CLASSES}\${EXTENSION}" ""
    ${If} $0 != "${TYPE}"
        WriteRegStr HKCU "${OWN}" "${EXTENSION}" "$0"
    ${EndIf}
    WriteRegStr HKCU "${CLASSES}\${EXTENSION}" "" "${TYPE}"
    WriteRegNone HKCU "${CLASSES}\${EXTENSION}\OpenWithProgids" "${TYPE}"
!macroend
!macro GiveTypeBack EXTENSION TYPE
    DeleteRegKey HKCU "${CLASSES}\${TYPE}"
    DeleteRegValue HKCU "${CLASSES}\${EXTENSION}\OpenWithProgids" "${TYPE}"
    DeleteRegKey /ifempty HKCU "${CLASSES}\${EXTENSION}\OpenWithProgids"
    ReadRegStr $0 HKCU "${CLASSES}\${EXTENSION}" ""
    ${If} $0 == "${TYPE}"
        ReadRegStr $0 HKCU "${OWN}" "${EXTENSION}"
        ${If} $0 == ""
            DeleteRegValue HKCU "${CLASSES}\${EXTENSION}" ""
        ${Else}
            WriteRegStr HKCU "${CLASSES}\${EXTENSION}" "" "$0"
        ${EndIf}
    ${EndIf}
    DeleteRegKey /ifempty HKCU "${CLASSES}\${EXTENSION}"
!macroend
!define TellTheDesktop `System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'`

Function .onInit
    ${IfNot} ${RunningX64}
        MessageBox MB_OK|MB_ICONSTOP "$(Needs64)" /SD IDOK
        SetErrorLevel 4
        Quit
    ${EndIf}
    !insertmacro NeedsProgramClosed
FunctionEnd

Function un.onInit
    !insertmacro NeedsProgramClosed
FunctionEnd

Section
    SetShellVarContext current
    ; The version that is there goes first, with all that only it has.
    ${If} ${FileExists} "$INSTDIR\uninstall.exe"
        ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR'
    ${EndIf}

    SetOutPath "$INSTDIR"
    File /r "${SOURCE}\*"
    WriteUninstaller "$INSTDIR\uninstall.exe"

    SetOutPath "$INSTDIR\bin"
    CreateShortcut "$SMPROGRAMS\${NAME}.lnk" "${PROGRAM}" "" "${PROGRAM}" 0 SW_SHOWNORMAL "" "$(Comment)"
    !insertmacro TakeType ".con" "Varnoth.Configuration" "$(Configuration)"
    !insertmacro TakeType ".vrec" "Varnoth.Recording" "$(Recording)"
    ${TellTheDesktop}

    WriteRegStr HKCU "${ENTRY}" "DisplayName" "${NAME}"
    WriteRegStr HKCU "${ENTRY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${ENTRY}" "DisplayIcon" "${PROGRAM},0"
    WriteRegStr HKCU "${ENTRY}" "Publisher" "developers of the Varnoth Monitor"
    WriteRegStr HKCU "${ENTRY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${ENTRY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${ENTRY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${ENTRY}" "NoModify" 1
    WriteRegDWORD HKCU "${ENTRY}" "NoRepair" 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD HKCU "${ENTRY}" "EstimatedSize" $0
SectionEnd

; Only what the installer has put there: files by name, folders when nothing else lies in them.
Section Uninstall
    SetShellVarContext current
    SetOutPath "$TEMP"
    !include "${REMOVAL}"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\${NAME}.lnk"
    !insertmacro GiveTypeBack ".con" "Varnoth.Configuration"
    !insertmacro GiveTypeBack ".vrec" "Varnoth.Recording"
    ${TellTheDesktop}
    DeleteRegKey HKCU "${OWN}"
    DeleteRegKey /ifempty HKCU "Software\VarnothMonitor"
    DeleteRegKey HKCU "${ENTRY}"
SectionEnd
