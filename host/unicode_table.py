#!/usr/bin/env python3
"""Writes what the host's text needs of Unicode's database, as Python has it, into rows of C++: the characters that do not
take one column, those that are invisible, and the distance of each capital to its small letter.

    unicode_table.py FILE"""
import pathlib
import sys
import unicodedata

CHARACTERS = [chr(code) for code in range(0x110000) if not 0xD800 <= code < 0xE000]


def columns(character):
    code, category = ord(character), unicodedata.category(character)
    vowel_or_final_of_hangul = 0x1160 <= code < 0x1200 or 0xD7B0 <= code < 0xD800
    if category in ("Mn", "Me", "Cf") and code != 0xAD or vowel_or_final_of_hangul:
        return 0
    if category == "Cn":  # older databases call all of these wide
        return 2 if 0x20000 <= code < 0x40000 else 1
    return 2 if unicodedata.east_asian_width(character) in "WF" else 1


def small(character):
    lower = character.lower()
    return ord(lower) - ord(character) if len(lower) == 1 else 0


def ranges(of, plain):
    """The ranges in which all characters, or every second one, have the same value; none where it is the plain one."""
    found = []
    for character in CHARACTERS:
        code, value = ord(character), of(character)
        if value == plain:
            continue
        if found and found[-1][2] == value:
            first, last, _, step = found[-1]
            if code - last == step or (first == last and code - last == 2):
                found[-1] = [first, code, value, code - last]
                continue
        found.append([code, code, value, 1])
    return ", ".join(f"{{0x{first:X}, 0x{last:X}, {value}, {step}}}" for first, last, value, step in found)


def main(file):
    tables = {"widths": (columns, 1), "small_letters": (small, 0),
              "invisible": (lambda character: int(unicodedata.category(character) in ("Cf", "Zl", "Zp")), 0)}
    pathlib.Path(file).write_text("".join(f"constexpr Range {name}[] = {{{ranges(*table)}}};\n"
                                          for name, table in tables.items()))


main(sys.argv[1])
