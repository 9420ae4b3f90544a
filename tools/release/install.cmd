@echo off
rem Registers Quorvix Client for Outlook for the current user, with the
rem regsvr32 of Office's bitness. No administrator rights are needed.
rem
rem   install.cmd          bitness from Office's own registry entries
rem   install.cmd x64      64-bit Office
rem   install.cmd x86      32-bit Office
rem
rem Close Outlook first. Exit code 0 when registered.
setlocal
call "%~dp0bitness.cmd" "%~1"
if errorlevel 1 exit /b 2
echo Registering "%DLL%" for %BITS% Office ...
"%REGSVR32%" /s "%DLL%"
if errorlevel 1 (
  echo Registration failed ^(regsvr32 exit code %errorlevel%^).
  exit /b 1
)
echo Quorvix Client for Outlook is registered. Start Outlook to use it.
exit /b 0
