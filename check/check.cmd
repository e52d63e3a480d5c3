@echo off
rem Starts the check with the options given and keeps its window open. What it has seen is in kvrcheck.txt beside it.
"%~dp0kvrcheck.exe" %*
pause
