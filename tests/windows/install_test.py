#!/usr/bin/env python3
"""The two driver packages, filled in as the board's maker does and installed whole for a board and for two of its ports: the
library and the drivers arrive, each driver's key names its provider, each device has its service, and the host opens the
pages through these names. A device without such a name has no page, and the host says why."""
import re
import shutil
import sys

from wine import BUILD, CLASSES, ROOT, Checks, Prefix, windows_path

BOARD = r"PCI\VEN_1E5F&DEV_0810&SUBSYS_08101E5F&REV_02"
PORT = r"KVRBUS\UART"
PACKAGES = {
    "kvrboard": ("PCI\\VEN_XXXX&DEV_XXXX", BOARD, "{4d36e971-e325-11ce-bfc1-08002be10318}", "board",
                 "KvrBoardPropPageProvider", [BOARD + r"\4&1C6A3F20&0&0008"]),
    "kvrports": ("BUS\\XXXX", PORT, "{4d36e978-e325-11ce-bfc1-08002be10318}", "port", "KvrUartPropPageProvider",
                 [PORT + r"\5&2B7D41E6&0&01", PORT + r"\5&2B7D41E6&0&02"]),
}
UNNAMED = "(no page: neither its driver nor its class has a value EnumPropPages32)"


def install(prefix, package, form):
    placeholder, hardware_id, _, driver, _, devices = PACKAGES[package]
    folder = prefix.programs / package
    folder.mkdir()
    text = (BUILD / "inf" / form / f"{package}.inf").read_text("ascii").replace(placeholder, hardware_id)
    text = text.replace("NTamd64.6.1", "NTamd64") # Wine knows no version here
    text = re.sub("CatalogFile.*\n", "", text) # made last, and by Windows only
    (folder / f"{package}.inf").write_text(text, newline="\r\n")
    (folder / f"{driver}.sys").write_bytes(driver.encode())
    shutil.copy(BUILD / "kvrpagex64.dll", folder)
    for device in devices:
        prefix.reg("add", rf"HKLM\SYSTEM\CurrentControlSet\Enum\{device}", "/v", "HardwareID", "/t", "REG_MULTI_SZ", "/d",
                   hardware_id)
    return prefix.run("kvrinstall.exe", windows_path(folder / f"{package}.inf"), hardware_id)


def main():
    check = Checks()
    with Prefix() as prefix:
        prefix.import_file(ROOT / "host/machines/sample.reg")
        library = prefix.library
        library.unlink()
        before, _ = prefix.run("kvrhost.exe", input=b"devices\nopen 1\n")
        check("no device has a page before", before.decode().count(UNNAMED) == 14 and b"error: no page" in before, before)
        for package, (_, _, class_guid, driver, provider, devices) in PACKAGES.items():
            told, code = install(prefix, package, "desktop")
            check(f"{package} is installed", code == 0, told)
            keys, _ = prefix.run("reg", "query", rf"{CLASSES}\{class_guid}", "/s")
            check(f"{provider} is named for each device",
                  keys.decode(errors="replace").count(f"kvrpagex64.dll,{provider}") == len(devices), keys)
            for device in devices:
                keys, _ = prefix.run("reg", "query", rf"HKLM\SYSTEM\CurrentControlSet\Enum\{device}", "/v", "Service")
                check(f"{device} has its service", re.search(rf"REG_SZ\s+{driver}\s", keys.decode()), keys)
            keys, _ = prefix.run("reg", "query", rf"HKLM\SYSTEM\CurrentControlSet\Services\{driver}", "/v", "ImagePath")
            check(f"the service {driver} names its file", f"{driver}.sys" in keys.decode(), keys)
            check(f"{driver}.sys is with the system's drivers",
                  (library.parent / "drivers" / f"{driver}.sys").read_bytes() == driver.encode())
            shutil.rmtree(prefix.programs / package)
        check("the library is in the system folder",
              library.exists() and library.read_bytes() == (BUILD / library.name).read_bytes())
        after, _ = prefix.run("kvrhost.exe", input=b"devices\nopen 1\nsheet cancel\nopen COM7\nsheet cancel\nopen COM8\n")
        check("three devices have a page now", after.decode().count(UNNAMED) == 11, after)
        check("both sheets open and the third does not",
              after.count(b'-- sheet: "') == 2 and b"error: no page" in after, after)
        library.unlink()
        gone, _ = prefix.run("kvrhost.exe", input=b"devices\n")
        check("a library that is not there is told", b"that library can't be loaded: error 126" in gone, gone)
    return bool(check.failed)


if __name__ == "__main__":
    sys.exit(main())
