#!/usr/bin/env python3
"""Writes the checksum of a PE file into its header, where lld leaves it empty.

    set_checksum.py FILE"""
import array
import pathlib
import struct
import sys


def checksum(image, field):
    """The sum of the file's 16-bit words with their carries, counting the field itself as zero, plus the file's length."""
    words = array.array("H", bytes(image[:field]) + bytes(4) + bytes(image[field + 4:]) + bytes(len(image) % 2))
    total = sum(words)
    while total >> 16:
        total = (total & 0xFFFF) + (total >> 16)
    return total + len(image)


def main(path):
    image = bytearray(path.read_bytes())
    field = struct.unpack_from("<I", image, 0x3C)[0] + 4 + 20 + 64
    struct.pack_into("<I", image, field, checksum(image, field))
    path.write_bytes(image)


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]))
