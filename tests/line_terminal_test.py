#!/usr/bin/env python3
"""The host's line commands at a terminal, as a person sees them."""
import os
import subprocess
import sys
import tempfile

import pexpect

HOST = sys.argv[1]


def main():
    with tempfile.TemporaryDirectory() as folder:
        # A locale that knows only ASCII letters, and the caller's own folder.
        host = pexpect.spawn(HOST, ["--line"], cwd=folder, encoding="utf-8", timeout=20, dimensions=(50, 200),
                             env={**os.environ, "LC_ALL": "C", "TERM": "xterm"})
        host.expect_exact("The sample machine")
        host.expect_exact("> ")
        host.send("export gone")
        host.expect_exact("gone")
        host.sendintr()
        host.expect_exact("^C")
        host.sendline("export Übung.reg")
        host.sendline("uncheck 1")
        host.expect_exact("no window is open")
        assert os.listdir(folder) == ["Übung.reg"], os.listdir(folder)
        host.sendline("export Übung.reg")
        host.expect_exact("exists; export --over")
        for line in ("open 1", "uncheck 1039", "click 1041", "sheet ok", "quit"):
            host.sendline(line)
        host.expect_exact("are not saved")
        host.sendline("export --over Übung.reg")
        host.sendline("q")
        host.expect(pexpect.EOF)
        host.close()
        assert host.exitstatus == 1, host.exitstatus
        # If no person can be asked, the error output says so. The file has what was exported: the box
        # unchecked.
        script = "open 1\ncheck 1039\nclick 1041\nsheet ok\n"
        done = subprocess.run([HOST, "Übung.reg"], cwd=folder, input=script, capture_output=True, encoding="utf-8")
        assert done.returncode == 0 and "was not exported" in done.stderr, done
    return 0


if __name__ == "__main__":
    sys.exit(main())
