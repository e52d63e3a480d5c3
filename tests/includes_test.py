"""Checks what each folder includes against the table in docs/house.md."""
import pathlib
import re
from fnmatch import fnmatch

root = pathlib.Path(__file__).parents[1]
allowed = {}
for row in re.findall(r"^\| (`.+) \| (.+) \|$", (root / "docs/house.md").read_text(), re.M):
    folders, headers = (re.findall(r"`(.+?)`", cell) for cell in row)
    allowed |= {folder: set(headers) for folder in folders}

wrong = []
for file in sorted(file for folder in ("src", "simulated", "host", "check") for file in root.glob(folder + "/**/*")):
    if file.suffix in (".cpp", ".h") and "languages" not in file.parts:
        path = file.relative_to(root / "src" if root / "src" in file.parents else root)
        may = {str(path.parent)}.union(*(headers for place, headers in allowed.items()
                                         if fnmatch(str(path), place) or fnmatch(str(path.parent), place)))
        for header in re.findall(r'^#include "(.+/.+)"', file.read_text(), re.M):
            if not may & {header, header.rpartition("/")[0]}:
                wrong.append(f"{path} includes {header}")
assert allowed and not wrong, "\n".join(wrong)
