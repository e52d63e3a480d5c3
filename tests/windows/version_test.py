#!/usr/bin/env python3
"""One version, company and copyright in everything that ships: that of the project.

The folder of the build is KVR_WINDOWS_BUILD, or build/windows."""
import os
import pathlib
import re
import unittest

import pe

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("KVR_WINDOWS_BUILD", ROOT / "build" / "windows"))
VERSION = re.search(r"project\(\w+ VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text())[1] + ".0"


class Version(unittest.TestCase):
    def test_properties_of_each_file(self):
        major, minor, patch, build = map(int, VERSION.split("."))
        for file in ("kvrpagex64.dll", "kvrhost.exe", "kvrcheck.exe"):
            version = pe.Image(BUILD / file).resources()[pe.RT_VERSION, 1, 1033]
            fixed = pe.unpack("IIII", version, version.index(b"\xbd\x04\xef\xfe"))
            self.assertEqual(fixed[2:], (major << 16 | minor, patch << 16 | build), file)
            text = version.decode("utf-16-le", "replace")
            for name, value in (("FileVersion", re.escape(VERSION)), ("ProductVersion", re.escape(VERSION)),
                                ("OriginalFilename", re.escape(file)), ("CompanyName", r"\w"), ("LegalCopyright", r"\w")):
                self.assertRegex(text, rf"{name}\0+{value}", file)

    def test_inf(self):
        for inf in BUILD.glob("inf/*/*.inf"):
            self.assertRegex(inf.read_text(), rf"DriverVer\s*= \S+,{re.escape(VERSION)}\n", inf)

    def test_change_log_begins_with_it(self):
        newest = re.search(r"^## (\S+)", (ROOT / "CHANGELOG.md").read_text(), re.M)[1]
        self.assertEqual(newest + ".0", VERSION)

    def test_manifest_of_the_host(self):
        manifest = pe.Image(BUILD / "kvrhost.exe").resources()[pe.RT_MANIFEST, 1, 0].decode()
        for part in ('name="Microsoft.Windows.Common-Controls" version="6.0.0.0"', ">PerMonitorV2", ">UTF-8<",
                     'level="asInvoker"'):
            self.assertIn(part, manifest)


if __name__ == "__main__":
    unittest.main()
