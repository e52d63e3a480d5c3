#!/usr/bin/env python3
"""The library that ships: what it tells its loader and debuggers, as llvm's own tools read it.

The folder of the build is KVR_WINDOWS_BUILD, or build/windows."""
import os
import pathlib
import re
import shutil
import subprocess
import tempfile
import unittest

import pe

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("KVR_WINDOWS_BUILD", ROOT / "build" / "windows"))
LIBRARY, SYMBOLS = BUILD / "kvrpagex64.dll", BUILD / "kvrpagex64.pdb"


def said(*command):
    return subprocess.run(list(map(str, command)), capture_output=True, text=True, check=True).stdout


def build_elsewhere(place, version=None):
    """The library of the same sources, built in another folder; of another release if a version is given."""
    tree = pathlib.Path(place) / "elsewhere"
    if not tree.exists():
        shutil.copytree(ROOT, tree, ignore=shutil.ignore_patterns(".git", "build"))
    if version:
        lists = tree / "CMakeLists.txt"
        lists.write_text(re.sub(r"(project\(\w+ VERSION) \S+", rf"\1 {version}", lists.read_text()))
    for step in (["cmake", "--preset", "windows"],
                 ["cmake", "--build", "build/windows", "--target", "kvrpagex64", "-j", "2"]):
        subprocess.run(step, cwd=tree, check=True, stdout=subprocess.DEVNULL)
    return tree / "build/windows"


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.headers = said("llvm-readobj-14", "--file-headers", "--sections", "--coff-load-config",
                           "--coff-debug-directory", LIBRARY)

    def number(self, name):
        return int(re.search(rf"{name}: (\S+)", self.headers)[1], 0)

    def test_every_indirect_call_is_guarded(self):
        self.assertIn("IMAGE_DLL_CHARACTERISTICS_GUARD_CF", self.headers)
        self.assertEqual(self.number("GuardFlags"), 0x500)
        self.assertGreater(self.number("GuardCFFunctionCount"), 10)
        self.assertNotEqual(self.number("GuardCFFunctionTable"), 0)
        guards = [self.number("GuardCFCheckFunction"), self.number("GuardCFCheckDispatch")]
        image, base = pe.Image(LIBRARY), self.number("ImageBase")
        for pointer in guards:
            target, = pe.unpack("Q", image.data, image.offset(pointer - base))
            self.assertEqual(image.section(target - base).name, ".text")
        # The code reaches the second pointer through a read-only address of it.
        needle, at, references = guards[1].to_bytes(8, "little"), 0, set()
        while (at := image.data.find(needle, at + 1)) != -1:
            references |= {base + section.address + at - section.offset for section in image.sections
                           if section.name == ".rdata" and 0 <= at - section.offset < section.size}
        code = said("llvm-objdump-14", "-d", "--no-show-raw-insn", LIBRARY)
        self.assertTrue(any(f"# {reference:#x}" in code for reference in references))

    def test_libraries_come_from_the_system_folder_only(self):
        for file in ("kvrpagex64.dll", "kvrhost.exe", "kvrbench.exe", "kvrcheck.exe"):
            self.assertIn("DependentLoadFlags: 0x800", said("llvm-readobj-14", "--coff-load-config", BUILD / file), file)

    def test_shadow_stacks_are_allowed(self):
        self.assertIn("IMAGE_DLL_CHARACTERISTICS_EX_CET_COMPAT", self.headers)

    def test_only_data_is_writable(self):
        writable = [section.name for section in pe.Image(LIBRARY).sections if section.flags & pe.WRITABLE]
        self.assertEqual(writable, [".data"])

    def test_checksum_is_that_of_the_file(self):
        data = bytearray(LIBRARY.read_bytes())
        field = data.index(b"PE\0\0") + 88
        entered = int.from_bytes(data[field:field + 4], "little")
        data[field:field + 4] = bytes(4)
        total = 0
        for at in range(0, len(data), 2):
            total += int.from_bytes(data[at:at + 2], "little")
            total = (total & 0xFFFF) + (total >> 16)
        self.assertEqual(entered, total + len(data))

    def test_symbols_tell_lines_and_local_functions(self):
        symbols = said("llvm-pdbutil-14", "dump", "--symbols", SYMBOLS)
        self.assertRegex(symbols, r"S_LPROC32 .* `.*anonymous namespace'::")
        lines = said("llvm-pdbutil-14", "dump", "-l", SYMBOLS)
        self.assertIn("uart_page_provider.cpp", lines)
        place = said("llvm-symbolizer-14", f"--obj={LIBRARY}", hex(self.number("ImageBase")
                                                                    + self.number("AddressOfEntryPoint")))
        self.assertRegex(place, r"DllMain.*\n\S*module_entry\.cpp:\d+")

    def test_no_path_of_the_building_machine_comes_in(self):
        for file in (LIBRARY, SYMBOLS):
            for place in (ROOT, BUILD, pathlib.Path.home()):
                for form in (str(place), str(place).replace("/", "\\")):
                    if len(form) > 5:
                        # assertNotIn and assertEqual would print whole files.
                        self.assertFalse(form.encode() in file.read_bytes(), f"{form} in {file}")

    def test_another_resource_compiler_makes_the_same_of_every_resource(self):
        languages = [["src/resources/language.rc", "/D", f"LANGUAGE_FILE={file.stem}"]
                     for file in sorted((ROOT / "src/resources/languages").glob("*.h"))]
        for file, scripts in (("kvrpagex64.dll", [["src/resources/kvrpagex64.rc"], *languages]),
                              ("kvrhost.exe", [["host/kvrhost.rc"]])):
            made = {}
            with tempfile.TemporaryDirectory() as place:
                for script, *definition in scripts:
                    subprocess.run(["llvm-rc-14", "/c", "65001", *definition, "/I", "src/resources", "/I", "src", "/I",
                                    BUILD / "generated", "/I", "/usr/x86_64-w64-mingw32/include", "/FO", f"{place}/made",
                                    script], cwd=ROOT, check=True, capture_output=True)
                    made |= pe.compiled(f"{place}/made")
            # windres writes the class of a control, whose name has no case, in capitals.
            for name in ("msctls_trackbar32".encode("utf-16-le"), "SysListView32".encode("utf-16-le")):
                made = {key: data.replace(name, name.upper()) for key, data in made.items()}
            resources = pe.Image(BUILD / file).resources()
            self.assertEqual(resources.keys(), made.keys())
            self.assertEqual([key for key, data in resources.items() if made[key] != data], [], file)

    def test_same_sources_give_the_same_bytes_and_another_release_another_identity(self):
        with tempfile.TemporaryDirectory() as place:
            elsewhere = build_elsewhere(place)
            for file in (LIBRARY, SYMBOLS):
                self.assertTrue((elsewhere / file.name).read_bytes() == file.read_bytes(), file.name)
            elsewhere = build_elsewhere(place, version="1.0.1")
            identity = [re.search(r"PDBGUID: (.*)", said("llvm-readobj-14", "--coff-debug-directory", file))[1]
                        for file in (LIBRARY, elsewhere / LIBRARY.name)]
            self.assertNotEqual(*identity)


if __name__ == "__main__":
    unittest.main()
