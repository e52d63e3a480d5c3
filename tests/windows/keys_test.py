#!/usr/bin/env python3
"""The keyboard compared: each key does the same in each dialog in the simulated windows and in real ones, according to the
listings of kvrkeys. Each run takes every third language, or all with KVR_LONG.

    keys_test.py [LANGUAGE...]"""
import difflib
import os
import pathlib
import re
import subprocess
import sys

from wine import ROOT, Prefix, built


SIMULATED = built(pathlib.Path(os.environ.get("KVR_SIMULATED_BUILD", ROOT / "build" / "debug")) / "kvrkeys", "debug")


def main(languages):
    if not languages:
        files = (ROOT / "src/resources/languages").glob("*.h")
        languages = sorted((re.match(r"\d+", file.name)[0] for file in files), key=int)
        languages = languages[::1 if "KVR_LONG" in os.environ else 3]
    expected = subprocess.run([SIMULATED, *languages], stdout=subprocess.PIPE, check=True).stdout.decode().splitlines()
    with Prefix() as prefix:
        prefix.import_machine(ROOT / "host/machines/sample.reg")
        output, code = prefix.run("kvrkeys.exe", *languages)
    got = output.decode().splitlines()
    differing = [line for line in difflib.unified_diff(expected, got, "simulated", "here", lineterm="", n=3)]
    print(*differing, sep="\n")
    dialogs = sum(not line.startswith(" ") for line in got)
    print(f"{len(languages)} languages, {dialogs} dialogs, {len(got)} lines, {'different' if differing else 'the same'}")
    return 1 if differing or code or dialogs != 4 * len(languages) else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
