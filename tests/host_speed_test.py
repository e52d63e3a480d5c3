#!/usr/bin/env python3
"""What the host does to a machine with thousands of ports grows with their number and not with its square.

    host_speed_test.py KVRHOST"""
import os
import pathlib
import resource
import subprocess
import sys
import tempfile
import unittest

from large_machine import large_machine

FEW, MANY = 500, 4000


class Speed(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        for ports in (FEW, MANY):
            (self.folder / f"{ports}.reg").write_text(large_machine(ports))

    def seconds(self, *words):
        """Processor time, the best of three runs without a sanitizer: other programs' work is not counted."""
        def once():
            before = resource.getrusage(resource.RUSAGE_CHILDREN)
            subprocess.run([HOST, *words], cwd=self.folder, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                           stdin=subprocess.DEVNULL, timeout=300, check=False, env={**os.environ, "LC_ALL": "C.UTF-8"})
            after = resource.getrusage(resource.RUSAGE_CHILDREN)
            return after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
        return min(once() for _ in range(1 if SANITIZED else 3))

    def test_time_follows_the_number_of_ports(self):
        for before, after in ((["diagnose"], []), ([], ["-c", "ports"]), ([], ["-c", "open 1"]),
                              (["report", "--over"], ["report.html"])):
            few, many = (self.seconds(*before, f"{ports}.reg", *after) for ports in (FEW, MANY))
            self.assertLessEqual(many, 12 * max(few, 0.02), (before, after, few, many))

    def test_thousands_of_ports_are_diagnosed_at_once(self):
        self.assertLess(self.seconds("diagnose", f"{MANY}.reg"), 30 if SANITIZED else 2)


if __name__ == "__main__":
    HOST = pathlib.Path(sys.argv.pop(1)).resolve()
    SANITIZED = b"__asan_init" in HOST.read_bytes()
    unittest.main()
