"""The full screen in a pseudo-terminal, read through a terminal emulator."""
import os
import re
import signal
import time

import pexpect
import pyte

NAMES = {"enter": "\r", "tab": "\t", "backtab": "\x1b[Z", "esc": "\x1b", "up": "\x1bOA", "down": "\x1bOB",
         "right": "\x1bOC", "left": "\x1bOD", "home": "\x1bOH", "end": "\x1bOF", "pageup": "\x1b[5~",
         "pagedown": "\x1b[6~", "space": " ", "f1": "\x1bOP", "f2": "\x1bOQ", "f3": "\x1bOR", "f4": "\x1bOS",
         "f5": "\x1b[15~", "f6": "\x1b[17~", "f7": "\x1b[18~", "f8": "\x1b[19~", "f9": "\x1b[20~", "f10": "\x1b[21~"}
CLEAR = re.compile(rb"\x1b\[H\x1b\[2?J")
REPAINT = "\x0c"


def keys(*names):
    """Takes names of keys, "alt-x" for Alt and a letter, "^x" for Ctrl, and anything else as it is typed."""
    return "".join("\x1b" + name[4:] if name.startswith("alt-") else chr(ord(name[1].upper()) - 64)
                   if len(name) == 2 and name[0] == "^" else NAMES.get(name, name) for name in names)


class Terminal:
    """Runs a program until the end of the with block."""

    def __init__(self, *command, columns=80, rows=24, cwd=None, **environment):
        self.screen = pyte.Screen(columns, rows)
        self.stream = pyte.ByteStream(self.screen)
        self.raw = b""
        self.shown = self.cleared = 0  # of it
        self.lines = None  # of the screen, once they have been asked for
        self.child = pexpect.spawn(command[0], list(command[1:]), dimensions=(rows, columns), timeout=20, cwd=cwd, env={
            "PATH": os.environ["PATH"], "TERM": "xterm-256color", "LC_ALL": "C.UTF-8", **environment})
        self.child.delaybeforesend = None
        self.child.ptyproc.delayafterclose = 0

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.child.kill(signal.SIGKILL)
        self.child.wait()

    def read(self, seconds=0.05, seen=True):
        try:
            self.raw += self.child.read_nonblocking(65536, seconds)
        except (pexpect.TIMEOUT, pexpect.EOF):
            return False
        if seen:
            self.show(len(self.raw))
        return True

    def show(self, end):
        self.stream.feed(self.raw[self.shown:end])
        self.shown = end
        self.lines = None

    def rows(self):
        self.lines = self.lines or self.screen.display
        return self.lines

    def text(self):
        return "\n".join(self.rows())

    def until(self, is_reached, expected, seconds=20):
        end = time.monotonic() + seconds
        while not is_reached():
            if not self.read() and time.monotonic() > end:
                raise AssertionError(f"not {expected} but\n{self.text()}")

    def wait(self, *texts, gone=()):
        """Waits until all texts are on the screen and none of the others is."""
        self.until(lambda: all(text in self.text() for text in texts) and not any(text in self.text() for text in gone),
                   f"{texts} without {gone}")

    def press(self, *names):
        self.child.send(keys(*names))

    def repaints(self, number, seconds=20):
        """Where the next repaints of the whole screen begin."""
        end = time.monotonic() + seconds
        while len(found := [clear.start() for clear in CLEAR.finditer(self.raw, self.cleared)]) < number:
            if not self.read(seen=False) and time.monotonic() > end:
                raise AssertionError(f"not repainted:\n{self.text()}")
        self.cleared = found[number - 1] + 1
        return found[number - 1]

    def see(self, *names):
        """The screen after these keys: two repaints are asked for behind them, and the first is whole when the second begins."""
        self.cleared = len(self.raw)
        self.press(*names, REPAINT, REPAINT)
        begin, end = self.repaints(1), self.repaints(1)
        # Of what the first repaint replaces only the modes are read: reading is slow.
        self.stream.feed(b"".join(re.findall(rb"\x1b\[\?[\d;]+[hl]", self.raw[self.shown:begin])))
        self.shown = begin
        self.show(end)
        return self.text()

    def find(self, text, last=False):
        """The column and row of a text, from 0."""
        rows = [(row, line) for row, line in enumerate(self.rows()) if text in line]
        assert rows, f"no {text!r} in\n{self.text()}"
        row, line = rows[-1 if last else 0]
        return line.index(text), row

    def mouse(self, button, column, row, up=False):
        self.child.send(f"\x1b[<{button};{column + 1};{row + 1}{'m' if up else 'M'}")

    def click(self, text, last=False):
        """The screen after it."""
        column, row = self.find(text, last)
        self.mouse(0, column, row)
        self.mouse(0, column, row, up=True)
        return self.see()

    def resize(self, columns, rows):
        """The screen after the change, which repaints it."""
        self.see()
        self.screen.resize(rows, columns)
        self.lines = None
        self.child.setwinsize(rows, columns)
        self.repaints(1)
        return self.see()

    def wait_end(self):
        self.child.expect(pexpect.EOF)
        self.raw += self.child.before or b""
        self.child.close()
        return self.child.exitstatus, self.child.signalstatus
