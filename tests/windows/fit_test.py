#!/usr/bin/env python3
"""Every text of every dialog in every language has its room, measured on real windows by kvrfit."""
import re
import sys

from wine import DEFAULT_FONT, FONTS, Prefix


def main():
    failed, dialogs, texts, failures = False, 0, 0, 0
    with Prefix() as prefix:
        listing, _ = prefix.run("kvrfit.exe", "list")
        languages = [int(word) for word in listing.split()]
        special = [language for group in FONTS.values() for language in group]
        groups = {DEFAULT_FONT: [language for language in languages if language not in special], **FONTS}
        for font, group in groups.items():
            prefix.use_font(font)
            output, code = prefix.run("kvrfit.exe", *[language for language in group if language in languages])
            lines = output.decode().splitlines()
            for line in lines[:-1]:
                if not line.startswith("known:"):
                    print(line)
            counts = [int(number) for number in re.findall(r"\d+", lines[-1])]
            dialogs, texts, failures = dialogs + counts[0], texts + counts[1], failures + counts[2]
            failed = failed or code != 0
    print(f"{len(languages)} languages, {dialogs} dialogs, {texts} texts measured, {failures} failures")
    return 1 if failed or dialogs != 4 * len(languages) else 0


if __name__ == "__main__":
    sys.exit(main())
