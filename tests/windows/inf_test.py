#!/usr/bin/env python3
"""The INFs that ship, as far as they can be checked without Windows: whatever one refers to exists, whatever exists is
referred to, each section is one that an x64 Windows takes, and the isolated form keeps to what isolation allows.

The folder of the build is KVR_WINDOWS_BUILD, or build/windows."""
import os
import pathlib
import re
import unittest

import pe

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("KVR_WINDOWS_BUILD", ROOT / "build" / "windows"))

INFS = {"kvrboard": ("MultiFunction", "{4D36E971-E325-11CE-BFC1-08002BE10318}", "KvrBoardPropPageProvider"),
        "kvrports": ("Ports", "{4D36E978-E325-11CE-BFC1-08002BE10318}", "KvrUartPropPageProvider")}
KNOWN_BY_THE_SYSTEM = {"Version", "Manufacturer", "SourceDisksNames", "SourceDisksFiles", "DestinationDirs", "Strings"}
# The INFs that every Windows has and a package may include. A package's own files are renamed in the driver store.
SYSTEMS_OWN = {"machine.inf", "mf.inf", "msports.inf"}
# What the pages of these directives and sections call not valid in a universal or Windows driver package.
NOT_FOR_WINDOWS_DRIVERS = {"BitReg", "DelFiles", "DelProperty", "Ini2Reg", "LogConfig", "ProfileItems", "RegisterDlls", "RenFiles",
                           "UnregisterDlls", "UpdateIniFields", "UpdateInis"}
SUFFIXES_NOT_FOR_WINDOWS_DRIVERS = ("CoInstallers", "FactDef", "LogConfigOverride")


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


def directives(lines):
    return dict(map(str.strip, line.split("=", 1)) for line in lines if "=" in line)


def words(text):
    return [word.strip() for word in text.split(",") if word.strip()]


class Reader:
    """Walks an INF from its models as an installation does. `wrong` has one line per fault."""

    def __init__(self, text):
        self.text, self.wrong, self.found = text, [], sections(text)
        self.used, self.copied, self.registered, self.installed = set(KNOWN_BY_THE_SYSTEM), set(), [], []
        self.values = {name: directives(self.found.get(name, [])) for name in KNOWN_BY_THE_SYSTEM}
        self.version()
        self.models()
        self.files()
        self.wrong += [f"[{name}] is not used" for name in self.found if name not in self.used]
        strings = {name for name in re.findall(r"%(\w+)%", text) if not name.isdigit()}
        self.wrong += [f"%{name}% is not both used and given" for name in strings ^ self.values["Strings"].keys()]

    def section(self, name, by):
        self.used.add(name)
        if name not in self.found:
            self.wrong.append(f"[{by}] names [{name}], which is not there")
        return self.found.get(name, [])

    def version(self):
        version = self.values["Version"]
        self.wrong += [f"[Version] has no {key}" for key in ("Signature", "Class", "ClassGuid", "Provider", "CatalogFile",
                                                             "DriverVer") if key not in version]
        if version.get("PnpLockdown") != "1":
            self.wrong.append("[Version] lacks PnpLockdown = 1")
        if not re.fullmatch(r"\d\d/\d\d/\d{4},\d+\.\d+\.\d+\.\d+", version.get("DriverVer", "")):
            self.wrong.append("DriverVer is no date and version")

    def models(self):
        if not self.values["Manufacturer"]:
            self.wrong.append("there is no [Manufacturer]")
        for models, *targets in map(words, self.values["Manufacturer"].values()):
            if not targets:
                self.wrong.append(f"[{models}] is for no architecture")
            for target in targets:
                if not re.fullmatch(r"NTamd64\.\d+\.\d+(\.\d*\.\d*\.\d+)?", target):
                    self.wrong.append(f"{target} is no x64 system with a version")
                for line in self.section(f"{models}.{target}", "Manufacturer"):
                    install, *ids = words(line.split("=", 1)[1])
                    if not ids:
                        self.wrong.append(f"{line} has no hardware id")
                    self.install(install)

    def install(self, name):
        name += ".NTamd64"
        self.installed.append(name)
        for key, value in directives(self.section(name, "a model")).items():
            for part in words(value):
                if key == "CopyFiles":
                    self.copied |= {line.split(",")[0].strip() for line in self.section(part, name)}
                    if part not in self.values["DestinationDirs"]:
                        self.wrong.append(f"[{part}] has no destination")
                elif key == "AddReg":
                    self.registered += self.section(part, name)
                elif key == "Include" and part.lower() not in SYSTEMS_OWN:
                    self.wrong.append(f"{part} is no INF of the system's: it can't be included")
                elif key not in ("Include", "Needs"):
                    self.wrong.append(f"[{name}] has {key}, which is not for Windows drivers" if key in
                                      NOT_FOR_WINDOWS_DRIVERS else f"[{name}] has an unknown {key}")
        services = [words(line.split("=", 1)[1]) for line in self.section(f"{name}.Services", name)]
        if not any(int(flags, 0) & 2 for _, flags, _ in services):
            self.wrong.append(f"[{name}.Services] has no service for the device")
        for _, _, service in services:
            binary = directives(self.section(service, f"{name}.Services")).get("ServiceBinary", "")
            folder, _, file = binary.partition("\\")
            copied_by = [key for key in self.values["DestinationDirs"] if file in self.found.get(key, [])]
            if [f"%{self.values['DestinationDirs'][key]}%" for key in copied_by] != [folder]:
                self.wrong.append(f"{binary} is not where it is copied to")
        self.used |= {section for section in self.found if section.startswith(name)}
        self.wrong += [f"[{section}] is not for Windows drivers" for section in self.found
                       if section.endswith(SUFFIXES_NOT_FOR_WINDOWS_DRIVERS)]

    def files(self):
        on_disk = self.values["SourceDisksFiles"]
        self.wrong += [f"{name} is copied, but on no disk" for name in self.copied - on_disk.keys()]
        self.wrong += [f"{name} is on a disk, but not copied" for name in on_disk.keys() - self.copied]
        self.wrong += [f"{name} is on disk {disk}, which is not there" for name, disk in on_disk.items()
                       if disk not in self.values["SourceDisksNames"]]


def faults(text, inf, exports, isolated):
    """Everything that is wrong, one line per fault."""
    reader = Reader(text)
    wrong = reader.wrong
    device_class, guid, provider = INFS[inf]
    version = reader.values["Version"]
    if (version.get("Class"), version.get("ClassGuid"), version.get("CatalogFile")) != (device_class, guid, f"{inf}.cat"):
        wrong.append("the class or the catalog is another's")
    folder = "%13%\\" if isolated else ""
    if reader.registered != [f'HKR,,EnumPropPages32,,"{folder}kvrpagex64.dll,{provider}"'] or provider not in exports:
        wrong.append(f"no provider: {reader.registered}")
    for line in reader.registered:
        if isolated and not line.startswith("HKR,"):
            wrong.append(f"not below the device's own keys: {line}")
    for name, place in reader.values["DestinationDirs"].items():
        if isolated and place != "13":
            wrong.append(f"[{name}] leaves the driver store")
    return wrong


class Inf(unittest.TestCase):
    def setUp(self):
        self.exports = set(pe.Image(BUILD / "kvrpagex64.dll").exports().values())

    def faults(self, inf, form, *change):
        text = (BUILD / "inf" / form / f"{inf}.inf").read_text("ascii")
        changed = text.replace(*change) if change else text
        self.assertEqual(changed == text, not change, change)
        return faults(changed, inf, self.exports, form == "isolated")

    def test_both_are_whole_in_both_forms(self):
        for inf in INFS:
            for form in ("desktop", "isolated"):
                self.assertEqual(self.faults(inf, form), [], (inf, form))

    def test_each_fault_is_found(self):
        for change in (("KvrUartPropPageProvider", "KvrUartProvider"), ("[Port_Values]", "[Values]"),
                       ("Page_Files   = 11", ""), ("PnpLockdown = 1", ""), ("kvrpagex64.dll = 1", "kvrpagex64.dll = 2"),
                       ("[Strings]", "[Strings]\nUnused = x"), ("DriverVer   = ", "DriverVer   = 1"),
                       ("Class       = Ports", "Class       = Modem"), ("Models,NTamd64.6.1", "Models"),
                       ("NTamd64.6.1", "NTamd64"), ("NTamd64.6.1", "NTx86.6.1"), ("[Port.NTamd64]", "[Port]"),
                       (",BUS\\XXXX", ""), ("[Port.NTamd64]", "[Port.NTamd64]\nInclude = kvrboard.inf"),
                       ("[Port.NTamd64]", "[Port.NTamd64]\nRegisterDlls = Page_Files"), ("%12%\\port", "%11%\\port"),
                       ("[Port.NTamd64.Services]", "[Port.NTamd64.CoInstallers]\n[Port.NTamd64.Services]"),
                       ("0x00000002", "0x00000000")):
            self.assertNotEqual(self.faults("kvrports", "desktop", *change), [], change)
        for change in (("Page_Files   = 13", "Page_Files   = 11"), ("HKR,", "HKLM,Software"), ("%13%\\kvr", "kvr")):
            self.assertNotEqual(self.faults("kvrports", "isolated", *change), [], change)
        self.assertEqual(self.faults("kvrports", "desktop", "[Port.NTamd64]", "[Port.NTamd64]\nInclude = msports.inf"), [])


if __name__ == "__main__":
    unittest.main()
