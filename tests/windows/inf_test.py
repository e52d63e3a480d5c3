#!/usr/bin/env python3
"""The INF that ships, as far as it can be checked without Windows: everything that it refers to exists, and everything
that exists is referred to.

The folder of the build is KVR_WINDOWS_BUILD, or build/windows."""
import os
import pathlib
import re
import unittest

import pe

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("KVR_WINDOWS_BUILD", ROOT / "build" / "windows"))

KNOWN_BY_THE_SYSTEM = {"Version", "SourceDisksNames", "SourceDisksFiles", "DestinationDirs", "Strings"}
# A driver's INF names these.
ENTRIES = {"Board_Pages.NTamd64", "Uart_Pages.NTamd64"}


def sections(text):
    """The lines of each section by its name, without comments."""
    found, lines = {}, None
    for line in text.splitlines():
        line = re.sub(r'("[^"]*")|;.*', lambda match: match[1] or "", line).strip()
        if line.startswith("["):
            name = line.strip("[]")
            if name in found:
                raise ValueError(f"[{name}] stands twice")
            lines = found[name] = []
        elif line:
            lines.append(line)
    return found


def faults(text, exports, library):
    """Everything that is wrong, one line per fault."""
    found = sections(text)
    wrong, used, copied = [], set(KNOWN_BY_THE_SYSTEM) | ENTRIES, set()
    values = {name: dict(map(str.strip, line.split("=", 1)) for line in found.get(name, []) if "=" in line)
              for name in KNOWN_BY_THE_SYSTEM | ENTRIES}
    version = values["Version"]
    for key in ("Signature", "Class", "ClassGuid", "Provider", "CatalogFile", "DriverVer"):
        if key not in version:
            wrong.append(f"[Version] has no {key}")
    if version.get("PnpLockdown") != "1":
        wrong.append("[Version] lacks PnpLockdown = 1")
    if not re.fullmatch(r"\d\d/\d\d/\d{4},\d+\.\d+\.\d+\.\d+", version.get("DriverVer", "")):
        wrong.append("DriverVer is no date and version")
    for entry in ENTRIES:
        for directive, form in (("CopyFiles", "files"), ("AddReg", "values")):
            for name in filter(None, re.split(r"\s*,\s*", values[entry].get(directive, ""))):
                used.add(name)
                if name not in found:
                    wrong.append(f"[{entry}] names [{name}], which is not there")
                elif form == "files":
                    copied |= {line.split(",")[0].strip() for line in found[name]}
                    if name not in values["DestinationDirs"]:
                        wrong.append(f"[{name}] has no destination")
                else:
                    for line in found[name]:
                        provider = re.fullmatch(r'HKR,,EnumPropPages32,,"([^",]+),([^",]+)"', line)
                        if not provider or provider[1] != library or provider[2] not in exports:
                            wrong.append(f"no provider of {library}: {line}")
    wrong += [f"[{name}] is not used" for name in found if name not in used]
    wrong += [f"{name} is copied, but on no disk" for name in copied - values["SourceDisksFiles"].keys()]
    wrong += [f"{name} is on a disk, but not copied" for name in values["SourceDisksFiles"].keys() - copied]
    wrong += [f"{name} is on disk {disk}, which is not there" for name, disk in values["SourceDisksFiles"].items()
              if disk not in values["SourceDisksNames"]]
    for name in set(re.findall(r"%(\w+)%", text)) ^ values["Strings"].keys():
        wrong.append(f"%{name}% is not both used and given")
    return wrong


class Inf(unittest.TestCase):
    def setUp(self):
        self.text = (BUILD / "kvrpages.inf").read_text("ascii")
        self.exports = set(pe.Image(BUILD / "kvrpagex64.dll").exports().values())

    def faults(self, *change):
        text = self.text.replace(*change) if change else self.text
        return faults(text, self.exports, "kvrpagex64.dll")

    def test_is_whole(self):
        self.assertEqual(self.faults(), [])

    def test_each_fault_is_found(self):
        for change in (("KvrUartPropPageProvider", "KvrUartProvider"), ("[Uart_Pages_AddReg]", "[Uart_AddReg]"),
                       ("Pages_CopyFiles = 11", ""), ("PnpLockdown = 1", ""), ("kvrpagex64.dll = 1", "kvrpagex64.dll = 2"),
                       ("[Strings]", "[Strings]\nUnused = x"), ("DriverVer   = ", "DriverVer   = 1")):
            self.assertNotEqual(self.faults(*change), [], change)


if __name__ == "__main__":
    unittest.main()
