#!/usr/bin/env python3
"""The two worlds compared: every operator script runs on the library itself, in a fresh Windows that has imported the
machine, and its transcript must equal that of the simulated machine, line by line except for the drawings.

    compare_worlds.py [SCRIPT...]"""
import difflib
import os
import pathlib
import sys
from concurrent.futures import ThreadPoolExecutor

from wine import ROOT, Prefix, Screen, template

SCRIPTS = ROOT / "tests" / "scripts"


def said(lines, name):
    """The text after the name in a comment at the top of a script."""
    for line in lines:
        if not line.startswith("#"):
            break
        if line.startswith(f"# {name}: "):
            return line.split(": ", 1)[1]
    return None


def comparable(transcript):
    return [line for line in transcript.decode().splitlines() if not line.startswith("  |")]


def setting(lines):
    """The machine of a script and the host's options for it."""
    language = said(lines, "language")
    return ROOT / (said(lines, "machine") or "host/machines/sample.reg"), ["--language", language] if language else []


def run(script):
    machine, options = setting(script.read_text().splitlines())
    with Prefix() as prefix:
        prefix.import_machine(machine)
        transcript, _ = prefix.run("kvrhost_test.exe", *options, input=script.read_bytes(), timeout=120)
    return comparable(script.with_suffix(".out").read_bytes()), comparable(transcript)


def differences(expected, got):
    """The hunks in which the transcripts differ, each as lines that begin with - or +."""
    hunk = []
    for line in difflib.ndiff(expected, got):
        if line.startswith(("- ", "+ ")):
            hunk.append(line)
        elif line.startswith("  ") and hunk:
            yield hunk
            hunk = []
    if hunk:
        yield hunk


def main(names, left_out, run_both, jobs):
    """Compares what `run_both` makes of a script in the two worlds, for the named ones or all but those left out."""
    scripts = sorted(script for script in SCRIPTS.glob("*.txt")
                     if (script.stem in names if names else not script.stem.startswith(left_out)))
    template()
    Screen.name()
    with ThreadPoolExecutor(jobs) as pool:
        transcripts = list(pool.map(run_both, scripts))
    failed, lines = 0, 0
    for script, (expected, got) in zip(scripts, transcripts):
        lines += len(expected)
        hunks = list(differences(expected, got))
        if hunks:
            failed += 1
            print(f"{script.stem}: differs (- simulated, + here)")
            for hunk in hunks:
                print("\n".join(hunk), end="\n\n")
    print(f"{len(scripts)} scripts, {lines} lines compared, {failed} differ")
    return 1 if failed or not scripts else 0


if __name__ == "__main__":
    # The library that ships contains no trace, and the scripts of the check run in check_test.py.
    sys.exit(main(sys.argv[1:], ("trace_", "check_"), run, int(os.environ.get("KVR_JOBS", 2))))
