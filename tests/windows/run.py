#!/usr/bin/env python3
"""Shows the sheets of a machine's devices on the current display, or on an invisible one if there is none, with
the commands of the host at this terminal.

    run.py [MACHINE.reg]"""
import os
import subprocess
import sys

from wine import ROOT, Prefix


def main(machine):
    with Prefix(display=os.environ.get("DISPLAY")) as prefix:
        prefix.import_machine(machine)
        return subprocess.run(["wine", "C:\\kvr\\kvrhost_test.exe"], env=prefix.environment()).returncode


if __name__ == "__main__":
    sys.exit(main(sys.argv[1] if len(sys.argv) > 1 else ROOT / "host/machines/sample.reg"))
