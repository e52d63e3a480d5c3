#!/usr/bin/env python3
"""The full screen on terminals of all sizes and abilities: the focus is always in sight and told without looks, and nothing
of a terminal's commands is seen.

    terminals_test.py KVRHOST"""
import os
import pathlib
import statistics
import sys
import time
import unittest

from terminal import Terminal

SIZES = ((40, 10), (60, 20), (80, 24), (200, 60))


def open_board(terminal):
    terminal.wait("Up/Down choose")
    terminal.press("enter")
    terminal.wait("Port Control")
    terminal.settle()


class Terminals(unittest.TestCase):
    def expect_focus(self, terminal):
        """The cursor is at the focus, with the mark before it."""
        terminal.settle()
        cursor = terminal.screen.cursor
        self.assertFalse(cursor.hidden)
        before = terminal.screen.display[cursor.y][:cursor.x]
        self.assertRegex(before, r">[^│]*$" if "║" in before else ">", terminal.text())

    def test_focus_is_in_sight_at_every_size(self):
        for columns, rows in SIZES:
            with self.subTest(columns), Terminal(HOST, columns=columns, rows=rows, NO_COLOR="1") as terminal:
                open_board(terminal)
                for _ in range(14):
                    self.expect_focus(terminal)
                    self.assertIn("Apply", terminal.screen.display[[n for n, line in enumerate(terminal.screen.display)
                                                                  if "Cancel" in line][-1]])
                    terminal.press("tab")

    def test_question_has_its_buttons(self):
        for columns, rows in SIZES:
            with self.subTest(columns), Terminal(HOST, columns=columns, rows=rows) as terminal:
                terminal.wait("Up/Down choose")
                terminal.press("down", "down", "down", "down", "enter")
                terminal.wait("Port Settings")
                terminal.press("alt-a")
                terminal.wait("Advanced Settings for COM7")
                terminal.press("alt-p", "home", "com5", "enter")
                terminal.wait("This COM name", "continue?", "Yes", "No")
                self.expect_focus(terminal)

    def test_wide_characters_keep_the_frame(self):
        with Terminal(HOST, "--language", "ja", columns=60, rows=20) as terminal:
            terminal.wait("Up/Down choose")
            terminal.press("enter")
            terminal.wait("(port1)")
            terminal.press("end")
            terminal.wait("(port13)")
            frames = [terminal.screen.buffer[row][59].data for row in range(1, 18)]
            self.assertLessEqual(set(frames), {"║", "^", "v"})

    def test_terminals_of_other_times(self):
        for name in ("vt100", "linux"):
            with self.subTest(name), Terminal(HOST, TERM=name) as terminal:
                open_board(terminal)
                self.expect_focus(terminal)
                terminal.press("\x03")
                terminal.wait_end()
                terminal.stream.feed(terminal.raw[-400:])
                self.assertNotIn(b"$<", terminal.raw)
                self.assertEqual((terminal.screen.display[-1].strip(), terminal.screen.cursor.y), ("", 23))

    def test_frames_follow_the_character_set(self):
        for environment, corner in (({"LC_ALL": "C"}, "#="), ({"LC_ALL": "C.UTF-8"}, "╔═")):
            with Terminal(HOST, **environment) as terminal:
                open_board(terminal)
                self.assertIn(corner, terminal.text())
                self.assertEqual(terminal.text().isascii(), corner.isascii())

    def test_escape_is_fast_and_alt_is_known(self):
        with Terminal(HOST) as terminal:
            open_board(terminal)
            times = []
            for _ in range(9):
                terminal.press("alt-v")
                terminal.wait("UART Feature")
                terminal.settle()
                begun, seen = time.monotonic(), len(terminal.raw)
                os.write(terminal.child.child_fd, b"\x1b")  # at once, other than press()
                while len(terminal.raw) == seen:
                    terminal.read(0.001)
                times.append((time.monotonic() - begun) * 1000)
                terminal.wait("Port Control", gone=["UART Feature"])
            print(f"Esc takes {statistics.median(times):.0f} ms")
            self.assertLess(statistics.median(times), 50)
            terminal.press("esc")
            terminal.wait("F10 end", gone=["Port Control"])
            open_board(terminal)
            terminal.press("esc")
            time.sleep(0.2)
            terminal.press("v")
            terminal.settle()
            self.assertNotIn("UART Feature", terminal.text())


HOST = str(pathlib.Path(sys.argv.pop(1)).resolve())

if __name__ == "__main__":
    unittest.main()
