#!/usr/bin/env python3
"""A real installation of the INF, for a board and for one of its ports: the library arrives in the system folder, each
driver's key names its provider, and the host opens the pages through these names. A device without such a name has no
page, and the host says why."""
import re
import sys

from wine import BUILD, CLASSES, PORTS, ROOT, Prefix, windows_path

DEVICES = {
    r"PCI\VEN_1E5F&DEV_0810&SUBSYS_08101E5F&REV_02\4&1C6A3F20&0&0008":
        ("Multifunction", "{4d36e971-e325-11ce-bfc1-08002be10318}", "Board_Pages", "KvrBoardPropPageProvider"),
    r"KVRBUS\UART\5&2B7D41E6&0&01": ("Ports", PORTS, "Uart_Pages", "KvrUartPropPageProvider"),
}
UNNAMED = "(no page: neither its driver nor its class has a value EnumPropPages32)"


def driver_inf(device_class, class_guid, section, hardware_id):
    """A driver's INF with only the sections that ship and what leads to one of them."""
    text = (BUILD / "kvrpages.inf").read_text("ascii")
    text = text.replace("Class       = Ports", f"Class       = {device_class}").replace(PORTS.upper(), class_guid)
    text = re.sub("CatalogFile.*\n", "", text) # made last, and by Windows only
    return text + (f'\n[Manufacturer]\n%Provider% = Models,NTamd64\n\n[Models.NTamd64]\n"Device" = {section},{hardware_id}\n')


def install(prefix, device):
    device_class, class_guid, section, _ = DEVICES[device]
    hardware_id = device.rsplit("\\", 1)[0]
    inf = prefix.programs / "driver.inf"
    inf.write_text(driver_inf(device_class, class_guid, section, hardware_id), newline="\r\n")
    prefix.reg("add", rf"HKLM\SYSTEM\CurrentControlSet\Enum\{device}", "/v", "HardwareID", "/t", "REG_MULTI_SZ", "/d",
               hardware_id)
    return prefix.run("kvrinstall.exe", windows_path(inf), device)


def main():
    failed = []

    def check(what, holds, told=""):
        if not holds:
            failed.append(what)
            print(f"not so: {what}", told)

    with Prefix() as prefix:
        prefix.import_file(ROOT / "host/machines/sample.reg")
        library = prefix.library
        library.replace(prefix.programs / library.name) # with the INF, as in the package
        before, _ = prefix.run("kvrhost.exe", input=b"devices\nopen 1\n")
        check("no device has a page before", before.decode().count(UNNAMED) == 14 and b"error: no page" in before, before)
        for device, (_, class_guid, section, provider) in DEVICES.items():
            told, code = install(prefix, device)
            check(f"{section} is installed", code == 0, told)
            keys, _ = prefix.run("reg", "query", rf"{CLASSES}\{class_guid}", "/s")
            check(f"{provider} is named", f"kvrpagex64.dll,{provider}" in keys.decode(errors="replace"), keys)
        check("the library is in the system folder",
              library.exists() and library.read_bytes() == (BUILD / library.name).read_bytes())
        (prefix.programs / library.name).unlink()
        after, _ = prefix.run("kvrhost.exe", input=b"devices\nopen 1\nsheet cancel\nopen COM7\nsheet cancel\nopen COM5\n")
        check("two devices have a page now", after.decode().count(UNNAMED) == 12, after)
        check("both sheets open and the third does not",
              after.count(b'-- sheet: "') == 2 and b"error: no page" in after, after)
        library.unlink()
        gone, _ = prefix.run("kvrhost.exe", input=b"devices\n")
        check("a library that is not there is told", b"that library can't be loaded: error 126" in gone, gone)
    return bool(failed)


if __name__ == "__main__":
    sys.exit(main())
