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
import time
import unittest

from terminal import Terminal

LEFT = b"\x1b[?1049l"  # the terminal's own screen is back


def open_board(terminal):
    terminal.wait("Devices")
    terminal.see("enter")
    terminal.wait("Port Control", "COM7 (port1)")


def listed(terminal):
    """The visible ports of the board's list."""
    return re.findall(r"(COM\d+) \(port\d+\)", terminal.text())


class FullScreen(unittest.TestCase):
    def test_sort_by_keyboard(self):
        for columns, rows in ((80, 24), (200, 60)):
            with self.subTest(columns), Terminal(HOST, columns=columns, rows=rows) as terminal:
                open_board(terminal)
                self.assertIn("UART Feature", terminal.see("alt-v"))
                terminal.see("space", "tab", "tab", "tab", "enter")  # Cancel; the sort is done
                terminal.wait("not saved", "Port Control", gone=["UART Feature"])
                self.assertEqual(listed(terminal)[:4], ["COM3", "COM4", "COM5", "COM6"])
                self.assertIn("> COM12 (port8)", terminal.see("home", "com12"))
                self.assertRegex(terminal.see("esc"), "Journal, Space on \"Sort UART\": \\d+ changes")
                self.assertIn("are not saved. ", terminal.see("f10"))
                terminal.press("d")
                self.assertEqual(terminal.wait_end(), (0, None))
                self.assertIn(LEFT, terminal.raw)

    def test_sort_by_mouse(self):
        with Terminal(HOST, columns=120, rows=40) as terminal:
            terminal.wait("Devices")
            self.assertIn("COM7 (port1)", terminal.click("Multi-function PCI"))
            terminal.mouse(65, *terminal.find("COM7 (port1)"))  # the wheel turns the list
            terminal.wait("COM11 (port7)", gone=["COM7 (port1)"])
            _, row = terminal.find("Transmit Buffer")
            knob, end = terminal.rows()[row].index("█"), terminal.rows()[row].index("┤")
            terminal.mouse(0, knob, row)
            for at in (knob + 2, knob + 4, end + 5):
                terminal.mouse(32, at, row)
            terminal.mouse(0, end, row, up=True)
            self.assertIn("move 128 of 1..128", terminal.see())
            self.assertIn("close the list", terminal.click(" ▾]", last=True))
            self.assertIn("F4 list", terminal.see("esc"))
            self.assertIn("UART Feature", terminal.click("Advanced..."))
            terminal.click("Sort UART")
            terminal.click("Cancel")
            terminal.wait("COM3 (port1)", gone=["UART Feature"])

    def test_rename_with_the_question(self):
        with Terminal(HOST) as terminal:
            terminal.wait("Devices")
            terminal.see(*["down"] * 4, "enter", "alt-a")
            terminal.wait("Advanced Settings for COM7")
            self.assertIn("This COM name is being", terminal.see("alt-p", "home", "com5", "enter"))
            for columns, rows in ((120, 40), (80, 24), (None, None)):
                if columns:
                    text = terminal.resize(columns, rows)
                else:  # a change and its reversal, which look like none
                    terminal.child.kill(signal.SIGWINCH)
                    terminal.repaints(1)
                    text = terminal.see()
                self.assertTrue("This COM name is being" in text and "n No" in text, text)
            text = terminal.see("alt-n")
            self.assertTrue("Advanced Settings for COM7" in text and "This COM name" not in text, text)
            self.assertIn("nothing has been changed", text)
            terminal.see("alt-p", "home", "com50", "enter")
            terminal.wait("COM50", "not saved", gone=["Advanced Settings for"])

    def test_change_of_size(self):
        """The page stays as it was, and follows each size."""
        with Terminal(HOST) as terminal:
            open_board(terminal)
            terminal.see("down", "down", "tab")
            for columns, rows, ports in ((200, 60, 7), (39, 24, 0), (80, 9, 0), (80, 24, 4)):
                text = terminal.resize(columns, rows)
                if ports == 0:
                    self.assertEqual(text.strip(), "needs 40x10")
                    continue
                self.assertTrue(all(part in text for part in ("> COM8 (port3)", "<    OK    >", "F10 end")), text)
                self.assertGreaterEqual(len(listed(terminal)), ports)
                self.assertLess(terminal.find("╝")[0], columns)
            self.assertIn("[ ]*Enable large FIFO", terminal.see("space"))
            terminal.resize(30, 6)
            terminal.see("space", "enter")  # nothing is done unseen
            self.assertIn("[ ]*Enable large FIFO", terminal.resize(80, 24))
        with Terminal(HOST, columns=30, rows=6) as terminal:
            terminal.wait("needs 40x10")
            terminal.see("enter", "esc", "f6", "open 1\r", "esc")
            self.assertIn("Devices", terminal.resize(80, 24))

    def test_languages_and_terminals(self):
        for language, heading in ((1041, "ポート制御"), (1025, "التحكم في المنفذ"), (1037, "בקרת יציאה")):
            with self.subTest(language), Terminal(HOST, "--language", str(language), NO_COLOR="1") as terminal:
                terminal.wait("F1 help")
                self.assertIn(heading, terminal.see("enter"))
                self.assertIsNone(re.search(rb"\x1b\[[0-9;]*3[0-7][;m]", terminal.raw), "a colour")
        with Terminal(HOST, TERM="dumb") as terminal:
            terminal.wait("can't be filled", "> ")
            terminal.press("quit\r")
            self.assertEqual(terminal.wait_end()[0], 0)
        with Terminal(HOST, "--line") as terminal:
            terminal.wait("help", "> ")
            self.assertNotIn(b"\x1b[?1049h", terminal.raw)

    def test_journal_and_trace(self):
        """Action by action; the pane goes on with what was looked at last."""
        with Terminal(HOST, columns=120) as terminal:
            terminal.wait("Communications Port (COM1)  (no page: it is not a channel of a board)")
            terminal.see("f6", "free 10\r", "f6", "free 9\r")
            self.assertRegex(terminal.see("f5"), r"free 10: +\n  \S.* +\nfree 9: +\n  \S")
            terminal.see("esc", "enter", "f9")
            self.assertIn("<---- _OnInitDialog", terminal.see("end"))
            terminal.see("esc", "alt-v", "space")
            self.assertRegex(terminal.see("f9", "end"), r"(?s)\* SendNotifyMessageW.*<---- _SortCOMClicked")
            terminal.see("esc", "esc", "esc")
            terminal.wait("Trace of the last action", "<----", gone=["Journal,"])

    def test_letters_and_search(self):
        with Terminal(HOST) as terminal:
            terminal.wait("Devices")
            for typed, found in (("com12", "> .9 COM12"), ("com2", "> 13 COM20"), ("/no page\r", ">  3 COM1"), ("/nowhere\r", "not found: nowhere")):
                self.assertRegex(terminal.see(typed.replace("\r", ""), *["enter"] * typed.endswith("\r")), found)
                time.sleep(1.1 * (typed == "com12"))  # letters of one word come within a second
            terminal.see("f7", "/", "> free\r")
            first = terminal.screen.cursor.y
            terminal.see("n")
            self.assertGreater(terminal.screen.cursor.y, first)

    def test_findings_are_mended(self):
        with Terminal(HOST) as terminal:
            terminal.wait("Devices")
            self.assertIn("Enter free COM9", terminal.see("f7", "down"))
            text = terminal.see("enter")
            self.assertNotIn("…", text)
            self.assertTrue("COM9: freed" in text and "* not saved" in text and "COM9 is marked" not in text, text)
            self.assertIn("Port Settings", terminal.see("up", "enter"))  # of another that needs a look

    def test_numbers_and_board(self):
        with Terminal(HOST) as terminal:
            terminal.wait("Devices")
            for pressed, title in (((), "COM1: live"), (("down",), "COM33: claimed"), (("up", *["right"] * 8), "COM9: claimed"),
                                   (("enter",), "COM9: free"), (("end",), "COM256: free"), (("/", "com20\r"), "COM20: live")):
                text = terminal.see(*pressed) if pressed else terminal.see("^n")
                self.assertIn(title, text.splitlines()[0])
            self.assertIn("[COM20", terminal.see("enter", "alt-a"))
            terminal.see("esc", "esc")
            text = terminal.see("home", "^b")
            self.assertRegex(text, r"channel +class +number.*\n> +1 +UART +COM7 ")
            self.assertIn("Settings for COM5", terminal.see("down", "enter", "alt-a"))

    def test_nothing_to_show(self):
        with tempfile.TemporaryDirectory() as folder:
            pathlib.Path(folder, "none.reg").write_text("Windows Registry Editor Version 5.00\n")
            with Terminal(HOST, "none.reg", cwd=folder) as terminal:
                terminal.wait("none.reg", "This file has no boards and no ports.")
                self.assertNotIn("Enter", terminal.see("enter"))

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
                self.assertGreater(terminal.raw.count(LEFT), before)
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
            entered = terminal.raw.count(b"\x1b[?1049h")
            terminal.press("fg\r")
            # Until then the shell would take the keys.
            terminal.until(lambda: terminal.raw.count(b"\x1b[?1049h") > entered, "the full screen again")
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
        """On a board with 256 ports not much more than on one with 8, however fast the machine is."""
        with tempfile.TemporaryDirectory() as folder:
            machine = pathlib.Path(folder, "large.reg")
            machine.write_text(large_machine())
            few, many = picture_costs(), picture_costs(str(machine))
            print(f"a picture costs {few * 1000:.1f} ms of the processor, and {many * 1000:.1f} with 256 ports")
            self.assertLess(many, 3 * few)


def picture_costs(*machine):
    with Terminal(HOST, *machine) as terminal:
        terminal.wait("Devices")
        terminal.see("enter", "end")
        terminal.wait("> COM256 (port256)" if machine else "> CAN (port13)")
        terminal.see("home")
        before = processor_time(terminal.child.pid)
        keys = ("down", "down", "down", "tab", "backtab") * 8
        for key in keys:
            terminal.see(key)
        return (processor_time(terminal.child.pid) - before) / len(keys) / 3  # each key is followed by two repaints


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
