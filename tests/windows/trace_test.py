#!/usr/bin/env python3
"""The trace of the diagnostic library is that of the simulated machine, line by line, through every operator script.

    trace_test.py [SCRIPT...]"""
import os
import pathlib
import re
import shutil
import subprocess
import sys

import compare_worlds
from wine import ROOT, Prefix

HOST = pathlib.Path(os.environ.get("KVR_HOST", ROOT / "build" / "debug" / "kvrhost"))
LIBRARY = ROOT / "build" / "windows-trace" / "kvrpagex64.dll"

# Addresses and the numbers of the system's errors are each world's own, and how often a page is told what it passes over:
# that something of it is drawn.
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
    # What a comment asks of the tests' host is a command of this one.
    commands = [line.replace("# fail: ", "fail ", 1) for line in commands]
    simulated = subprocess.run([HOST, machine, *options], input="\n".join(commands).encode(), stdout=subprocess.PIPE,
                               stderr=subprocess.DEVNULL, env={**os.environ, "LC_ALL": "C.UTF-8"}, timeout=120)
    return traced(simulated.stdout.replace(b"> fail ", b"# fail: ")), traced(got)


if __name__ == "__main__":
    # The devices of another machine are known to the tests' host alone. One script at a time: two on one screen take the
    # focus from each other, which the trace tells.
    sys.exit(compare_worlds.main(sys.argv[1:], "remote_", run, jobs=1))
