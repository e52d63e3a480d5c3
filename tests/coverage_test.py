#!/usr/bin/env python3
"""Runs the unit tests on the logic that is counted and prints its lines and branches, file by file, and those of the host
where that is counted too. Each branch of the logic must be taken.

    coverage_test.py PROGRAM"""
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parents[1]
PROGRAM = pathlib.Path(sys.argv[1]).resolve()
BUILD = PROGRAM.parent
LOGIC = BUILD / "src" / "CMakeFiles" / "kvrpage_counted.dir"
HOST = BUILD / "host" / "CMakeFiles" / "host.dir"
# Random machines and pairs of failures reach nothing that the others don't, and take long; so do the host's own tests,
# where the host is not counted.
LEFT_OUT = "ComSortAtRandom.*:ComSort.SixPorts*:DiagnosisLaws.*:FaultSweep.Two*:UartPage.EverySelection*"
OF_THE_HOST = ":DiagnosisTables.*:Placement.*:RegistryExport.*:SavedMachine.*:Tour.*"
COUNTS_HOST = next(HOST.rglob("*.gcno"), None) is not None

for counts in BUILD.rglob("*.gcda"):
    counts.unlink()
if subprocess.run([PROGRAM, "--gtest_brief=1", f"--gtest_filter=-{LEFT_OUT}{'' if COUNTS_HOST else OF_THE_HOST}"]).returncode:
    sys.exit("the tests fail")


def report(folder, source, *options):
    """Lines and branches of a folder of the tree, as counted by the objects below another."""
    gcovr = ["gcovr", "--gcov-executable", "llvm-cov gcov", "--root", ROOT, "--filter", str(ROOT / source),
             "--exclude-throw-branches", "--exclude-unreachable-branches", *options, folder]
    lines = subprocess.run([*gcovr, "--print-summary"], capture_output=True, text=True)
    branches = subprocess.run([*gcovr, "--branches"], capture_output=True, text=True)
    print(branches.stdout, lines.stdout, lines.stderr, branches.stderr, sep="")
    return lines.returncode or "(0 out of 0)" in lines.stdout # nothing counted is nothing reached


if COUNTS_HOST:
    report(HOST, "host/")
sys.exit(report(LOGIC, "src/(?!platform)", "--fail-under-branch", "100"))
