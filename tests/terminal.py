"""The full screen in a pseudo-terminal, read through a terminal emulator."""
import os
import time

import pexpect
import pyte

NAMES = {"enter": "\r", "tab": "\t", "backtab": "\x1b[Z", "esc": "\x1b", "up": "\x1bOA", "down": "\x1bOB",
         "right": "\x1bOC", "left": "\x1bOD", "home": "\x1bOH", "end": "\x1bOF", "pagedown": "\x1b[6~", "space": " ",
         "f2": "\x1bOQ", "f4": "\x1bOS", "f5": "\x1b[15~", "f9": "\x1b[20~", "f10": "\x1b[21~"}
CLEAR = b"\x1b[H\x1b[2J"


class Terminal:
    """Runs a program until the end of the with block."""

    def __init__(self, *command, columns=80, rows=24, **environment):
        self.screen = pyte.Screen(columns, rows)
        self.stream = pyte.ByteStream(self.screen)
        self.raw = b""
        self.child = pexpect.spawn(command[0], list(command[1:]), dimensions=(rows, columns), timeout=20, env={
            "PATH": os.environ["PATH"], "TERM": "xterm-256color", "LC_ALL": "C.UTF-8", **environment})

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.child.close(force=True)

    def read(self, seconds=0.05):
        try:
            got = self.child.read_nonblocking(65536, seconds)
        except (pexpect.TIMEOUT, pexpect.EOF):
            return False
        self.raw += got
        self.stream.feed(got)
        return True

    def text(self):
        return "\n".join(self.screen.display)

    def wait(self, *texts, gone=(), seconds=20):
        """Waits until all texts are on the screen and none of the others is."""
        end = time.monotonic() + seconds
        while not all(text in self.text() for text in texts) or any(text in self.text() for text in gone):
            if not self.read() and time.monotonic() > end:
                raise AssertionError(f"not {texts} without {gone} but\n{self.text()}")

    def settle(self):
        while self.read(0.15):
            pass

    def press(self, *keys):
        """Takes names of keys, "alt-x" for Alt and a letter, and anything else as it is typed."""
        for key in keys:
            self.child.send("\x1b" + key[4:] if key.startswith("alt-") else NAMES.get(key, key))

    def find(self, text, last=False):
        """The column and row of a text, from 0."""
        rows = [(row, line) for row, line in enumerate(self.screen.display) if text in line]
        assert rows, f"no {text!r} in\n{self.text()}"
        row, line = rows[-1 if last else 0]
        return line.index(text), row

    def mouse(self, button, column, row, up=False):
        self.child.send(f"\x1b[<{button};{column + 1};{row + 1}{'m' if up else 'M'}")

    def click(self, text, last=False):
        self.wait(text)
        self.settle()
        column, row = self.find(text, last)
        self.mouse(0, column, row)
        self.mouse(0, column, row, up=True)

    def await_new_picture(self, act):
        """Waits until the program repaints the whole screen because of that: everything seen afterwards was painted since."""
        self.settle()
        begun = self.raw.count(CLEAR)
        act()
        end = time.monotonic() + 20
        while self.raw.count(CLEAR) == begun:
            if not self.read() and time.monotonic() > end:
                raise AssertionError(f"not repainted:\n{self.text()}")

    def resize(self, columns, rows):
        self.screen.resize(rows, columns)
        self.await_new_picture(lambda: self.child.setwinsize(rows, columns))

    def wait_end(self):
        self.child.expect(pexpect.EOF)
        self.raw += self.child.before or b""
        self.child.close()
        return self.child.exitstatus, self.child.signalstatus
