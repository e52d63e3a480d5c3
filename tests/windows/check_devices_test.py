#!/usr/bin/env python3
"""The part of the check that makes devices, on a machine that has boards and ports of its own. It makes nothing unless it
may; it takes everything back at its end, after a failure, and at its next start if it is ended in the middle of a step
or of taking steps back; and it touches nothing that is not its own."""
import contextlib
import itertools
import os
import pty
import re
import select
import shutil
import subprocess
import sys
import tty

from check_test import STAND_IN, install, registry, report_of
from wine import BUILD, PORTS, ROOT, Checks, Prefix

SANDBOX = {"USER": "WDAGUtilityAccount"}
ENDED = 9
# Only the library calls it, for each port that it has renamed: first in the second script, then in the last.
RENAMED, SORTED = "SetupDiSetDeviceInstallParamsW 1", "SetupDiSetDeviceInstallParamsW 4"

# In which call of an operation the process ends. First while it makes the steps, with the scripts between them...
MAKING = ["WriteFile 1 ends", "ComDBClaimPort 1 ends", "ComDBClaimPort 16 ends after", "SwDeviceCreate 1 ends",
          "SwDeviceCreate 8 ends after", "SwDeviceInterfaceRegister 6 ends after", "WriteFile 26 ends",
          "RegSetValueExW 6 ends after", "SetupDiCreateDevRegKeyW 2 ends",
          "SetupDiSetDeviceRegistryPropertyW 2 ends after", "RegSetValueExW 100 ends", "DefineDosDeviceW 1 ends",
          "DefineDosDeviceW 6 ends after", "WriteProfileStringW 5 ends after", "ComDBReleasePort 1 ends after",
          f"{RENAMED} ends", f"{SORTED} ends after"]
# After these the next start does nothing but take back: what was just made has its line.
TAKEN_BACK_ALONE = ["ComDBClaimPort 16 ends after", "SwDeviceCreate 8 ends after", "RegSetValueExW 6 ends after"]
# ...then while the next start takes back what the last of those has left.
TAKING_BACK = ["RegDeleteValueW 1 ends", "RegDeleteValueW 4 ends after", "SetupDiCallClassInstaller 1 ends",
               "SetupDiCallClassInstaller 5 ends after", "DefineDosDeviceW 2 ends after", "WriteProfileStringW 1 ends",
               "ComDBReleasePort 9 ends after", "DeleteFileW 1 ends", "DeleteFileW 1 ends after"]
FAILING = ["WriteFile 20", "ComDBClaimPort 5", "SwDeviceCreate 4", "SwDeviceInterfaceRegister 2",
           "RegSetValueExW 100"]


def asked(prefix, program, answer):
    """Answers the question at a console."""
    ours, its = pty.openpty()
    tty.setraw(its)  # Enter stays what it is
    run = subprocess.Popen(["wine", program, "--devices", "--times", "1"], stdin=its, stdout=its, stderr=subprocess.DEVNULL,
                           env={**prefix.environment(), "TERM": "xterm"}, start_new_session=True)
    os.close(its)
    said = b""
    while not re.sub(rb"\x1b\[[?;\d]*[A-Za-z]|\s", b"", said).endswith(b"may:") and select.select([ours], [], [], 60)[0]:
        said += os.read(ours, 4096)
    os.write(ours, answer)
    with contextlib.suppress(OSError):  # the console ends
        while run.poll() is None:
            if select.select([ours], [], [], 0.1)[0]:
                os.read(ours, 4096)
    run.wait()
    os.close(ours)


def main():
    check = Checks()
    with Prefix() as prefix:
        prefix.import_machine(ROOT / "host/machines/sample.reg")
        install(prefix)
        journal = prefix.place / "drive_c" / "ProgramData" / "kvrcheck.journal"
        # What does not depend on the library is seen with one that has no pages, in a tenth of the time.
        quick = prefix.place / "drive_c" / "quick"
        quick.mkdir()
        shutil.copy(BUILD / "kvrcheck.exe", quick)
        shutil.copy(STAND_IN.with_name("msports.dll"), quick / "kvrpagex64.dll")

        def run(folder, *options, fault="", environment=SANDBOX):
            done = subprocess.run(prefix.processor.command("wine", f"C:\\{folder}\\kvrcheck.exe", "--times", "1", *options),
                                  env={**prefix.environment(), **environment, "KVR_FAULT": fault}, input=b"",
                                  stdout=subprocess.PIPE, timeout=120)
            return done.returncode, report_of(prefix.place / "drive_c" / folder)

        def made(folder="quick", **how):
            return run(folder, "--devices", **how)[1].get("devices.made")

        run("quick", "--devices")  # Wine changes the spelling of what it lists for the first time
        before = registry(prefix)

        def untouched(what):
            changed = registry(prefix) ^ before
            check(f"{what}: the registry is as before", not changed, sorted(changed)[:20])
            check(f"{what}: there is no journal", not journal.exists())

        check("without a terminal nothing is made", made(environment={}) == "nobody has agreed")
        check("a Windows may have no software devices", made(
            environment={**SANDBOX, "WINEDLLOVERRIDES": "msports=n,b"}) == "the system has no software devices")
        asked(prefix, "C:\\quick\\kvrcheck.exe", b"y\r")
        check("only the word agrees", report_of(quick).get("devices.made") == "nobody has agreed")
        asked(prefix, "C:\\quick\\kvrcheck.exe", b"yes\r")
        check("the word agrees", report_of(quick).get("devices.made") == "all", report_of(quick))

        for fault in FAILING:
            _, report = run("quick", "--devices", fault=fault)
            check(f"{fault} fails", report["devices.made"] != "all" and report["devices.taken_back"] == "all", report)
        _, report = run("quick", "--devices", fault="SetupDiCallClassInstaller 1")
        check("a device that does not go is taken back again", report["devices.taken_back"] == "all", report)
        untouched("after failures")

        for fault in MAKING + TAKING_BACK:
            code, report = run("kit", "--devices", fault=fault)
            check(f"{fault}: the process ends there", code == ENDED, (code, report))
            check(f"{fault}: what was left before is taken back", report.get("earlier_check.taken_back", "all") == "all", report)
            if fault in TAKEN_BACK_ALONE:
                run("quick")
            if fault in (*TAKEN_BACK_ALONE, TAKING_BACK[-1]):
                untouched(fault)

        for operation in sorted({fault.split()[0] for fault in MAKING + TAKING_BACK} if "KVR_LONG" in os.environ else ()):
            for call in itertools.count(1):
                if run("kit", "--devices", fault=f"{operation} {call} ends after")[0] != ENDED:
                    break
            check(f"{operation} ends at each of its calls", call > 5, call)
            run("quick")
            untouched(operation)

        # A journal that is not the check's own work, and a number that is no longer its own.
        run("kit", "--devices", fault=f"{RENAMED} ends after")
        with open(journal, "a") as lines:
            lines.write("number 1\nnumber 0241\ndevice ACPI\\PNP0501\\1\nwhatever\nnumber 2")
        other = r"HKLM\SYSTEM\CurrentControlSet\Enum\KVRBUS\UART\5&1&0&77"
        prefix.reg("add", other + r"\Device Parameters", "/v", "PortName", "/d", "COM247")
        for name, value in (("Class", "Ports"), ("ClassGUID", PORTS)):
            prefix.reg("add", other, "/v", name, "/d", value)
        _, report = run("quick")
        check("foreign lines are told and not obeyed", report["earlier_check.taken_back"] ==
              "all; not read: number 1; not read: number 0241; not read: device ACPI\\PNP0501\\1; not read: whatever", report)
        kept = "\n".join(registry(prefix) - before)
        check("another device keeps the number, its mark and its line", '"COM247:"' in kept and ",40,00" in kept and
              "KVRCHECK" not in kept.upper(), kept)
        check("a number that is used is not taken", made() == "COM247 is used")
    return bool(check.failed)


if __name__ == "__main__":
    sys.exit(main())
