; The installer, for one user or for all. scripts/windows.sh hands over VERSION, FOLDER (what is
; installed), REMOVED (the lines that remove it, file by file), FOR_ALL (the file that an
; installation for all has beside) and SETUP (the installer to make).
Target amd64-unicode
SetCompressor /SOLID lzma
Name Orvanta
OutFile "${SETUP}"

!define UNINSTALL_KEY Software\Microsoft\Windows\CurrentVersion\Uninstall\Orvanta
!define MULTIUSER_EXECUTIONLEVEL Highest
!define MULTIUSER_INSTALLMODE_COMMANDLINE
!define MULTIUSER_INSTALLMODE_DEFAULT_CURRENTUSER
!define MULTIUSER_INSTALLMODE_INSTDIR Orvanta
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_INSTDIR_REGISTRY_VALUENAME InstallLocation
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_KEY "${UNINSTALL_KEY}"
!define MULTIUSER_INSTALLMODE_DEFAULT_REGISTRY_VALUENAME InstallLocation
!define MULTIUSER_INSTALLMODE_FUNCTION useProgramsFolder
!define MULTIUSER_USE_PROGRAMFILES64
!define MULTIUSER_MUI
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\orvanta.exe"
!include MultiUser.nsh
!include MUI2.nsh
!include FileFunc.nsh

!insertmacro MUI_PAGE_WELCOME
!insertmacro MULTIUSER_PAGE_INSTALLMODE
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName Orvanta
VIAddVersionKey FileDescription "Installs Orvanta"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey CompanyName "The Orvanta developers"
VIAddVersionKey LegalCopyright "Copyright ${YEARS}"

; One user's programs belong into a folder of that name.
Function useProgramsFolder
    StrCmp $MultiUser.InstallMode CurrentUser 0 +3
    StrCmp $INSTDIR "$LOCALAPPDATA\Orvanta" 0 +2
    StrCpy $INSTDIR "$LOCALAPPDATA\Programs\Orvanta"
FunctionEnd

Function .onInit
    !insertmacro MULTIUSER_INIT
FunctionEnd

Function un.onInit
    !insertmacro MULTIUSER_UNINIT
FunctionEnd

; The system keeps the file of a program that runs.
!macro removeProgram
    ClearErrors
    IfFileExists "$INSTDIR\orvanta.exe" 0 +6
    Delete "$INSTDIR\orvanta.exe"
    IfErrors 0 +4
    MessageBox MB_OK|MB_ICONSTOP "Orvanta is running. Close it first, then try again." /SD IDOK
    SetErrorLevel 2
    Quit
!macroend

!macro tellOfFileTypes
    System::Call "shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)"
!macroend

; What is another program's, of this user's or of all, stays with that. Wine looks for the latter
; alone in the root of the classes.
!macro addFileType ending name description icon
    ReadRegStr $0 SHCTX "Software\Classes\${ending}" ""
    StrCmp $0 "" 0 +2
    ReadRegStr $0 HKCR "${ending}" ""
    StrCmp $0 "" +2
    StrCmp $0 "${name}" 0 +2
    WriteRegStr SHCTX "Software\Classes\${ending}" "" "${name}"
    WriteRegStr SHCTX "Software\Classes\${name}" "" "${description}"
    WriteRegStr SHCTX "Software\Classes\${name}\DefaultIcon" "" "$INSTDIR\orvanta.exe,${icon}"
!macroend

!macro removeFileType ending name
    ReadRegStr $0 SHCTX "Software\Classes\${ending}" ""
    StrCmp $0 "${name}" 0 +2
    DeleteRegValue SHCTX "Software\Classes\${ending}" ""
    DeleteRegKey /ifempty SHCTX "Software\Classes\${ending}"
    DeleteRegKey SHCTX "Software\Classes\${name}"
!macroend

; The web report is made anew whenever it is asked for. A session that waits there stays, and so do
; copies: a folder that holds something is not removed.
!macro removeScratch folder
    Delete "${folder}\System\report.htm"
    RMDir "${folder}\System"
    RMDir "${folder}\rescue"
    RMDir "${folder}"
!macroend

Section "Orvanta"
    !insertmacro removeProgram
    ; What an older version had and this one lacks goes with that version.
    IfFileExists "$INSTDIR\uninstall.exe" 0 +2
    ExecWait '"$INSTDIR\uninstall.exe" /S /$MultiUser.InstallMode /UPDATE _?=$INSTDIR'
    SetOutPath "$INSTDIR"
    File /r "${FOLDER}/*"
    StrCmp $MultiUser.InstallMode AllUsers 0 +2
    File "${FOR_ALL}"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateShortcut "$SMPROGRAMS\Orvanta.lnk" "$INSTDIR\orvanta.exe"

    ; The program takes no file, so that these have a name and a picture, and nothing opens them.
    !insertmacro addFileType .bsm Orvanta.Brainstorm "Orvanta brainstorm file" 1
    !insertmacro addFileType .aze Orvanta.Analysis "Orvanta analyze file" 2
    !insertmacro tellOfFileTypes

    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayName Orvanta
    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\orvanta.exe"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" Publisher "The Orvanta developers"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
    WriteRegStr SHCTX "${UNINSTALL_KEY}" UninstallString \
        '"$INSTDIR\uninstall.exe" /$MultiUser.InstallMode'
    WriteRegStr SHCTX "${UNINSTALL_KEY}" QuietUninstallString \
        '"$INSTDIR\uninstall.exe" /S /$MultiUser.InstallMode'
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoModify 1
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" NoRepair 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD SHCTX "${UNINSTALL_KEY}" EstimatedSize $0
SectionEnd

Section "un.Orvanta"
    !insertmacro removeProgram
    !include "${REMOVED}"
    Delete "$INSTDIR\system-wide"
    Delete "$INSTDIR\uninstall.exe"
    Delete "$SMPROGRAMS\Orvanta.lnk"
    !insertmacro removeFileType .bsm Orvanta.Brainstorm
    !insertmacro removeFileType .aze Orvanta.Analysis
    DeleteRegKey SHCTX "${UNINSTALL_KEY}"
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 /UPDATE $1
    IfErrors 0 done
    !insertmacro tellOfFileTypes
    SetShellVarContext current
    !insertmacro removeScratch $INSTDIR
    !insertmacro removeScratch "$LOCALAPPDATA\Orvanta\Orvanta"
    RMDir "$LOCALAPPDATA\Orvanta"
    DeleteRegKey HKCU Software\Orvanta
done:
SectionEnd
