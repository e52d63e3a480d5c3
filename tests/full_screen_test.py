#!/usr/bin/env python3
"""The full screen as a person sees it: operated in a pseudo-terminal with keys and the mouse, and left as it should be.

    full_screen_test.py KVRHOST"""
import os
import pathlib
import re
import signal
import subprocess
import sys
import tempfile
import unittest

from terminal import Terminal

LEFT = b"\x1b[?1049l"  # the terminal's own screen is back


def open_board(terminal):
    terminal.wait("Multi-function PCI", "F1 help")
    terminal.press("enter")
    terminal.wait("Port Control", "COM7 (port1)")


def listed(terminal):
    """The visible ports of the board's list."""
    return re.findall(r"(COM\d+) \(port\d+\)", terminal.text())


class FullScreen(unittest.TestCase):
    def test_sort_by_keyboard(self):
        for columns, rows in ((80, 24), (200, 60)):
            with self.subTest(columns), Terminal(HOST, columns=columns, rows=rows) as terminal:
                open_board(terminal)
                terminal.press("alt-v")
                terminal.wait("UART Feature")
                terminal.press("space")
                terminal.wait("The last change outside")
                terminal.press("tab", "tab", "tab", "enter")  # Cancel; the sort is done
                terminal.wait("COM3 (port1)", "COM4 (port2)", "COM5 (port3)", "COM6 (port4)", gone=["UART Feature"])
                terminal.press("home", "com12")
                terminal.wait("> COM12 (port8)")
                terminal.press("esc")
                terminal.wait("F10 end", gone=["Port Control"])
                terminal.press("f10")
                self.assertEqual(terminal.wait_end(), (0, None))
                self.assertIn(LEFT, terminal.raw)

    def test_sort_by_mouse(self):
        with Terminal(HOST, columns=120, rows=40) as terminal:
            terminal.wait("Multi-function PCI", "F1 help")
            terminal.click("Multi-function PCI")
            terminal.wait("COM7 (port1)")
            column, row = terminal.find("COM7 (port1)")
            terminal.mouse(65, column, row)  # the wheel turns the list
            terminal.wait("COM11 (port7)", gone=["COM7 (port1)"])
            column, row = terminal.find("Transmit Buffer")
            knob, end = terminal.screen.display[row].index("█"), terminal.screen.display[row].index("┤")
            terminal.mouse(0, knob, row)
            for at in (knob + 2, knob + 4, end + 5):
                terminal.mouse(32, at, row)
            terminal.mouse(0, end, row, up=True)
            terminal.wait("128 of 1..128")
            column, row = terminal.find("Port Number:")
            for up in (False, True):
                terminal.mouse(0, terminal.screen.display[row].index(" ▾]"), row, up)
            terminal.wait("Enter close")
            terminal.press("esc")
            terminal.wait("F4 list")
            terminal.click("Advanced...")
            terminal.wait("UART Feature")
            terminal.click("Sort UART")
            terminal.wait("The last change outside")
            terminal.click("Cancel", last=False)
            terminal.wait("COM3 (port1)", gone=["UART Feature"])

    def test_rename_with_the_question(self):
        with Terminal(HOST) as terminal:
            terminal.wait("Multi-function PCI", "F1 help")
            terminal.press("down", "down", "down", "down", "enter")
            terminal.wait("Port Settings")
            terminal.press("alt-a")
            terminal.wait("Advanced Settings for COM7")
            terminal.press("alt-p", "home", "com5", "enter")
            terminal.wait("This COM name is being", "Yes", "No")
            terminal.resize(120, 40)  # while the box is open
            terminal.wait("This COM name is being", "F10 end")
            terminal.resize(80, 24)
            terminal.wait("This COM name is being", "F10 end")
            # A change and its reversal, which look like a resize to the same size.
            terminal.await_new_picture(lambda: terminal.child.kill(signal.SIGWINCH))
            terminal.wait("This COM name is being", "F10 end")
            terminal.press("alt-n")
            terminal.wait("Advanced Settings for COM7", gone=["This COM name is being"])
            self.assertIn("Nothing has been changed outside", terminal.text())
            terminal.press("alt-p", "home", "com50", "enter")
            terminal.wait("COM50", "The last change outside", gone=["Advanced Settings for"])

    def test_change_of_size(self):
        """The page stays as it was, and follows each size."""
        with Terminal(HOST) as terminal:
            open_board(terminal)
            terminal.press("down", "down", "tab")
            terminal.wait("> COM8 (port3)", "[x] Enable large FIFO")
            for columns, rows in ((200, 60), (80, 24)):
                terminal.resize(columns, rows)
                terminal.wait("> COM8 (port3)", "<    OK    >", "F10 end")
                self.assertEqual(len(listed(terminal)), {24: 4, 60: 7}[rows])
                right, _ = terminal.find("╝", last=True)
                self.assertLess(right, columns)
                self.assertEqual(terminal.find("F10 end")[1], rows - 1)
            terminal.press("space")
            terminal.wait("[ ] Enable large FIFO")

    def test_languages_and_terminals(self):
        for language, title in ((1041, "COM7"), (1025, "COM7"), (1037, "COM7")):
            with self.subTest(language), Terminal(HOST, "--language", str(language), NO_COLOR="1") as terminal:
                open_board_text = terminal.wait("F1 help")
                self.assertIsNone(open_board_text)
                terminal.press("enter")
                terminal.wait("(port1)")
                self.assertIsNone(re.search(rb"\x1b\[[0-9;]*3[0-7][;m]", terminal.raw), "a colour")
                rows = [line for line in terminal.screen.display if "(port1)" in line]
                self.assertIn(title, rows[0])
        with Terminal(HOST, TERM="dumb") as terminal:
            terminal.wait("can't be filled", "> ")
            terminal.press("quit\r")
            self.assertEqual(terminal.wait_end()[0], 0)
        with Terminal(HOST, "--line") as terminal:
            terminal.wait("help", "> ")
            self.assertNotIn(b"\x1b[?1049h", terminal.raw)

    def test_views(self):
        with Terminal(HOST, columns=120) as terminal:
            terminal.wait("Communications Port (COM1)  (no page: it is not a channel of a board)")
            open_board(terminal)
            terminal.press("f2")
            terminal.wait("PortName", "\\Device\\KvrUart0")
            terminal.press("esc")
            terminal.wait("COM7 (port1)", gone=["PortName"])
            terminal.press("f9")
            terminal.wait("The trace of the last action", "<---- _OnInitDialog")
            terminal.press("alt-v")
            terminal.wait("UART Feature")
            terminal.press("space")
            terminal.wait("<---- _SortCOMClicked")
            terminal.press("f5")
            terminal.wait("----> _SortCOMClicked", gone=["UART Feature"])
            terminal.press("end")
            terminal.wait("* SendNotifyMessageW", "<---- _SortCOMClicked")
            terminal.press("esc")
            terminal.wait("UART Feature")
            terminal.press("f9")
            terminal.wait("The last change outside", gone=["<----"])

    def test_ends_cleanly(self):
        """However the program ends, the terminal is as it was, and a signal is told as what ended it."""
        for how in ("ctrl-c", signal.SIGTERM, signal.SIGHUP, signal.SIGSEGV, signal.SIGABRT):
            with self.subTest(str(how)), Terminal(HOST) as terminal:
                open_board(terminal)
                before = terminal.raw.count(LEFT)
                if how == "ctrl-c":
                    terminal.press("\x03")
                else:
                    terminal.child.kill(how)
                code, killed = terminal.wait_end()
                self.assertEqual(terminal.raw.count(LEFT) > before, True)
                self.assertIn(b"\x1b[?1002l", terminal.raw)
                if how not in (signal.SIGSEGV, signal.SIGABRT):  # which the sanitizers answer in their own way
                    self.assertEqual((code, killed), (0, None) if how == "ctrl-c" else (None, how))
                else:
                    self.assertNotEqual(code, 0)

    def test_stops_and_goes_on(self):
        with Terminal("bash", "--norc", "-i", PS1="shell> ") as terminal:
            terminal.wait("shell>")
            terminal.press(f"{HOST}\r")
            open_board(terminal)
            terminal.press("\x1a")
            terminal.wait("Stopped", "shell>")
            terminal.press("fg\r")
            terminal.wait("Port Control", "COM7 (port1)")
            terminal.press("down")
            terminal.wait("> COM5 (port2)")
            terminal.press("\x03")
            while LEFT not in terminal.raw.split(b"\x1b[?1049h")[-1]:
                terminal.read(1)
            terminal.press("stty -a | grep -o ' echo '; echo over\r")
            terminal.wait("\nover", " echo ")

    def test_closed_terminal(self):
        terminal = Terminal(HOST)
        open_board(terminal)
        os.close(terminal.child.child_fd)
        for _ in range(100):
            finished, status = os.waitpid(terminal.child.pid, os.WNOHANG)
            if finished:
                break
            subprocess.run(["sleep", "0.1"], check=True)
        self.assertEqual((finished, status), (terminal.child.pid, signal.SIGHUP))

    def test_a_key_costs_little(self):
        """On a board with 256 ports."""
        with tempfile.TemporaryDirectory() as folder:
            machine = pathlib.Path(folder, "large.reg")
            machine.write_text(large_machine())
            with Terminal(HOST, str(machine)) as terminal:
                terminal.wait("F1 help")
                terminal.press("enter")
                terminal.wait("Port Control", "(port1)")
                terminal.press("end")
                terminal.wait("> COM256 (port256)")
                terminal.press("home")
                terminal.wait("> COM7 (port1)")
                terminal.settle()
                before = processor_time(terminal.child.pid)
                keys = ("down", "down", "down", "tab", "backtab") * 8
                for key in keys:
                    terminal.press(key)
                    terminal.settle()
                each = (processor_time(terminal.child.pid) - before) / len(keys)
                print(f"a key costs {each * 1000:.1f} ms of the processor")
                self.assertLess(each, 0.02)


def processor_time(process):
    fields = pathlib.Path(f"/proc/{process}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def large_machine():
    """The sample machine with 256 ports on its first board, each made like the first."""
    sample = (ROOT / "host/machines/sample.reg").read_text()
    board, rest = sample.split('"BoardNrController"=dword:0000000e', 1)
    port = re.search(r"^\[[^\n]*KVRBUS.UART.5&2B7D41E6&0&01\]\n.*?(?=^\[[^\n]*UART.5&2B7D41E6&0&02\])", sample, re.S | re.M)[0]
    entry = re.compile(r"(^\[[^\n]*##\?#KVRBUS#UART#5&2B7D41E6&0&)01(#.*?)(?=^\[[^\n]*##\?#KVRBUS#UART#5&2B7D41E6&0&02#)", re.S | re.M)
    made = []
    for number in range(14, 257):
        here = port.replace("5&2B7D41E6&0&01", f"5&2B7D41E6&0&{number:03}").replace("COM7", f"COM{number}")
        made.append(re.sub(r'"ChlNumber"=dword:0*1\b', f'"ChlNumber"=dword:{number:08x}', here))
        found = entry.search(sample)
        if found:
            made.append(found[0].replace("5&2B7D41E6&0&01", f"5&2B7D41E6&0&{number:03}"))
    return board + '"BoardNrController"=dword:00000101' + rest + "\n" + "\n".join(made)


ROOT = pathlib.Path(__file__).resolve().parents[1]
HOST = str(pathlib.Path(sys.argv.pop(1)).resolve())

if __name__ == "__main__":
    unittest.main()
