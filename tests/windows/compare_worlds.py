#!/usr/bin/env python3
"""The two worlds compared: every operator script runs on the library itself, in a fresh Windows with the machine
brought in by its own importer, and its transcript must be the one kept of the simulated machine, line by line but for
the drawings.

    compare_worlds.py [SCRIPT...]

Differences that the stand-in of Windows alone explains stand in known_differences.txt, each as an exact text with its
reason. A known difference that does not occur any more fails too."""
import difflib
import os
import pathlib
import sys
from concurrent.futures import ThreadPoolExecutor

from wine import ROOT, Prefix, Screen, template

SCRIPTS = ROOT / "tests" / "scripts"
KNOWN = ROOT / "tests" / "windows" / "known_differences.txt"


def said(lines, name):
    """What a comment at the top of a script says behind its name."""
    for line in lines:
        if not line.startswith("#"):
            break
        if line.startswith(f"# {name}: "):
            return line.split(": ", 1)[1]
    return None


def comparable(transcript):
    return [line for line in transcript.decode().splitlines() if not line.startswith("  |")]


def run(script):
    lines = script.read_text().splitlines()
    with Prefix() as prefix:
        prefix.import_machine(ROOT / (said(lines, "machine") or "host/machines/sample.reg"))
        language = said(lines, "language")
        options = ["--language", language] if language else []
        transcript, _ = prefix.run("kvrhost.exe", *options, input=script.read_bytes(), timeout=120)
        return comparable(transcript)


def known_differences():
    """(script, simulated lines, lines here) to the reason."""
    known, reason = {}, []
    entry = None
    for line in KNOWN.read_text().splitlines():
        if line.startswith("#"):
            reason = [] if entry else reason
            reason.append(line[1:].strip())
            entry = None
        elif line.startswith("@ "):
            entry = known.setdefault(line[2:], {"reason": " ".join(reason), "lines": []})
        elif line and entry is not None:
            entry["lines"].append(line)
    return {(script, tuple(entry["lines"])): entry["reason"] for script, entry in known.items()}


def differences(expected, got):
    """The hunks in which the transcripts differ, each the lines with - and + before them."""
    hunk = []
    for line in difflib.ndiff(expected, got):
        if line.startswith(("- ", "+ ")):
            hunk.append(line)
        elif line.startswith("  ") and hunk:
            yield tuple(hunk)
            hunk = []
    if hunk:
        yield tuple(hunk)


def main(names):
    scripts = sorted(script for script in SCRIPTS.glob("*.txt") if not names or script.stem in names)
    template()
    Screen.name()
    with ThreadPoolExecutor(int(os.environ.get("KVR_JOBS", 2))) as pool:
        transcripts = list(pool.map(run, scripts))
    known = known_differences() if KNOWN.exists() else {}
    met, failed, lines = set(), 0, 0
    for script, got in zip(scripts, transcripts):
        expected = comparable(script.with_suffix(".out").read_bytes())
        lines += len(expected)
        new = []
        for hunk in differences(expected, got):
            if (script.stem, hunk) in known:
                met.add((script.stem, hunk))
            else:
                new.append(hunk)
        if new:
            failed += 1
            print(f"{script.stem}: differs (- simulated, + here)")
            for hunk in new:
                print("\n".join(hunk), end="\n\n")
    stale = [key for key in known if key not in met and (not names or key[0] in names)]
    for script, hunk in stale:
        print(f"{script}: a known difference does not occur any more:", *hunk, sep="\n")
    print(f"{len(scripts)} scripts, {lines} lines compared, {failed} differ, {len(met)} known differences")
    return 1 if failed or stale or not scripts else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
