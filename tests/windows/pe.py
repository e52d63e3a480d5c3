"""What the Windows tests read from a PE file: headers, sections, exports, imports and resources."""
import pathlib
import struct
from collections import namedtuple

Section = namedtuple("Section", "name address size offset flags")

WRITABLE, EXECUTABLE = 0x80000000, 0x20000000


def unpack(form, data, at):
    return struct.unpack_from("<" + form, data, at)


class Image:
    def __init__(self, path):
        self.data = data = pathlib.Path(path).read_bytes()
        (header,) = unpack("I", data, 0x3C)
        assert data[header:header + 4] == b"PE\0\0", path
        self.machine, count, _, _, _, optional_size, self.characteristics = unpack("HHIIIHH", data, header + 4)
        optional = header + 24
        self.magic, = unpack("H", data, optional)
        self.dll_characteristics, = unpack("H", data, optional + 70)
        directories, = unpack("I", data, optional + 108)
        self.directories = [unpack("II", data, optional + 112 + 8 * i) for i in range(directories)]
        self.sections = []
        for at in range(optional + optional_size, optional + optional_size + 40 * count, 40):
            name, size, address, raw_size, raw, _, _, _, flags = unpack("8sIIIIIIII", data, at)
            self.sections.append(Section(name.rstrip(b"\0").decode(), address, max(size, raw_size), raw, flags))

    def section(self, address):
        for section in self.sections:
            if section.address <= address < section.address + section.size:
                return section
        raise ValueError(f"no section holds {address:#x}")

    def offset(self, address):
        section = self.section(address)
        return address - section.address + section.offset

    def text(self, address):
        at = self.offset(address)
        return self.data[at:self.data.index(b"\0", at)].decode("ascii")

    def exports(self):
        """Name by ordinal; None for an export without a name."""
        at = self.offset(self.directories[0][0])
        base, functions, names, table, name_table, ordinal_table = unpack("IIIIII", self.data, at + 16)
        addresses = unpack(f"{functions}I", self.data, self.offset(table))
        exports = {base + i: None for i, address in enumerate(addresses) if address}
        for i in range(names):
            ordinal, = unpack("H", self.data, self.offset(ordinal_table) + 2 * i)
            name, = unpack("I", self.data, self.offset(name_table) + 4 * i)
            exports[base + ordinal] = self.text(name)
        return exports

    def imports(self):
        """The names imported from each DLL; an ordinal is a number."""
        imports = {}
        at = self.offset(self.directories[1][0])
        while True:
            lookup, _, _, name, _ = unpack("IIIII", self.data, at)
            if name == 0:
                return imports
            found = imports.setdefault(self.text(name), [])
            entry = self.offset(lookup)
            while (thunk := unpack("Q", self.data, entry)[0]) != 0:
                found.append(thunk & 0xFFFF if thunk >> 63 else self.text(thunk + 2))
                entry += 8
            at += 20

    def resources(self):
        """The bytes by (type, name, language); types and names of this library are numbers."""
        root = self.offset(self.directories[2][0])
        found = {}

        def walk(at, path):
            named, numbered = unpack("HH", self.data, root + at + 12)
            for i in range(named + numbered):
                key, child = unpack("II", self.data, root + at + 16 + 8 * i)
                if child >> 31:
                    walk(child & 0x7FFFFFFF, path + (key,))
                else:
                    address, size = unpack("II", self.data, root + child)
                    start = self.offset(address)
                    found[path + (key,)] = self.data[start:start + size]

        walk(0, ())
        return found


def compiled(path):
    """What a resource compiler has made, under the same names as the resources of an image."""
    data, at, found = pathlib.Path(path).read_bytes(), 0, {}
    while at < len(data):
        size, head = unpack("II", data, at)
        _, kind, _, name = unpack("HHHH", data, at + 8)
        language, = unpack("H", data, at + 22)
        if size: # the first one only says what file this is
            found[kind, name, language] = data[at + head:at + head + size]
        at += head + size + 3 & ~3
    return found


RT_DIALOG, RT_STRING, RT_VERSION, RT_MANIFEST = 5, 6, 16, 24

Control = namedtuple("Control", "id kind text style x y cx cy")
Dialog = namedtuple("Dialog", "title style font weight x y cx cy controls")

CLASSES = {0x80: "BUTTON", 0x81: "EDIT", 0x82: "STATIC", 0x83: "LISTBOX", 0x84: "SCROLLBAR", 0x85: "COMBOBOX"}


def dialog(data):
    """Reads a DLGTEMPLATEEX."""
    at = 0

    def take(form):
        nonlocal at
        values = unpack(form, data, at)
        at += struct.calcsize("<" + form)
        return values

    def name():
        nonlocal at
        if unpack("H", data, at)[0] == 0xFFFF:
            at += 4
            return unpack("H", data, at - 2)[0]
        start = at
        while unpack("H", data, at)[0] != 0:
            at += 2
        at += 2
        return data[start:at - 2].decode("utf-16-le")

    version, signature, _, _, style, count, x, y, cx, cy = take("HHIIIHhhhh")
    assert (version, signature) == (1, 0xFFFF)
    assert name() == "" and name() == "", "a menu or a class of its own"
    title = name()
    size, weight, _, _ = take("HHBB")
    font = (size, name())
    controls = []
    for _ in range(count):
        at = (at + 3) & ~3
        _, _, control_style, cx_x, cx_y, cx_cx, cx_cy, control_id = take("IIIhhhhi")
        kind = name()
        text = name()
        extra, = take("H")
        at += extra
        controls.append(Control(control_id, CLASSES.get(kind, kind), text, control_style, cx_x, cx_y, cx_cx, cx_cy))
    return Dialog(title, style, font, weight, x, y, cx, cy, controls)


def strings(block, data):
    """Reads one block of sixteen strings, by number; the missing ones are empty there and left out."""
    found, at = {}, 0
    for i in range(16):
        length, = unpack("H", data, at)
        if length:
            found[(block - 1) * 16 + i] = data[at + 2:at + 2 + 2 * length].decode("utf-16-le")
        at += 2 + 2 * length
    return found
