#!/usr/bin/env python3
"""Loading and unloading the library and opening its pages leaks nothing: a hundred times in each run, a thousand
times with KVR_LONG.

    lifetime_test.py [TIMES]"""
import os
import sys

from wine import ROOT, Prefix


def main(times):
    with Prefix() as prefix:
        prefix.import_machine(ROOT / "host/machines/sample.reg")
        output, code = prefix.run("kvrlifetime.exe", times, timeout=900)
    print(output.decode(), end="")
    return code


if __name__ == "__main__":
    sys.exit(main(sys.argv[1] if len(sys.argv) > 1 else 1000 if "KVR_LONG" in os.environ else 100))
