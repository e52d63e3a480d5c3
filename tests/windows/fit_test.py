#!/usr/bin/env python3
"""Every text of every dialog in every language has enough room, as kvrfit measures on real windows: at two usual scales in
each run, or at all with KVR_LONG."""
import os
import re
import sys

from wine import DEFAULT_FONT, FONTS, Prefix

SCALES = [96, 120, 144, 192] if "KVR_LONG" in os.environ else [96, 120]
# The font of older Windows versions as Wine has it, without letters for these languages.
SECOND_FONT = "Tahoma"
NOT_IN_SECOND_FONT = [1028, 1032, 1037, 1041, 1042, 1054, 2052]


def main():
    failed, counts = False, [0, 0, 0]
    with Prefix() as prefix:
        listing, _ = prefix.run("kvrfit.exe", "list")
        languages = [int(word) for word in listing.split()]
        special = [language for group in FONTS.values() for language in group]
        groups = {DEFAULT_FONT: [language for language in languages if language not in special], **FONTS,
                  SECOND_FONT: [language for language in languages if language not in NOT_IN_SECOND_FONT]}
        for font, group in groups.items():
            prefix.use_font(font)
            for scale in SCALES:
                prefix.use_scale(scale)
                output, code = prefix.run("kvrfit.exe", *group)
                *lines, summary = output.decode().splitlines()
                for line in lines:
                    if not line.startswith("known:"):
                        print(f"{font}, {scale} dots per inch: {line}")
                dialogs, at, *rest = [int(number) for number in re.findall(r"\d+", summary)]
                counts = [sum(pair) for pair in zip(counts, [dialogs, *rest])]
                failed = failed or code != 0 or at != scale or dialogs != 4 * len(group)
    dialogs, texts, failures = counts
    print(f"{len(languages)} languages, {len(groups)} fonts, {len(SCALES)} scales: {dialogs} dialogs, {texts} texts "
          f"measured, {failures} failures")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
