#!/usr/bin/env python3
"""The two worlds compared on random scripts: they open sheets on the devices of a machine and operate them without a
plan, with operations that fail, in nine languages. Each run has the same twenty scripts, or three hundred with KVR_LONG.

    random_worlds.py [FIRST [COUNT]]"""
import os
import pathlib
import random
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

from compare_worlds import comparable, differences
from wine import ROOT, Prefix, Screen, built, template

HOST = built(pathlib.Path(os.environ.get("KVR_HOST", ROOT / "build" / "debug" / "kvrhost")), "debug")
MACHINES = {"host/machines/sample.reg": 12, "host/machines/four_uarts.reg": 8}
# No languages in which the sheet's own buttons are translated: the simulated sheet speaks English.
LANGUAGES = [0] * 6 + [1025, 1031, 1041, 1049, 2057, 2068, 3084, 4105]
BOX_BUTTON = "     1  button"
FAILURES = ["QueryDosDeviceW", "DefineDosDeviceW", "WriteProfileStringW", "RegQueryValueExW", "RegSetValueExW",
            "RegEnumValueW", "SetupDiOpenDevRegKey", "ComDBOpen", "ComDBClaimPort", "ComDBReleasePort",
            "SetupDiSetDeviceRegistryPropertyW", "SetupDiCallClassInstaller", "LoadStringW"]

# By number, because captions differ by language. First the page, then its Advanced... dialog.
BOARD = ["pick 301 #{few}", "check 1039", "uncheck 1039", "slide 821 {few}", "slide 842 {many}", "click 1040", "click 1041",
         "click 844", "pick 846 COM{many}", "controls"]
BOARD_DIALOG = ["pick 1045 #{few}", "check 1047", "uncheck 1047", "check 1044", "uncheck 1044", "click 844", "click 1054",
                "controls"]
PORT = ["pick 841 #{few}", "pick 842 #{few}", "pick 843 #{few}", "pick 844 #{few}", "pick 845 #{few}", "click 892", "controls"]
PORT_DIALOG = ["check 1039", "uncheck 1039", "slide 821 {few}", "slide 842 {many}", "click 844", "pick 846 COM{many}",
               "controls"]


def written(seed):
    """A script, its machine and its language. It asks for a failure with "fail OPERATION N"."""
    by = random.Random(seed)

    def some(steps, most):
        chosen = [by.choice(steps).format(few=by.randrange(5), many=by.randrange(1, 40))
                  for _ in range(by.randrange(most))]
        if by.randrange(4) == 0:
            chosen.insert(by.randrange(len(chosen) + 1), f"fail {by.choice(FAILURES)} {by.randrange(1, 6)}")
        return chosen

    def leave(how):
        # A box that does not exist is not answered: both worlds say so.
        return [how] + by.choice([["answer ok"], ["answer yes", "answer ok"], ["answer no"]])

    machine = by.choice(list(MACHINES))
    lines = []
    for _ in range(by.randrange(1, 4)):
        lines.append(f"open {by.randrange(1, MACHINES[machine] + 1)}")
        for page, dialog in by.choice([[(BOARD, BOARD_DIALOG)], [(PORT, PORT_DIALOG)]]):
            lines += some(page, 6)
            if by.randrange(2):
                lines += ["click 840", *some(dialog, 6), *leave(by.choice(["click 1", "click 2"])), "click 2"]
            lines += some(page, 4)
        lines += [*leave("sheet " + by.choice(["ok", "apply", "cancel"])), "sheet cancel", "journal", "ports"]
    # Wine can be asked for only one failure of an operation at a time.
    failures = [line.split()[1] for line in lines if line.startswith("fail ")]
    once = [line for line in lines if not line.startswith("fail ") or failures.count(line.split()[1]) == 1]
    return machine, by.choice(LANGUAGES), once


def said(transcript):
    """Without the lines that ask for a failure, for which each world has its own form, and with the two controls of a
    message box in one order: Wine makes its button first."""
    lines = [line for line in comparable(transcript) if not line.startswith(("> fail ", "> # fail: ", "# fail: "))]
    for at, line in enumerate(lines[1:], 1):
        if line.startswith(BOX_BUTTON) and lines[at - 1] == "> controls":
            lines.insert(at, lines.pop(at + 1))
    return lines


def run(seed):
    machine, language, lines = written(seed)
    options = ["--language", str(language)] if language else []
    simulated = subprocess.run([HOST, ROOT / machine, *options], input="\n".join(lines).encode(), stdout=subprocess.PIPE,
                               stderr=subprocess.DEVNULL, env={**os.environ, "LC_ALL": "C.UTF-8"}, timeout=120)
    real = [line.replace("fail ", "# fail: ", 1) if line.startswith("fail ") else line for line in lines]
    with Prefix() as prefix:
        prefix.import_machine(ROOT / machine)
        got, _ = prefix.run("kvrhost_test.exe", *options, input="\n".join(real).encode(), timeout=120)
    return said(simulated.stdout), said(got)


def main(first, count):
    template()
    Screen.name()
    seeds = range(first, first + count)
    with ThreadPoolExecutor(int(os.environ.get("KVR_JOBS", 2))) as pool:
        outcomes = list(pool.map(run, seeds))
    differ, lines = 0, 0
    for seed, (expected, got) in zip(seeds, outcomes):
        lines += len(expected)
        hunks = list(differences(expected, got))
        if hunks or not expected:
            differ += 1
            print(f"script {seed} differs (- simulated, + here): {written(seed)}")
            for hunk in hunks:
                print("\n".join(hunk), end="\n\n")
    print(f"{count} scripts at random, {lines} lines compared, {differ} differ")
    return 1 if differ else 0


if __name__ == "__main__":
    sys.exit(main(int(sys.argv[1]) if len(sys.argv) > 1 else 1,
                  int(sys.argv[2]) if len(sys.argv) > 2 else 300 if "KVR_LONG" in os.environ else 20))
