#!/usr/bin/env python3
"""What the host writes and shows: a failed write leaves the existing file as it was, and no text of a machine
commands the terminal.

    host_files_test.py KVRHOST"""
import os
import pathlib
import resource
import signal
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[1]
SAMPLE = ROOT / "host/machines/sample.reg"


def full_disk():
    """No file can grow beyond a few lines."""
    signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
    resource.setrlimit(resource.RLIMIT_FSIZE, (100, 100))


class Host(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def says(self, machine, *commands, setting=None):
        run = subprocess.run([HOST, machine, *(word for command in commands for word in ("-c", command))],
                             capture_output=True, preexec_fn=setting, env={**os.environ, "LC_ALL": "C.UTF-8"}, check=False)
        return run.stdout.decode()

    def test_file_that_is_replaced_stays_until_the_new_one_is_whole(self):
        kept, link = self.folder / "kept.reg", self.folder / "link.reg"
        kept.write_text("before")
        kept.chmod(0o640)
        link.symlink_to(kept.name)
        for command in (f"export --over {link}", f"patch --over {link}"):
            self.assertIn("File too large", self.says(SAMPLE, "free 9", command, setting=full_disk), command)
            self.assertEqual(kept.read_text(), "before")
            self.assertEqual(len(list(self.folder.iterdir())), 2)
        self.says(SAMPLE, f"export --over {link}")
        self.assertTrue(link.is_symlink())
        self.assertEqual(kept.stat().st_mode & 0o777, 0o640)
        self.assertGreater(kept.stat().st_size, 10000)

    def test_port_database_that_was_not_read_is_not_written(self):
        machine = self.folder / "partial.reg"
        head, *keys = SAMPLE.read_text().split("\n[")
        machine.write_text("\n[".join([head, *(key for key in keys if "COM Name Arbiter" not in key)]))
        rename = ["open 5", "click Advanced", 'pick "COM Port Number" COM9', "click OK", "sheet ok"]
        told = "the COM port database was not in the file that was read, and is left out"
        self.assertNotIn(told, self.says(machine, f"export {self.folder / 'same.reg'}"))
        self.assertIn(told, said := self.says(machine, *rename, f"export {self.folder / 'new.reg'}"), said)
        self.assertNotIn("ComDB", (self.folder / "new.reg").read_text("utf-16"))

    def test_no_text_of_a_machine_commands_the_terminal(self):
        machine = self.folder / "coloured.reg"
        machine.write_text(SAMPLE.read_text().replace("serial port (COM", "serial\x1b[31m port\x07 (COM").replace(
            '"DeviceDesc"="Multi', '"DeviceDesc"="\x1b[31mMulti').replace('"BoardModelName"="', '"BoardModelName"="\x9b31m'))
        said = self.says(machine, "devices", "ports", "store 1", "diagnose", "why 9", "open 1", "show", "controls",
                         "click Advanced", "show", "click Cancel", "sheet cancel", "open COM7", "show", "sheet cancel", "free 9",
                         "changes", "journal", "patch " + str(self.folder / "fix.reg"))
        said += subprocess.run([HOST, "diff", SAMPLE, machine], capture_output=True, check=False).stdout.decode()
        said += subprocess.run([HOST, "diagnose", machine], capture_output=True, check=False).stdout.decode()
        said += subprocess.run([HOST, "diagnose", machine, "--json"], capture_output=True, check=False).stdout.decode()
        self.assertGreater(said.count("\\x1B[31m"), 20)
        self.assertEqual([character for character in said if not character.isprintable() and character != "\n"], [])


if __name__ == "__main__":
    HOST = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
