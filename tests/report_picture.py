#!/usr/bin/env python3
"""Takes a picture of the report on the sample machine with Debian's chromium.

    report_picture.py KVRHOST PICTURE.png"""
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

SAMPLE = pathlib.Path(__file__).resolve().parents[1] / "host/machines/sample.reg"

host, picture = (pathlib.Path(word).resolve() for word in sys.argv[1:])
with tempfile.TemporaryDirectory() as folder:
    # The report names its machine and the day on which that was exported.
    machine = pathlib.Path(folder, "machine.reg")
    shutil.copy(SAMPLE, machine)
    os.utime(machine, (1_790_000_000, 1_790_000_000))
    subprocess.run([host, "report", "machine.reg", "report.html"], cwd=folder, check=True)
    subprocess.run(["/usr/bin/chromium", "--headless", "--no-sandbox", "--disable-gpu", "--hide-scrollbars", "--window-size=900,1400",
                    f"--user-data-dir={folder}/browser", f"--screenshot={picture}", f"file://{folder}/report.html"],
                   cwd=folder, check=True, timeout=120, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
assert picture.read_bytes().startswith(b"\x89PNG")
