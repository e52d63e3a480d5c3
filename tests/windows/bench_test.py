#!/usr/bin/env python3
"""The bench on Windows: it answers every operator script with the transcript of the bench on Linux, byte for byte, and
gives the same diagnosis of each machine. Windows' own importer applies its patch to the machine that the patch was made
from, and takes it back."""
import os
import pathlib
import subprocess
import sys

from compare_worlds import SCRIPTS, said
from wine import ROOT, Prefix, Screen, built, template, windows_path

HOST = built(pathlib.Path(os.environ.get("KVR_HOST", ROOT / "build" / "debug" / "kvrhost")), "debug")
SAMPLE = ROOT / "host" / "machines" / "sample.reg"


def same_transcript(prefix, script):
    """A script's "# fail: OPERATION N" is a command here, and not part of the transcript."""
    lines = script.read_text().splitlines()
    typed = [line.replace("# fail: ", "fail ") if line.startswith("# fail: ") else line for line in lines]
    machine = ROOT / (said(lines, "machine") or "host/machines/sample.reg")
    got, _ = prefix.run("kvrbench.exe", windows_path(machine), "--language", said(lines, "language") or "1033",
                        input="\n".join(typed).encode() + b"\n")
    kept = script.with_suffix(".out").read_bytes()
    return got.replace(b"\n> fail ", b"\n# fail: ") == kept


def same_diagnosis(prefix, machine):
    here = subprocess.run([HOST, "diagnose", machine], stdout=subprocess.PIPE)
    return prefix.run("kvrbench.exe", "diagnose", windows_path(machine)) == (here.stdout, here.returncode)


def told(prefix):
    """What is found wrong with the live machine."""
    return prefix.run("kvrhost.exe", "diagnose")[0].decode()


def patch_goes_there_and_back(prefix):
    prefix.import_machine(SAMPLE)
    before = told(prefix)
    patch = prefix.programs / "fix.reg"
    answer, code = prefix.run("kvrbench.exe", windows_path(SAMPLE), "-c", "mend", "open 1", "click Advanced",
                              'click "Sort UART"', "click Cancel", "sheet ok", "patch " + windows_path(patch))
    prefix.import_file(patch)
    mended = told(prefix)
    prefix.import_file(prefix.programs / "fix-undo.reg")
    after = told(prefix)
    for text, wanted in ((before, True), (mended, False), (after, True)):
        for sentence in ("> free COM9", "Whoever counts"):
            if (sentence in text) != wanted:
                print(f"{'missing' if wanted else 'still there'}: {sentence}\n{answer.decode()}\n{text}")
                return False
    return code == 0 and before == after


def main():
    template()
    Screen.name()
    with Prefix() as prefix:
        scripts = [script for script in sorted(SCRIPTS.glob("*.txt")) if "# remote" not in script.read_text()]
        failed = [script.stem for script in scripts if not same_transcript(prefix, script)]
        failed += [file.stem for file in sorted(SAMPLE.parent.glob("*.reg")) if not same_diagnosis(prefix, file)]
        if failed:
            print("other bytes than kept:", *failed)
        return 1 if failed or not patch_goes_there_and_back(prefix) else 0


if __name__ == "__main__":
    sys.exit(main())
