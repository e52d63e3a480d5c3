#!/usr/bin/env python3
"""The report for a ticket, read back: it says what diagnose says, holds no markup of a machine's, fetches and runs nothing.

    report_test.py KVRHOST"""
import hashlib
import html.parser
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[1]
SAMPLE = ROOT / "host/machines/sample.reg"
VOID = {"meta"}
ATTRIBUTES = {"aria-labelledby", "charset", "class", "content", "height", "id", "lang", "name", "role", "scope", "viewbox", "width",
              "x", "y"}
HOSTILE = "</td></title></style><script>alert(1)</script><img src=x onerror=y>&amp;\"'\x1b[31m\u202eabc\u2066"


class Page(html.parser.HTMLParser):
    """The elements of a page: their names, attributes, and texts with blanks joined."""

    def __init__(self, text):
        super().__init__()
        self.elements, self.open = [], []
        self.feed(text)
        self.close()
        assert not self.open, self.open

    def handle_starttag(self, tag, attrs):
        self.elements.append({"tag": tag, "attributes": dict(attrs), "text": "", "inside": [each["tag"] for each in self.open]})
        if tag not in VOID and not (self.get_starttag_text() or "").endswith("/>"):
            self.open.append(self.elements[-1])

    def handle_startendtag(self, tag, attrs):
        self.elements.append({"tag": tag, "attributes": dict(attrs), "text": "", "inside": [each["tag"] for each in self.open]})

    def handle_endtag(self, tag):
        assert self.open and self.open[-1]["tag"] == tag, (tag, self.open[-1:])
        element = self.open.pop()
        element["text"] = " ".join(element["text"].split())

    def handle_data(self, data):
        for element in self.open:
            element["text"] += data

    def all(self, tag):
        return [each for each in self.elements if each["tag"] == tag]

    def texts(self, tag):
        return [each["text"] for each in self.all(tag)]

    def tables(self):
        """Rows of cells by caption; two tables of one caption follow each other."""
        tables, rows = {}, []
        for each in self.elements:
            if each["tag"] == "caption":
                rows = tables.setdefault(each["text"], [])
            elif each["tag"] == "tr":
                rows.append([])
            elif each["tag"] in ("th", "td"):
                rows[-1].append(each["text"])
        return tables


def luminance(colour):
    parts = [int(colour[at:at + 2], 16) / 255 for at in (1, 3, 5)] if len(colour) == 7 else [int(part, 16) / 15 for part in colour[1:]]
    linear = [part / 12.92 if part <= 0.04045 else ((part + 0.055) / 1.055) ** 2.4 for part in parts]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


def contrast(one, other):
    darker, lighter = sorted((luminance(one), luminance(other)))
    return (lighter + 0.05) / (darker + 0.05)


class Report(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def run_host(self, *words, status=0):
        run = subprocess.run([HOST, *words], capture_output=True, cwd=self.folder, encoding="utf-8", timeout=120, check=False,
                             stdin=subprocess.DEVNULL, env={**os.environ, "LC_ALL": "C.UTF-8"})
        self.assertEqual(run.returncode, status, (words, run.stdout, run.stderr))
        return run.stdout + run.stderr

    def report(self, machine):
        self.run_host("report", "--over", machine, "report.html")
        text = (self.folder / "report.html").read_text()
        self.check_form(text)
        return Page(text)

    def check_form(self, text):
        """What holds for the report of any machine."""
        page = Page(text)
        self.assertLess(len(text.encode()), 5_000_000)
        self.assertTrue(text.startswith("<!DOCTYPE html>\n"))
        self.assertNotIn("", page.texts("code"))
        self.assertEqual(page.all("html")[0]["attributes"]["lang"], "en")
        self.assertEqual({name for each in page.elements for name in each["attributes"]} - ATTRIBUTES, set())
        self.assertNotRegex(text.split("</style>")[0], r"url\(|@import|expression")
        self.assertEqual({each["tag"] for each in page.elements} & {"script", "img", "link", "iframe", "object", "a", "form"}, set())
        headings = [int(each["tag"][1]) for each in page.elements if re.fullmatch("h[1-6]", each["tag"])]
        self.assertEqual(headings.count(1), 1)
        self.assertEqual(headings[0], 1)
        for before, after in zip(headings, headings[1:]):
            self.assertLessEqual(after, before + 1)
        for each in page.all("th"):
            self.assertEqual(each["attributes"]["scope"], "col")
        for rows in page.tables().values():
            self.assertEqual({len(row) for row in rows}, {8})
        self.assertEqual([each for each in text if not each.isprintable() and each != "\n"], [])

    def check_findings(self, page, machine, most=500):
        found = json.loads(self.run_host("diagnose", machine, "--json", status=1))["findings"]
        told = [each["text"] for each in page.all("li") if "ol" in each["inside"]]
        self.assertEqual(len(told), min(len(found), most))
        for text, finding in zip(told, found):
            parts = [finding["severity"] + ":", finding["sentence"], finding["effect"], finding["remedy"] or "", finding["command"] or "",
                     "(safe)" if finding["command"] and finding["safe"] else ""]
            wanted = " ".join(" ".join(parts).split())
            self.assertTrue(text == wanted or "…" in text, (text, wanted))
        return found

    def test_it_says_what_is_known_of_the_machine(self):
        page = self.report(SAMPLE)
        self.check_findings(page, SAMPLE)
        said = self.run_host(SAMPLE, "-c", "numbers", "-c", "ports", "-c", "board 1", "-c", "board 2")
        grid = re.findall(r"[.?capL!]", "".join(re.findall(r"^ +\d+ ((?: [.?capL!]){32})$", said, re.MULTILINE)))
        cells = [each["text"] for each in page.all("text") if "g" in each["inside"]]
        self.assertEqual(cells, grid)
        classes = [each["attributes"]["class"] for each in page.all("rect")]
        self.assertEqual(classes, [{"L": "live", "!": "conflict", ".": "free"}.get(sign, "other") for sign in grid])
        self.assertEqual([text.split(":")[0] for text in page.texts("title")[2:]], [f"COM{number}" for number in range(1, 257)])
        listed = {}
        for text in [each["text"] for each in page.all("li") if "ul" in each["inside"]]:
            sign, ranges = text[0], text.split(": ")[1]
            for part in ranges.split(", "):
                first, _, last = part.partition("-")
                listed.update(dict.fromkeys(range(int(first), int(last or first) + 1), sign))
        self.assertEqual([listed[number] for number in range(1, 257)], grid)
        rows = [[re.sub(" +", " ", cell) for cell in row] for table in page.tables().values() for row in table]
        lines = [re.sub(" +", " ", line).strip() for line in said.splitlines()]
        for row in rows:
            self.assertIn(" ".join(row), lines)
        self.assertEqual(len(rows), 13 + 1 + 2 + 1 + 12 + 1)

    def test_it_says_where_it_comes_from_and_what_a_patch_would_change(self):
        page = self.report(SAMPLE)
        self.assertIn(hashlib.sha256(SAMPLE.read_bytes()).hexdigest(), page.texts("dd"))
        self.assertIn(self.run_host("--version").strip(), page.texts("dd"))
        self.assertEqual(page.texts("pre")[0].split(" database"), " ".join(
            self.run_host(SAMPLE, "-c", "mend", "-c", "changes").split("> changes\n")[1].split("kvrhost")[0].split()).split(" database"))
        head, *keys = SAMPLE.read_text().split("\n[")
        (self.folder / "part.reg").write_text("\n[".join([head, *(key for key in keys if "SERIALCOMM" not in key)]))
        text = " ".join(self.report("part.reg").texts("ul")[:1])
        for missing in json.loads(self.run_host("diagnose", "part.reg", "--json", status=1))["notKnown"]:
            self.assertIn(missing["export"], text)

    def test_a_session_reports_what_it_has_changed_and_keeps_a_file_that_exists(self):
        self.run_host(SAMPLE, "-c", "free 10", "-c", "report own.html")
        page = Page((self.folder / "own.html").read_text())
        self.assertEqual(page.texts("pre"), ["database: COM10: claimed -> free"])
        before = (self.folder / "own.html").read_bytes()
        self.assertIn("own.html exists", self.run_host("report", SAMPLE, "own.html", status=2))
        self.assertIn("own.html exists", self.run_host("-c", "report own.html", status=1))
        self.assertEqual((self.folder / "own.html").read_bytes(), before)
        self.run_host("-c", "report --over own.html")
        self.assertNotEqual((self.folder / "own.html").read_bytes(), before)

    def test_no_text_of_a_machine_becomes_markup(self):
        sample = SAMPLE.read_text()
        quoted = HOSTILE.replace("\\", "\\\\").replace('"', '\\"')
        for old in ("Multi-function board serial port", "Multi-function PCI I/O board", "COM12\"", "\\\\Device\\\\KvrUart4", "9600,e,7,2 ,x"):
            self.assertIn(old, sample)
            sample = sample.replace(old, quoted + old)
        sample = sample.replace("5&2B7D41E6&0&01", "5&<b>&0&01")
        (self.folder / "hostile.reg").write_text(sample)
        page = self.report("hostile.reg")
        self.check_findings(page, "hostile.reg")
        self.assertIn("\\x1B[31m\\u{202E}abc", " ".join(page.texts("td")))
        self.assertIn("<script>alert(1)</script>", " ".join(page.texts("caption")))
        name = "<b>&\"'.reg"
        (self.folder / name).write_text(sample)
        self.assertEqual(self.report(name).texts("h1"), ["Report on " + name])

    def test_thousands_of_hostile_devices_stay_an_attachment(self):
        head = 'Windows Registry Editor Version 5.00\n'
        system = "[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\"
        names = (HOSTILE * 4).replace('"', '\\"')
        ports = "".join(f'\n{system}Enum\\X\\{HOSTILE[:9].replace("/", "")}\\{number}]\n"DeviceDesc"="{names}"\n"FriendlyName"="{names} (COM{number})"\n'
                        f'"Class"="Ports"\n"ClassGUID"="{{4d36e978-e325-11ce-bfc1-08002be10318}}"\n'
                        f'\n{system}Enum\\X\\{HOSTILE[:9].replace("/", "")}\\{number}\\Device Parameters]\n"PortName"="COM{number % 7 + 1}"\n'
                        for number in range(3000))
        lines = "".join(f'"COM{"0" * zeros}3:"="{names}"\n' for zeros in range(2000))
        live = "".join(f'"{names} {number}"="COM4"\n' for number in range(2000))
        (self.folder / "many.reg").write_text(
            f"{head}{ports}\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Ports]\n{lines}"
            f"\n[HKEY_LOCAL_MACHINE\\HARDWARE\\DEVICEMAP\\SERIALCOMM]\n{live}")
        page = self.report("many.reg")
        self.check_findings(page, "many.reg")
        self.assertIn("The first 500 of 3000.", page.texts("p"))

    @unittest.skipUnless("KVR_LONG" in os.environ, "a browser is there only in long runs")
    def test_a_browser_shows_it(self):
        picture = self.folder / "report.png"
        subprocess.run([sys.executable, ROOT / "tests/report_picture.py", HOST, picture], check=True)
        self.assertGreater(picture.stat().st_size, 20_000)

    def test_its_colours_can_be_told_apart_in_both_schemes(self):
        self.report(SAMPLE)
        style = (self.folder / "report.html").read_text().split("<style>")[1].split("</style>")[0]
        schemes = [dict(re.findall(r"--(\w+): (#\w+)", block)) for block in re.findall(r":root \{[^}]*\}", style)]
        self.assertEqual(len(schemes), 3)
        for scheme in schemes:
            for ink in {"ink", "bad", *re.findall(r"color: var\(--(\w+)\)", style)} - {"ground", "soft"}:
                for ground in ("ground", "soft"):
                    if not (ink == "line"):
                        self.assertGreaterEqual(contrast(scheme[ink], scheme[ground]), 4.5, (ink, ground, scheme))
            self.assertGreaterEqual(contrast(scheme["line"], scheme["ground"]), 3)
        self.assertEqual({colour for name, colour in schemes[2].items()}, {"#000", "#fff"})


if __name__ == "__main__":
    HOST = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
