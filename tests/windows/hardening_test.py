#!/usr/bin/env python3
"""What a library that elevated processes load must be, read from the file itself.

The folder of the build is KVR_WINDOWS_BUILD, or build/windows."""
import os
import pathlib
import re
import unittest

import pe

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("KVR_WINDOWS_BUILD", ROOT / "build" / "windows"))
LIBRARY = BUILD / "kvrpagex64.dll"

SYSTEM_LIBRARIES = {"KERNEL32.DLL", "USER32.DLL", "COMCTL32.DLL", "ADVAPI32.DLL", "SETUPAPI.DLL", "MSPORTS.DLL",
                    "MSVCRT.DLL"}
# These would search for a library, or find a function, at run time.
SEARCHES = ("LoadLibrary", "LoadModule", "GetProcAddress", "LdrLoad", "LdrGet", "CreateProcess", "ShellExecute")
KIB = 1024


class Hardening(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.image = pe.Image(LIBRARY)

    def test_is_a_64_bit_library(self):
        self.assertEqual((self.image.machine, self.image.magic), (0x8664, 0x20B))
        self.assertTrue(self.image.characteristics & 0x2000)

    def test_moves_in_memory_and_runs_no_data(self):
        high_entropy, dynamic_base, nx = 0x20, 0x40, 0x100
        wanted = high_entropy | dynamic_base | nx
        self.assertEqual(self.image.dll_characteristics & wanted, wanted)
        self.assertFalse(self.image.characteristics & 0x0001, "relocations stripped")
        self.assertNotEqual(self.image.directories[5], (0, 0), "no relocations")
        for section in self.image.sections:
            self.assertFalse(section.flags & pe.WRITABLE and section.flags & pe.EXECUTABLE, section.name)

    def test_exports_three_names_and_nothing_else(self):
        self.assertEqual(self.image.exports(),
                         {1: "DllMain", 2: "KvrBoardPropPageProvider", 3: "KvrUartPropPageProvider"})

    def test_takes_everything_by_name_from_the_system(self):
        imports = self.image.imports()
        self.assertLessEqual({name.upper() for name in imports}, SYSTEM_LIBRARIES)
        for name in (name for names in imports.values() for name in names):
            self.assertIsInstance(name, str)
            self.assertFalse(name.startswith(SEARCHES), name)
        self.assertEqual(self.image.directories[13], (0, 0), "delayed imports search at run time")

    def test_needs_no_start_up(self):
        # Without a runtime's start-up nothing would run a constructor or fill thread-local data.
        objects = sorted(BUILD.glob("src/CMakeFiles/kvrpagex64.dir/**/*.obj"))
        self.assertTrue(objects)
        for path in objects:
            data = path.read_bytes()
            machine, sections = pe.unpack("HH", data, 0)
            self.assertEqual(machine, 0x8664, path)
            for i in range(sections):
                name = data[20 + 40 * i:28 + 40 * i].rstrip(b"\0").decode()
                self.assertFalse(name.startswith((".ctors", ".dtors", ".tls", ".CRT", ".init")), f"{path}: {name}")

    def test_asks_for_no_rights(self):
        manifest = self.image.resources()[pe.RT_MANIFEST, 2, 0].decode()
        self.assertIn('level="asInvoker" uiAccess="false"', manifest)

    def test_traces_nothing(self):
        table = re.sub(r"^;.*\n", "", (ROOT / "tests/trace_formats.txt").read_text(), flags=re.M)
        rows = re.findall(r"^(\S.*)\n((?: {4}.*\n)*)", table, re.M)
        self.assertEqual(len(rows), len(re.findall(r"^\S", table, re.M))) # each row is read
        exported = set(self.image.exports().values())
        for form, names in rows:
            for piece in [*re.split(r"%(?:ws|s|03d|08X|I64d|d|p)", form), *(set(names.split()) - exported)]:
                if len(piece) > 5 and piece != ", COM%d":
                    self.assertNotIn(piece.rstrip("*").encode(), self.image.data, form)
        # Only lines of the trace print the last error.
        self.assertNotIn("GetLastError", [name for names in self.image.imports().values() for name in names])

    def test_is_small_and_holds_no_trace_of_its_making(self):
        data = self.image.data
        languages = {language for kind, _, language in self.image.resources() if kind == pe.RT_DIALOG}
        self.assertLess(len(data), 450 * KIB if len(languages) > 1 else 200 * KIB)
        for place in (str(ROOT), str(BUILD), ".debug", ".symtab", "GCC: ("):
            self.assertNotIn(place.encode(), data)
        # The size with English alone is the whole size without the other languages.
        others = sum(len(bytes_) for (_, _, language), bytes_ in self.image.resources().items()
                     if language not in (0, 1033))
        self.assertLess(len(data) - others, 200 * KIB)


if __name__ == "__main__":
    unittest.main()
