@echo off
rem Unregisters Quorvix Client for Outlook for the current user, with the
rem regsvr32 of Office's bitness; the settings of the user stay.
rem
rem   uninstall.cmd [x64|x86]
rem
rem Close Outlook first. Exit code 0 when unregistered.
setlocal
call "%~dp0bitness.cmd" "%~1"
if errorlevel 1 exit /b 2
echo Unregistering "%DLL%" ...
"%REGSVR32%" /s /u "%DLL%"
if errorlevel 1 (
  echo Unregistration failed ^(regsvr32 exit code %errorlevel%^).
  exit /b 1
)
echo Quorvix Client for Outlook is unregistered. The folder can be deleted now.
exit /b 0
