#!/usr/bin/env python3
"""A crash within the library that ships can be located: the symbols turn the address that a process or an event log
reports into the function, the file and the line."""
import re
import subprocess
import sys

from wine import BUILD, ROOT, Prefix


def main():
    with Prefix() as prefix:
        told, _ = prefix.run("kvrcrash.exe", timeout=60)
    place = re.fullmatch(r"c0000005 at kvrpagex64\.dll\+(0x[0-9a-f]+)\s*", told.decode())
    if not place:
        print("no crash:", told)
        return 1
    named = subprocess.run(["llvm-symbolizer-14", f"--obj={BUILD / 'kvrpagex64.dll'}", "--relative-address", place[1]],
                           capture_output=True, text=True, check=True).stdout
    print(place[1], named)
    found = re.match(r".*\bCheckBoard\n.*board_page_provider\.cpp:(\d+)", named)
    line = (ROOT / "src/board_page/board_page_provider.cpp").read_text().splitlines()[int(found[1]) - 1] if found else ""
    return "request->" not in line


if __name__ == "__main__":
    sys.exit(main())
