#!/usr/bin/env python3
"""What the host tells about machines, to people and to programs.

    host_tells_test.py KVRHOST"""
import json
import os
import pathlib
import pty
import re
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[1]
SAMPLE = ROOT / "host/machines/sample.reg"
PLACES = ("Enum", "DeviceClasses", "COM Name Arbiter", "SERIALCOMM", "CurrentVersion\\Ports")
OTHER_KEY = '\n\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Other]\n"Some"="thing"\n'


def without(*places):
    """The sample machine's export with the keys of these places left out."""
    head, *keys = SAMPLE.read_text().split("\n[")
    return "\n[".join([head, *(key for key in keys if not any(place in key.split("]")[0] for place in places))]) + OTHER_KEY


class Host(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def run_host(self, *words, status=0, **more):
        run = subprocess.run([HOST, *words], capture_output=True, cwd=self.folder, encoding="utf-8", errors="replace", timeout=120, check=False,
                             **{"stdin": subprocess.DEVNULL, "env": {**os.environ, "LC_ALL": "C.UTF-8"}, **more})
        self.assertEqual(run.returncode, status, (words, run.stdout, run.stderr))
        return run.stdout + run.stderr

    def says(self, *commands, machine=SAMPLE, status=0):
        return self.run_host(machine, *(word for command in commands for word in ("-c", command)), status=status)

    def export(self, name, text):
        (self.folder / name).parent.mkdir(exist_ok=True)
        (self.folder / name).write_text(text)
        return name

    def json(self, *words, status=1):
        document = json.loads(self.run_host(*words, "--json", status=status))
        self.assertEqual(document["version"], 1)
        return document

    def sound(self, name="sound.reg"):
        """An export with which nothing is wrong: of the places it has none in which the sample machine has something."""
        return self.export(name, without("Enum", "DeviceClasses", "COM Name Arbiter"))

    # --- Commands and subcommands

    def test_words_after_a_command_are_commands_and_not_subcommands(self):
        machine = self.export("own.reg", SAMPLE.read_text().replace("00,00", "01,00", 1))
        said = self.run_host(machine, "-c", "why 9", "diagnose")
        self.assertEqual(said.split("> diagnose\n")[1], self.run_host("diagnose", machine, status=1))
        self.assertIn('error: no command "X"', self.run_host("-c", "X", "diff", status=1))

    def test_failures_are_made_only_of_operations_that_there_are(self):
        self.assertIn('error: no operation "Foo"', self.says("fail Foo 1", status=1))
        self.assertIn("did you mean RegSetValueExW?", self.says("fail RegSetValueEx 1", status=1))
        self.assertIn("with N from 1", self.says("fail RegSetValueExW 0", status=1))
        rename = ("open 5", "click Advanced", 'pick "COM Port Number" COM14', "click OK")
        self.assertIn("\nserial map:", self.says(*rename, "changes"))
        self.assertNotIn("\nserial map:", self.says("fail RegSetValueExW", *rename, "changes"))

    def test_items_count_from_1_wherever_they_are_told(self):
        listed = re.findall(r"^ +(\d+) +board", self.says("devices"), re.MULTILINE)
        self.assertEqual(listed[0], "1")
        self.assertIn("error", self.says("open 5", "click Advanced", 'pick "COM Port Number" #0', status=1))
        said = self.says("open 5", "click Advanced", 'pick "COM Port Number" #9', "controls")
        self.assertIn("9 of 256: COM9 (in use)", said)

    def test_language_is_named_in_any_of_its_forms(self):
        for name, caption in (("de-DE", "Erweitert"), ("de_DE", "Erweitert"), ("zh-CN", "高级"), ("zh_CN", "高级")):
            self.assertIn(caption, self.run_host("--language", name, "-c", "open 5", "controls"), name)
            self.assertIn(caption, self.run_host("-c", "open 5", "controls", env={"LANG": name + ".UTF-8"}), name)

    def test_who_types_while_the_output_goes_elsewhere_is_told_so(self):
        person, keyboard = pty.openpty()
        self.addCleanup(os.close, person)
        os.write(person, b"devices\n\x04")
        said = self.run_host("--line", stdin=keyboard)
        os.close(keyboard)
        self.assertIn("commands are read from here", said)
        self.assertIn("board", said)

    # --- What is found

    def test_findings_are_told_in_groups(self):
        said = self.run_host("diagnose", SAMPLE, status=1)
        self.assertRegex(said, r"\A\d things are wrong: \d serious, \d minor, \d harmless\.\n")
        self.assertEqual(said.count("COM9, COM10 and COM33 are marked as in use, but nothing uses them:"), 1)
        self.assertIn("    > free COM9\n    > free COM10\n    > free COM33\n", said)
        found = self.json("diagnose", SAMPLE)["findings"]
        self.assertEqual([each["number"] for each in found if each["rule"] == "stale-claim"], [9, 10, 33])
        order = ["serious", "minor", "harmless"]
        self.assertEqual([each["severity"] for each in found], sorted((each["severity"] for each in found), key=order.index))
        commands = [each["command"] for each in found if each["safe"]]
        self.assertEqual(commands, re.findall(r"    > (.*)", said))
        self.assertNotIn("error", self.says(*commands))

    def test_export_is_judged_only_as_far_as_it_goes(self):
        nothing = self.export("nothing.reg", without(*PLACES))
        self.assertIn("can't be judged: it holds none of the five places", self.run_host("diagnose", nothing, status=2))
        self.assertEqual(len(self.json("diagnose", nothing, status=2)["notKnown"]), 5)
        some = self.export("some.reg", without("COM Name Arbiter", "SERIALCOMM"))
        said = self.run_host("diagnose", some, status=1)
        self.assertIn("In order as far as was checked: COM", said)
        for place in ("COM Name Arbiter", "SERIALCOMM"):
            self.assertIn(place + "\n", said)
        self.assertNotIn("In order: ", said)
        self.assertIn("Nothing is wrong with what could be checked.", self.run_host("diagnose", self.sound()))

    def test_many_exports_are_told_in_a_line_each_worst_first(self):
        self.sound("all/a sound.reg")
        self.export("all/b wrong.REG", SAMPLE.read_text())
        self.export("all/c minor.reg", without("Enum\\KVRBUS", "Enum\\PCI", "DeviceClasses", "CurrentVersion\\Ports"))
        self.export("all/d broken.reg", "no export")
        self.export("all/e nothing.reg", without(*PLACES))
        self.export("all/notes.txt", "no export")
        worst_first = ["d broken.reg", "e nothing.reg", "b wrong.REG", "a sound.reg"]
        names = [line.split(":")[0] for line in self.run_host("diagnose", "all", status=2).splitlines()]
        self.assertEqual([pathlib.Path(name).name for name in names if "minor" not in name], worst_first)
        self.assertEqual(len(names), 5)
        document = self.json("diagnose", "all", status=2)
        self.assertEqual([each["machine"] for each in document["machines"]], names)
        self.assertIn("error", document["machines"][0])
        self.assertFalse(document["machines"][1]["judged"])
        self.run_host("diagnose", "all/a sound.reg", "all/b wrong.REG", status=1)
        self.run_host("diagnose", "all/a sound.reg", "all/a sound.reg")
        (self.folder / "empty").mkdir()
        self.assertIn("no export in empty", self.run_host("diagnose", "empty", status=2))

    # --- What changes

    def test_patch_holds_what_changes_tells(self):
        commands = ("free 9", "open 5", "click Advanced", 'pick "COM Port Number" COM14', "click OK", "sheet ok")
        for places in ((), ("COM Name Arbiter",), ("CurrentVersion\\Ports",)):
            name = f"machine{len(places)}.reg"
            machine = self.export(name, without(*places))
            fix = f"fix {len(places)}.reg"
            said = self.says(*commands[bool(places):], "changes", f'patch --over "{fix}"', machine=machine)
            changes = said.split("> changes\n")[1].split("> patch")[0].splitlines()
            patch = (self.folder / fix).read_text("utf-16")
            told = re.findall(r"^;   (.*)$", patch, re.MULTILINE)
            self.assertEqual(sorted(told), sorted(changes))
            self.assertIn(f"; Made from {name}.\n", patch)
            self.assertEqual(re.findall(r"^;\s*\n;\s*$", patch, re.MULTILINE), [])
            written = re.findall(r'^"(.*?)"=', patch, re.MULTILINE)
            self.assertEqual("ComDB" in written, any(line.startswith("database: ") for line in changes), changes)
            for line in changes:
                if line.startswith("settings line: "):
                    self.assertIn(line.split(": ")[1].split()[0] + ":", written)
            undo = (self.folder / fix.replace(".reg", "-undo.reg")).read_text("utf-16")
            self.assertIn(f"; Takes back what {fix} changes:\n", undo)

    def test_no_file_is_lost_unasked(self):
        machine = self.export("machine.reg", SAMPLE.read_text())
        undo = self.folder / self.export("fix-undo.reg", "the only way back")
        for command in ("patch fix.reg", "patch --over machine.reg", "report machine.reg --over", "trace machine.reg",
                        "export \xed\xa0\x80/a.reg", "source ."):
            self.assertIn("error: ", self.run_host(machine, "-c", "free 9", "-c", command, status=1))
        self.run_host("report", machine, machine, "--over", status=2)
        self.assertEqual(((self.folder / machine).read_text(), undo.read_text()), (SAMPLE.read_text(), "the only way back"))
        self.assertFalse((self.folder / "fix.reg").exists())
        self.says("free --even-so COM7", "patch fix.reg --over", "trace new", "open 1", "trace off", "trace new")
        self.assertNotIn("only way", undo.read_text("utf-16"))

    def test_undo_leaves_what_nobody_has_read(self):
        machine = self.export("part.reg", without("CurrentVersion\\Ports"))
        said = self.says("open 6", "click Advanced", 'pick "COM Port Number" COM14', "click OK", "sheet ok", "changes", "patch fix.reg",
                         machine=machine)
        self.assertIn("settings line: COM14: not known -> ", said)
        self.assertIn('"COM14:"=', (self.folder / "fix.reg").read_text("utf-16"))
        undo = (self.folder / "fix-undo.reg").read_text("utf-16")
        self.assertIn('"PortName"="COM5"', undo)
        self.assertNotIn('"COM14:"', undo)

    def test_what_cannot_be_done_has_its_status(self):
        empty = self.export("empty.reg", "Windows Registry Editor Version 5.00\n")
        self.assertIn("nothing can be compared", self.run_host("diff", SAMPLE, empty, status=2))
        for words in (["diagnose", ""], ["diff", "", SAMPLE], ["check-report", "."], ["diagnose", b"\xed\xa0\x80.reg"], ["."]):
            self.run_host(*words, status=2)
        self.assertIn("did you mean diagnose?", self.run_host("dianose", status=2))
        self.assertIn("Anschluss", self.run_host(SAMPLE, "-c", "open 6", "--language", "de"))
        with open("/dev/full", "w") as full:
            self.assertEqual(subprocess.run([HOST, "diff", SAMPLE, SAMPLE], stdout=full, stderr=subprocess.DEVNULL).returncode, 2)
        hostile = self.export("hostile.reg", SAMPLE.read_text().replace("UART\\5&2B7D41E6", "UART\\\x9b\u202e5&2B7D41E6"))
        self.assertTrue(self.run_host("diff", SAMPLE, hostile, "--json", status=1).isascii())

    def test_settings_line_has_one_colon(self):
        said = self.says("open 6", "click Advanced", 'pick "COM Port Number" COM14', "click OK", "sheet ok", "changes")
        self.assertIn("settings line: COM14: not there -> ", said)
        self.assertNotIn("::", said)

    def test_actions_are_undone_one_at_a_time_and_under_no_window(self):
        sort = ("free 9", "open 1", "click Advanced", 'click "Sort UART"', "click Cancel")
        for command in ("undo", "reload"):
            self.assertIn(f"> {command}\nerror: ", self.says(*sort, command, status=1))
        said = self.says(*sort, "sheet cancel", "undo", "changes", "undo", "changes", "undo", status=1)
        self.assertIn('undone: click "Sort UART"\n> changes\ndatabase: COM9: claimed -> free\n', said)
        self.assertIn("undone: free 9\n> changes\nnothing differs\n> undo\nerror: there is nothing to undo", said)

    def test_differences_are_listed_for_programs(self):
        self.says("free 9", "export after.reg")
        document = self.json("diff", SAMPLE, "after.reg")
        self.assertEqual(document["differences"], [{"place": "database", "device": None, "name": None,
                                                    "sentence": "database: COM9: claimed -> free"}])
        self.assertEqual(self.json("diff", SAMPLE, SAMPLE, status=0)["differences"], [])
        part = self.export("part.reg", without("SERIALCOMM"))
        self.assertEqual(self.json("diff", SAMPLE, part, status=0)["notCompared"], ["serialMap"])
        self.run_host("diff", SAMPLE, "none.reg", "--json", status=2)


if __name__ == "__main__":
    HOST = pathlib.Path(sys.argv.pop(1)).resolve()
    unittest.main()
