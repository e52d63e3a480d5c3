#!/usr/bin/env python3
"""The opening that docs/trace.md shows is the complete one of the transcript that it names.

    trace_docs_test.py"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[1]

text = (ROOT / "docs/trace.md").read_text()
transcript, shown = re.search(r"`(tests/scripts/\w+\.out)`.*?\n```\n(.*?)```\n", text, re.S).groups()
kept = (ROOT / transcript).read_text()
traced = re.search(r"> open .*?\n(.*?)-- sheet", kept, re.S)[1]
if shown != re.sub("^  ", "", traced, flags=re.M):
    sys.exit(f"docs/trace.md shows another opening than {transcript}")
