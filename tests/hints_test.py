#!/usr/bin/env python3
"""Every hint at the foot of the full screen is true: in each place it is pressed, by key and by click, and does what it says.
A click is tried once for each hint, or in each place too with KVR_LONG.

    hints_test.py KVRHOST"""
import os
import pathlib
import re
import sys
import tempfile
import unittest

from terminal import Terminal

KEYS = {"Enter": "enter", "Esc": "esc", "Tab": "tab", "Space": "space", "Up": "up", "Down": "down", "Left": "left",
        "Right": "right", "PgUp": "pageup", "PgDn": "pagedown", "letters, /": "/", "arrows": "right"}
PORT = ("end", "up", "enter")  # the sheet of COM20
# The keys that lead to each place, from the devices of a machine that has changed.
PLACES = {
    "devices": (), "device without a page": ("down", "down"),
    "board": ("enter",), "its check": ("enter", "tab"), "its button": ("enter", "alt-v", "esc"),
    "its slider": ("enter", *["tab"] * 3), "its number": ("enter", *["tab"] * 8),
    "its open numbers": ("enter", *["tab"] * 8, "f4", "down"), "its OK box": ("enter", *["tab"] * 8, "com9", "enter"),
    "advanced board": ("enter", "alt-v"), "its mode": ("enter", "alt-v", "tab"),
    "port": PORT, "its button ": (*PORT, "alt-a", "esc"), "advanced port": (*PORT, "alt-a"), "its slider ": (*PORT, "alt-a", "tab"),
    "its number ": (*PORT, "alt-a", "alt-p"), "its question": (*PORT, "alt-a", "alt-p", "home", "com5", "enter"),
    "help": ("f1",), "ports": ("f2",), "store": ("f3",), "journal": ("f5",), "findings": ("f7",), "changes": ("f8",),
    "trace": ("enter", "esc", "f9"), "numbers": ("^n",), "number of a port": ("^n", "/", "kvruart\r"), "channels": ("^b",),
    "view over a sheet": ("enter", "^b"), "found": ("f7", "/", "com\r"),
    "command": ("f6", "help ports\r", "f6", "dia"), "save": ("^s",), "name": ("^s", "e"), "end": ("f10",), "find": ("/", "com"),
}
VIEWS = {"F1": "Help", "F2": "Ports", "F3": "The store of device", "F5": "Journal", "F6": "command:", "F7": "What is wrong",
         "F8": "What differs", "F9": "Trace of the last action|nothing has been traced", "F10": r"not saved\.\s", "^N": r"COM\d+: ",
         "^B": "The board of device", "^S": "Save:"}
# What is seen after a hint that says this. Besides, the screen is another one than before.
SEEN = {"open": "Port Control|Port Settings", "free COM10": "COM10: freed", "find": "find:", "list": "close the list",
        "close the list": "F4 list", "uncheck": "Space check", "check": "Space uncheck", "complete": "diagnose",
        "save": "Save:", "export the whole machine": "export to: sample-changed.reg",
        "patch with the changes, to import": "patch to: sample-fix.reg"}
CLOSES = {"OK", "Advanced...", "Yes", "No", "close", "cancel", "back"}  # or opens a window, or ends a view
ASKED = "command:|find:|export to:|Save:|not saved\\."


def hints(terminal):
    """Key, what it does, column and row of each hint: keys are bold. Two keys of a pair do the same."""
    columns, rows = terminal.screen.columns, terminal.screen.lines
    found = []
    for row in range(rows):
        cells = [terminal.screen.buffer[row][column] for column in range(columns)]
        if not all(cell.reverse for cell in cells):
            continue
        line, bold = terminal.rows()[row], "".join("k" if cell.bold else "." for cell in cells)
        for run in re.finditer("k+", bold):
            does = line[run.end():bold.find("k", run.end()) % (columns + 1)].strip()
            for key in re.finditer(r"letters, /|^/$|[^/]+", line[run.start():run.end()]):
                found.append((key[0], does, run.start() + key.start(), row))
    return found


def front(terminal):
    """Which window or view is in front."""
    title = re.findall("╔═ (.*?) ═", terminal.text())
    return terminal.rows()[0].split("saved")[-1].strip() + (title[-1] if title else "")


class Hints(unittest.TestCase):
    def begin(self, folder, way):
        terminal = Terminal(HOST, cwd=folder)
        self.addCleanup(terminal.__exit__)
        terminal.wait("Devices")
        terminal.see("f6", "free 9", "enter", "f9", "esc", *way)
        return terminal

    def press(self, terminal, hint, clicks, before=()):
        key, _, column, row = hint
        if not clicks:
            return terminal.see(*before, KEYS.get(key, key.lower()))
        terminal.press(*before)
        for up in (False, True):
            terminal.mouse(0, column, row, up)
        return terminal.see()

    def expect_views(self, terminal, told, clicks):
        """Each is reached, by key and click in turn, and Esc leads back to where it was asked for."""
        was = front(terminal), hints(terminal)
        for hint in told:
            with self.subTest(hint[:2]):
                after = self.press(terminal, hint, clicks, before=() if hint == told[0] else ("esc",))
                self.assertTrue(re.search(VIEWS[hint[0]], after), after)
            clicks = not clicks
        terminal.see("esc")
        self.assertEqual((front(terminal), hints(terminal)), was)

    def expect_act(self, terminal, hint, other_of_pair, clicks):
        def state():
            return terminal.text(), terminal.screen.cursor.y, terminal.screen.cursor.x
        before, was, does = state(), front(terminal), hint[1]
        if does == "discard them and end":
            terminal.press(hint[0])
            return self.assertEqual(terminal.wait_end(), (0, None))
        after = self.press(terminal, hint, clicks)
        if other_of_pair and state() == before:
            after = self.press(terminal, other_of_pair[0], clicks)
        self.assertNotEqual(state(), before)
        self.assertTrue(re.search(SEEN.get(does, SEEN.get(does.split(" ")[0], "")), after), after)
        if does in CLOSES:
            self.assertNotEqual(front(terminal), was)
        if does in ("do it", "leave", "go on"):
            self.assertIsNone(re.search(ASKED, after), after)

    def walk(self, clicks, with_views):
        clicked = set()
        for place, way in PLACES.items():
            with self.subTest(place), tempfile.TemporaryDirectory() as folder:
                terminal = self.begin(folder, way)
                told = hints(terminal)
                self.assertTrue(told)
                views = [hint for hint in told if hint[0] in VIEWS]
                if with_views and views and ("Devices" in terminal.text() or "╔" in terminal.text()):
                    self.expect_views(terminal, views, bool(len(place) % 2))
                for hint in [hint for hint in told if hint not in views]:
                    if clicks and hint[:2] in clicked and "KVR_LONG" not in os.environ:
                        continue  # what it does here its key has shown
                    clicked.add(hint[:2])
                    if terminal.child.closed or hints(terminal) != told:
                        terminal = self.begin(folder, way)
                    with self.subTest(hint[:2]):
                        pair = [other for other in told if other[1] == hint[1] and other[0] != hint[0]]
                        self.expect_act(terminal, hint, pair, clicks)

    def test_by_key(self):
        self.walk(False, with_views=True)

    def test_by_click(self):
        self.walk(True, with_views=False)


HOST = str(pathlib.Path(sys.argv.pop(1)).resolve())

if __name__ == "__main__":
    unittest.main()
