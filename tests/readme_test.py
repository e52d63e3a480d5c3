#!/usr/bin/env python3
"""Runs the commands of README.md one after the other, as they stand there after a $, and compares what they write. Of a long
output the README has the first lines and three dots. The first ./kvr is the real one, the others are the host itself.

    readme_test.py KVRHOST [--write]

With --write, README.md gets the outputs as they are."""
import difflib
import os
import pathlib
import re
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[1]
README = ROOT / "README.md"
KVR = f"""#!/bin/sh
if [ ! -e called ]; then
    touch called
    exec '{ROOT}/kvr' "$@"
fi
[ "$1" != run ] || shift
exec '{pathlib.Path(sys.argv[1]).resolve()}' "$@"
"""


def output(command, folder):
    """What a user reads: the standard error follows, as all comes to one terminal. A status is not shown."""
    run = subprocess.run(["bash", "-c", command], cwd=folder, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                         stderr=subprocess.STDOUT, timeout=300, check=False, env={**os.environ, "LC_ALL": "C.UTF-8"})
    return [line.rstrip() for line in run.stdout.decode().splitlines()]


def answered(block, folder):
    """The block of commands with their outputs as they are now."""
    lines = []
    for part in re.split(r"^(?=\$ )", block, flags=re.MULTILINE)[1:]:
        command, *shown = part.splitlines()
        said = output(command.removeprefix("$ "), folder)
        if shown and shown[-1] == "...":
            said = said[:len(shown) - 1] + ["..."]
        lines += [command, *said]
    return "".join(line + "\n" for line in lines)


# Builds if need be, so that no output below is that of a build.
subprocess.run([ROOT / "kvr", "run"], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, check=True)
with tempfile.TemporaryDirectory() as place:
    (pathlib.Path(place) / "host").symlink_to(ROOT / "host")
    (pathlib.Path(place) / "kvr").write_text(KVR)
    (pathlib.Path(place) / "kvr").chmod(0o755)
    before = README.read_text()
    after = re.sub(r"(?<=^```\n)\$ .*?(?=^```$)", lambda block: answered(block[0], place), before, flags=re.MULTILINE | re.DOTALL)
if sys.argv[2:] == ["--write"]:
    README.write_text(after)
else:
    sys.exit("\n".join(difflib.unified_diff(before.splitlines(), after.splitlines(), "README.md", "as it is", lineterm="")) or 0)
