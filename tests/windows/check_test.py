#!/usr/bin/env python3
"""The check as a person runs it: kvrcheck.exe beside the library in a folder of its own. What it sees under Wine is what
docs/kvrcheck_wine.txt says, apart from what it tells of the machine; and it leaves nothing but its file.

    check_test.py [KEEP]     writes the report to the file KEEP"""
import os
import pathlib
import shutil
import sys

from wine import BUILD, ROOT, Prefix

KEPT = ROOT / "docs" / "kvrcheck_wine.txt"
# Other builds of the library, and what Wine's own memory does, differ from run to run.
FREE = ("about.", "sheets.more_kilobytes", "sheets.more_handles", "sheets.opened_and_closed")


def settled(text):
    return [line for line in text.splitlines() if not line.startswith(FREE)]


def registry(prefix):
    prefix.run("regedit", "/E", "C:\\all.reg")
    return set((prefix.place / "drive_c" / "all.reg").read_text("utf-16").splitlines())


def main(keep):
    failed = []

    def check(what, holds, told=""):
        if not holds:
            failed.append(what)
            print(f"not so: {what}", told)

    with Prefix() as prefix:
        folder = prefix.place / "drive_c" / "kit"
        folder.mkdir()
        for file in ("kvrcheck.exe", "kvrpagex64.dll"):
            shutil.copy(BUILD / file, folder)
        before = registry(prefix)
        times = 1000 if keep or "KVR_LONG" in os.environ else 40
        told, code = prefix.run("C:\\kit\\kvrcheck.exe", "--times", times, timeout=280)
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
    return bool(failed)


if __name__ == "__main__":
    sys.exit(main(sys.argv[1] if len(sys.argv) > 1 else None))
