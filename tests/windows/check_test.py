#!/usr/bin/env python3
"""The check as a person runs it: kvrcheck.exe beside the library in a folder of its own. What it sees under Wine is what
docs/kvrcheck_wine.txt says, apart from what it tells of the machine; and it leaves nothing but its file. It is told that it
is in a sandbox, where it also makes devices; for these it has stand-ins.

    check_test.py [KEEP]     writes the report to the file KEEP"""
import os
import pathlib
import shutil
import sys

from wine import BUILD, HOST_BUILD, ROOT, Checks, Prefix

KEPT = ROOT / "docs" / "kvrcheck_wine.txt"
STAND_IN = HOST_BUILD / "standins" / "cfgmgr32.dll"
# Other builds of the library, and what Wine's own memory does, differ from run to run.
FREE = ("about.", *(part + fact for part in ("sheets", "devices.pages")
                    for fact in (".more_kilobytes", ".more_handles", ".opened_and_closed")))


def settled(text):
    return [line for line in text.splitlines() if not line.startswith(FREE)]


def registry(prefix):
    prefix.run("regedit", "/E", "C:\\all.reg")
    lines = (prefix.place / "drive_c" / "all.reg").read_text("utf-16").splitlines()
    return {line for line in lines if "Temporary System Parameters" not in line}  # Wine makes them when it likes


def install(prefix):
    """The kit in a folder of its own, and the stand-in in the place of the system's library. Returns the folder."""
    folder = prefix.place / "drive_c" / "kit"
    folder.mkdir()
    for file in ("kvrcheck.exe", "kvrpagex64.dll"):
        shutil.copy(BUILD / file, folder)
    system = prefix.place / "drive_c" / "windows" / "system32" / STAND_IN.name
    system.unlink()
    shutil.copy(STAND_IN, system)
    return folder


def report_of(folder):
    """What was seen, by the names of the facts."""
    lines = (folder / "kvrcheck.txt").read_text().splitlines()
    return {name: seen for name, _, seen in (line.split("\t") for line in lines if line.count("\t") == 2)}


def main(keep):
    check = Checks()
    with Prefix() as prefix:
        prefix.import_machine(ROOT / "host/machines/sample.reg")
        prefix.reg("delete", r"HKLM\HARDWARE\DEVICEMAP\SERIALCOMM")  # as in a sandbox, which has no port
        prefix.run("kvrhost.exe", input=b"devices\n")  # Wine changes the spelling of what it lists for the first time
        folder = install(prefix)
        prefix.environment = (lambda given: lambda: {**given, "USER": "WDAGUtilityAccount"})(prefix.environment())
        before = registry(prefix)
        times = 1000 if keep or "KVR_LONG" in os.environ else 40
        told, code = prefix.run("C:\\kit\\kvrcheck.exe", "--devices", "--times", times, timeout=800)
        text = (folder / "kvrcheck.txt").read_bytes().decode()
        if keep:
            pathlib.Path(keep).write_text(text)
            return 0
        kept = settled(KEPT.read_text())
        check("the report is the kept one", settled(text) == kept,
              "\n".join(f"{'-' if line in kept else '+'} {line}"[:400] for line in set(settled(text)) ^ set(kept)))
        check("every sheet opened", f"{times} of {times}\t{times} of {times}\n" in text)
        check("it ends with the count", text.splitlines()[-1] in told.decode(), told)
        check("the exit status says whether all held", code == 1, code)
        changed = registry(prefix) ^ before
        check("the registry is as before", not changed, sorted(changed))
        check("only the report is new",
              {file.name for file in folder.iterdir()} == {"kvrcheck.exe", "kvrpagex64.dll", "kvrcheck.txt"})
        (folder / "kvrpagex64.dll").unlink()
        told, code = prefix.run("C:\\kit\\kvrcheck.exe")
        text = (folder / "kvrcheck.txt").read_bytes().decode()
        check("without the library it says so", code == 1 and "library.loaded\tyes\terror 126" in text, told)
    return bool(check.failed)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1] if len(sys.argv) > 1 else None))
