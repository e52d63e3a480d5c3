#!/usr/bin/env python3
"""The host that ships, on a live machine: without input it changes nothing, it loads neither the pages nor the port
database from its own folder, and at a console it says that this is the live machine. The libraries in its import table
are found by the loader, under rules that package_test.py reads and that Wine ignores."""
import os
import pty
import re
import select
import shutil
import subprocess
import sys

from wine import BUILD, ROOT, Prefix, windows_path


def registry(prefix):
    """All values of the machine, line by line."""
    prefix.run("regedit", "/E", windows_path(prefix.place / "all.reg"), "HKEY_LOCAL_MACHINE")
    return (prefix.place / "all.reg").read_bytes().decode("utf-16").splitlines()


def greeting(prefix):
    """What the host says at a console before its first prompt, without blanks: a console moves its cursor over them."""
    ours, its = pty.openpty()
    run = subprocess.Popen(["wine", "C:\\kvr\\kvrhost.exe", "--line"], stdin=its, stdout=its, stderr=subprocess.DEVNULL,
                           env={**prefix.environment(), "TERM": "xterm"}, start_new_session=True)
    os.close(its)
    said = ""
    while not said.endswith(">") and select.select([ours], [], [], 60)[0]:
        said += re.sub(r"\x1b\[[?\d]*[A-Za-z]|\s", "", os.read(ours, 4096).decode(errors="replace"))
    run.kill()
    run.wait()
    os.close(ours)
    return said


def main():
    with Prefix() as prefix:
        prefix.import_machine(ROOT / "host/machines/sample.reg")
        prefix.run("kvrhost.exe", input=b"devices\n")  # Wine changes the spelling of what it lists for the first time
        before = registry(prefix)
        said, code = prefix.run("kvrhost.exe")
        after = registry(prefix)
        changed = set(before) ^ set(after)
        print(f"{len(before)} lines of the registry, {len(changed)} changed without input")
        failed = bool(changed or said or code or not any("UartFifoEnable" in line for line in before))

        listed, code = prefix.run("kvrhost.exe", input=b"devices\n# fail: LocalAlloc 1\nopen 1\n")
        if b"board" not in listed or b"-- sheet" not in listed:
            print("a comment of a script was obeyed, or no page opened:", listed.decode(errors="replace"))
            failed = True
        told = greeting(prefix)
        print(told)
        # In Wine every user is an administrator.
        failed |= not told.startswith("Thismachine,live,asadministrator:whatthepageschangeischangedhere")

        for library in ("standins/msports.dll", "kvrpagex64.dll"):
            shutil.copy(BUILD / library, prefix.programs)
        run = subprocess.run(["wine", "C:\\kvr\\kvrhost.exe"], input=b"open 1\nsheet cancel\n", capture_output=True,
                             env={**prefix.environment(), "WINEDEBUG": "+loaddll"})
        loaded = re.findall(r'Loaded L"([^"]+)"', run.stderr.decode(errors="replace"))
        taken = {path.lower().replace("\\\\", "\\") for path in loaded if re.search("msports|kvrpage", path, re.I)}
        print("taken:", *taken)
        failed |= taken != {rf"c:\windows\system32\{name}.dll" for name in ("msports", "kvrpagex64")}
    return failed


if __name__ == "__main__":
    sys.exit(main())
