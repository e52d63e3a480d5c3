#!/usr/bin/env python3
"""The full screen as a seat before a session: its command line works on the windows that are open, as the prompt does, and
nothing that was changed is lost unasked.

    one_session_test.py KVRHOST"""
import pathlib
import sys
import tempfile
import unittest

from terminal import Terminal

SAMPLE = pathlib.Path(__file__).resolve().parents[1] / "host/machines/sample.reg"
ASKED = "cust.reg has changed, and the changes are not saved."


class OneSession(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        (self.folder / "cust.reg").write_bytes(SAMPLE.read_bytes())
        self.terminal = Terminal(HOST, "cust.reg", cwd=folder.name)
        self.addCleanup(self.terminal.__exit__)
        self.terminal.wait("Devices", "cust.reg")

    def go(self, *steps):
        """Each step: keys, or a command after a colon; a text that is then seen; one that is not, if any."""
        for pressed, seen, *unseen in steps:
            with self.subTest(pressed):
                text = self.terminal.see(*(["f6", pressed[1:], "enter"] if pressed[0] == ":" else pressed.split()))
                self.assertIn(seen, text)
                for each in unseen:
                    self.assertNotIn(each, text)

    def test_commands_meet_the_open_windows(self):
        self.go(("enter", "Port Control"),
                (":click Advanced", "UART Feature"),
                (":sheet cancel", "blocks the sheet"),
                ("esc", "Port Control", "UART Feature"),
                (":reload", "is open;"),
                (":open 5", "is open;"),
                ("alt-v", "UART Feature"),
                (":click Cancel", "Port Control", "UART Feature"),
                (":uncheck 1039", "[ ]*Enable large FIFO"),
                (":sheet cancel", "Devices", "Port Control"),
                (":open COM5", "Port Settings"))

    def test_undo_takes_back_one_action(self):
        self.go(("enter", "COM7 (port1)"), ("alt-v space esc", "COM3 (port1)"), ("esc", "Devices"),
                (":free 9", "COM9: freed"), (":undo", "undone: free 9", "COM7 (port1)"), ("enter", "COM3 (port1)"),
                ("esc", "not saved"), (":undo", "undone: Space on"), ("enter", "COM7 (port1)", "not saved"))

    def test_nothing_is_lost_unasked(self):
        self.go(("down", "Devices", "saved"), (":free 9", "* not saved"), ("^c", ASKED), ("esc", "Devices", ASKED),
                ("f10", ASKED), ("^c", "Devices", ASKED), (":quit", ASKED), ("esc", "Devices", ASKED),
                ("enter", "Port Control"), (":quit", ASKED), ("esc", "Port Control", ASKED),
                ("f6 qui", "command: qui"), ("^c", "Port Control", "command:"), ("f10", ASKED), ("s", "Save:"),
                ("e", "export to: cust-changed.reg"))
        self.terminal.press("enter")
        self.assertEqual(self.terminal.wait_end(), (0, None))
        self.assertTrue((self.folder / "cust-changed.reg").exists())

    def test_an_end_loses_nothing_that_is_saved(self):
        self.go((":free 9", "* not saved"), ("^s e enter", "Devices", "not saved"))
        self.terminal.press("f10")
        self.assertEqual(self.terminal.wait_end(), (0, None))

    def test_saving(self):
        saved = self.folder / "cust-changed.reg"
        self.go((":free 9", "* not saved"), ("^s", "Save:"), ("e", "export to: cust-changed.reg"), ("enter", "cust-changed.reg", "not saved"))
        first = saved.read_bytes()
        self.go((":free 10", "* not saved"), ("^s e enter", "cust-changed.reg exists."), ("esc", "* not saved"))
        self.go(("^s e ^u none/x.reg enter", "can't write none/x.reg"), ("home", "export to: none/x.reg"), ("esc", "* not saved"))
        self.assertEqual(saved.read_bytes(), first)
        self.go(("^s e enter", "exists."), ("r", "Devices", "not saved"))
        self.assertNotEqual(saved.read_bytes(), first)
        (self.folder / "cust-fix-undo.reg").write_text("the only way back")
        self.go((":claim 11 --even-so", "COM11"), ("^s p", "patch to: cust-fix.reg"), ("enter", "cust-fix-undo.reg exists."), ("esc", "Devices"))
        self.assertEqual((self.folder / "cust-fix-undo.reg").read_text(), "the only way back")
        self.go(("^s p enter", "exists."), ("r", "cust-fix.reg"))
        self.assertIn("Made from cust.reg", (self.folder / "cust-fix.reg").read_bytes().decode("utf-16"))


HOST = str(pathlib.Path(sys.argv.pop(1)).resolve())

if __name__ == "__main__":
    unittest.main()
