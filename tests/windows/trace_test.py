#!/usr/bin/env python3
"""The trace of the diagnostic library equals that of the simulated machine, line by line, in every operator script.

    trace_test.py [SCRIPT...]"""
import os
import pathlib
import re
import shutil
import subprocess
import sys

import compare_worlds
from wine import ROOT, Prefix, built

HOST = built(pathlib.Path(os.environ.get("KVR_HOST", ROOT / "build" / "debug" / "kvrhost")), "debug")
LIBRARY = built(ROOT / "build" / "windows-trace" / "kvrpagex64.dll", "windows-trace")

# These differ between the worlds: addresses, the system's error numbers, and how often a page gets messages
# about drawing, which it ignores.
OWN = re.compile(r"\bx[0-9A-F]{16}\b|(?<=GetLastError\(\):)\d+")
PASSED_OVER = re.compile(r"  ----> _OnNotify\( \)\n  <---- _OnNotify, bSuccess:0\n")


def traced(transcript):
    text = "".join(line + "\n" for line in compare_worlds.comparable(transcript))
    return OWN.sub("...", PASSED_OVER.sub("", text)).splitlines()


def run(script):
    lines = script.read_text().splitlines()
    machine, options = compare_worlds.setting(lines)
    commands = ["trace on", *(line for line in lines if not line.startswith("trace "))]
    with Prefix() as prefix:
        shutil.copy(LIBRARY, prefix.library)
        prefix.import_machine(machine)
        got, _ = prefix.run("kvrhost_test.exe", *options, input="\n".join(commands).encode(), timeout=120)
    # A comment for the tests' host is a command for this one.
    commands = [line.replace("# fail: ", "fail ", 1) for line in commands]
    simulated = subprocess.run([HOST, machine, *options], input="\n".join(commands).encode(), stdout=subprocess.PIPE,
                               stderr=subprocess.DEVNULL, env={**os.environ, "LC_ALL": "C.UTF-8"}, timeout=120)
    return traced(simulated.stdout.replace(b"> fail ", b"# fail: ")), traced(got)


if __name__ == "__main__":
    # Only the tests' host can make devices belong to another machine. One script at a time: two on one screen
    # take the focus from each other, and the trace shows that.
    sys.exit(compare_worlds.main(sys.argv[1:], ("remote_", "check_"), run, jobs=1))
