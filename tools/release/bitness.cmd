@echo off
rem Sets BITS (x64 or x86), DLL (the add-in of that bitness beside this
rem script) and REGSVR32 (the regsvr32 that loads it) for install.cmd and
rem uninstall.cmd. BITS is the argument if one is given, else what Office
rem recorded: the Bitness of Outlook (16.0, 15.0, 14.0), else the Platform
rem of a Click-to-Run installation; 32-bit Office of an MSI installation on
rem 64-bit Windows records under WOW6432Node. Exit code 1 when unknown.
set "BITS=%~1"
if defined BITS goto chosen
for %%V in (16.0 15.0 14.0) do (
  if not defined BITS call :read "HKLM\SOFTWARE\Microsoft\Office\%%V\Outlook" Bitness
  if not defined BITS call :read "HKLM\SOFTWARE\WOW6432Node\Microsoft\Office\%%V\Outlook" Bitness
)
if not defined BITS call :read "HKLM\SOFTWARE\Microsoft\Office\ClickToRun\Configuration" Platform
if not defined BITS (
  echo Office's bitness is not recorded here: give it as the argument, x64 or x86.
  exit /b 1
)
:chosen
if /i "%BITS%"=="x64" goto x64
if /i "%BITS%"=="x86" goto x86
echo Unknown bitness "%BITS%": give x64 or x86.
exit /b 1

:x64
set "DLL=%~dp0x64\QVXClient.dll"
set "REGSVR32=%SystemRoot%\System32\regsvr32.exe"
rem A 32-bit prompt on 64-bit Windows reaches the 64-bit one through Sysnative.
if exist "%SystemRoot%\Sysnative\regsvr32.exe" set "REGSVR32=%SystemRoot%\Sysnative\regsvr32.exe"
exit /b 0

:x86
set "DLL=%~dp0x86\QVXClient.dll"
set "REGSVR32=%SystemRoot%\System32\regsvr32.exe"
if exist "%SystemRoot%\SysWOW64\regsvr32.exe" set "REGSVR32=%SystemRoot%\SysWOW64\regsvr32.exe"
exit /b 0

rem :read KEY VALUE sets BITS to the value's text, if the value exists: reg
rem answers its line as NAME, REG_SZ and the text.
:read
for /f "tokens=1-3" %%A in ('reg query "%~1" /v %2 2^>nul') do (
  if /i "%%A"=="%2" if /i "%%B"=="REG_SZ" set "BITS=%%C"
)
exit /b 0
