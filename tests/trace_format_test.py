#!/usr/bin/env python3
"""A line whose format and arguments disagree does not compile, whether the trace is live or not.

    trace_format_test.py COMPILER..."""
import itertools
import pathlib
import re
import subprocess
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[1]
COMPILERS = sys.argv[1:]

# The lines are compiled in this function.
FUNCTION = """#include "reporting/trace.h"
struct Row { u32 number; TraceFormat<TraceKind::Narrow, TraceKind::Number32> format; };
constexpr Row rows[] = {{1, "%%s - %%d\\n"}};
void Function(WCHAR* text, u64 wide, bool flag, BYTE small, Row* record) {
    WCHAR buffer[4] = {};
    %s
}
"""
RIGHT = [
    r'"----> %s( )\n", __func__',
    r'"%s - %ws, %ws, %d\n", TraceOperation(), text, buffer, flag',
    r'"%03d %08X %I64d %I64X\n", 1, 2u, wide, sizeof(wide)',
    r'"x%p, x%p\n", record, text',
    r'rows[0].format, __func__, GetLastError()',
    r'"-----\n"',
    r'TraceScope trace("----> %s( ), Message:%d\n", __func__, 1u)',
    r'TraceScope().Exit("<---- %s, nReturn:%d, %d\n", 1u, flag)',
]
WRONG = [
    r'"%s\n"', r'"%d, %d\n", 1', r'"%s\n", __func__, 1',
    r'"%s\n", text', r'"%ws\n", __func__', r'"%d\n", __func__', r'"%s\n", 1',
    r'"%d\n", wide', r'"%I64d\n", 1', r'"%I64X\n", 1u', r'"%d\n", small', r'"%d\n", 1.0',
    r'"%p\n", 1', r'"%d\n", record', r'"%x\n", 1', r'"%02d\n", 1', r'"100%\n"',
    r'"%s - no line feed", __func__', r'reinterpret_cast<const char*>(record), 1', r'rows[0].format, 1, 1',
    r'TraceScope trace("----> %s( )\n", __func__, 1)', r'TraceScope().Exit("<---- %s\n", 1u)',
]


def compiled(compiler, lines, live):
    """Whether a function of these lines compiles, and the lines that the compiler complains about."""
    statements = [line if line.startswith("TraceScope") else f"TraceOut({line})" for line in lines]
    source = FUNCTION % "\n    ".join(f"{{ {statement}; }}" for statement in statements)
    done = subprocess.run([*compiler.split(), "-std=c++20", "-DKVR_SIMULATED", f"-I{ROOT}", f"-I{ROOT / 'src'}",
                           "-fsyntax-only", "-x", "c++", "-", *(["-DTRACE_LIVE"] if live else []),
                           *(["-ferror-limit=0"] if "clang" in compiler else [])],
                          input=source, capture_output=True, text=True)
    first = 1 + FUNCTION[:FUNCTION.index("%s\n}")].count("\n")
    named = {int(number) - first for number in re.findall(r"<stdin>:(\d+):", done.stderr)}
    return done.returncode == 0, {line for number, line in enumerate(lines) if number in named}


class TraceFormats(unittest.TestCase):
    def test_wrong_lines_do_not_compile_and_right_ones_do(self):
        for compiler, live in itertools.product(COMPILERS, (False, True)):
            with self.subTest(compiler, live=live):
                self.assertEqual(compiled(compiler, RIGHT, live), (True, set()))
                self.assertEqual(compiled(compiler, WRONG, live), (False, set(WRONG)))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
