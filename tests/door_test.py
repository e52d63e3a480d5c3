#!/usr/bin/env python3
"""./kvr itself, in a copy of the tree where small scripts stand for cmake, the package manager and the host."""
import os
import pathlib
import pty
import resource
import shutil
import signal
import subprocess
import tempfile
import time
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[1]

HOST = """#!/bin/sh
echo "$# given:" "$@"
exit $#
"""
# Leaves the host half-written for a while, as a linker does, and tells if another one builds at the same time.
CMAKE = """#!/bin/sh
echo noise of the build
echo "$@" >>"$STUBS/calls"
[ "$1" = --build ] || { mkdir -p build/release; exit 0; }
mkdir "$STUBS/busy" || exit 1
program=$2/kvrhost
rm -f "$program"
echo half >"$program"
chmod +x "$program"
sleep 0.3
[ ! -e "$STUBS/broken" ] || { echo error: broken; rmdir "$STUBS/busy"; exit 1; }
cp "$STUBS/kvrhost" "$program"
rmdir "$STUBS/busy"
"""
DPKG_QUERY = """#!/bin/sh
shift 2
for package; do [ "$package" = "$MISSING" ] || printf '%s=installed ' "$package"; done
"""
APT_GET = """#!/bin/sh
echo "$@" >>"$STUBS/calls"
[ "$1" = update ] || cat <<SAID
0 upgraded, 3 newly installed, 0 to remove and 7 not upgraded.
Need to get 12.5 MB of archives.
After this operation, 40.1 MB of additional disk space will be used.
SAID
"""


class Door(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.folder.chmod(0o755)
        self.tree, self.stubs = self.folder / "a tree", self.folder / "stubs"
        self.stubs.mkdir()
        for name, text in {"kvrhost": HOST, "cmake": CMAKE, "dpkg-query": DPKG_QUERY, "apt-get": APT_GET,
                           "id": "#!/bin/sh\necho ${USER_ID:-1000}\n"}.items():
            (self.stubs / name).write_text(text)
            (self.stubs / name).chmod(0o755)
        for part in ("src", "simulated", "host", "cmake"):
            shutil.copytree(ROOT / part, self.tree / part)
        for part in ("kvr", "CMakeLists.txt", "CMakePresets.json"):
            shutil.copy2(ROOT / part, self.tree)
        self.environment = {**os.environ, "STUBS": str(self.stubs), "MISSING": "none",
                            "PATH": f"{self.stubs}:/usr/sbin:/usr/bin:/sbin:/bin"}

    def start(self, *words, kvr=None, **options):
        return subprocess.Popen([kvr or self.tree / "kvr", *words], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, text=True, **{"env": self.environment, "cwd": self.folder, **options})

    def call(self, *words, **options):
        call = self.start(*words, **options)
        said, complained = call.communicate(timeout=60)
        return call.returncode, said, complained

    def calls(self):
        log = self.stubs / "calls"
        lines = log.read_text().splitlines() if log.exists() else []
        log.unlink(missing_ok=True)
        return lines

    def test_parallel_calls_in_a_stale_tree_build_once_and_all_answer(self):
        for _ in range(2):
            calls = [self.start("diagnose", f"{number}.reg") for number in range(8)]
            for number, call in enumerate(calls):
                said, complained = call.communicate(timeout=60)
                self.assertEqual((call.returncode, said), (2, f"2 given: diagnose {number}.reg\n"), complained)
            self.assertEqual(len([line for line in self.calls() if line.startswith("--build")]), 1)
            os.utime(self.tree / "src")

    def test_calls_go_on_while_another_builds_and_no_change_is_missed(self):
        self.call("run")
        os.utime(self.tree / "host/main.cpp")
        builds = self.start("run")
        while not (self.stubs / "busy").exists():
            time.sleep(0.01)
        os.utime(self.tree / "host/text.cpp")
        waits = [self.start("run", "x") for _ in range(3)]
        for call in (builds, *waits):
            self.assertRegex(call.communicate(timeout=60)[0], "^[01] given:")
        self.assertEqual(len([line for line in self.calls() if line.startswith("--build")]), 3)

    def test_builds_only_what_is_out_of_date(self):
        self.call("run")
        self.calls()
        for change in (lambda: os.utime(self.tree / "host/machines/sample.reg"),
                       lambda: os.utime(self.tree / "cmake/version.h.in"),
                       lambda: os.utime(self.tree / "CMakePresets.json"),
                       lambda: (self.tree / "src/reporting/new.cpp").touch(),
                       lambda: (self.tree / "src/reporting/new.cpp").unlink(),
                       lambda: (self.tree / "build/kvrhost").unlink()):
            change()
            self.assertEqual(self.call("run"), (0, "0 given:\n", "noise of the build\n"))
            self.assertEqual(len(self.calls()), 2)
            self.assertEqual(self.call("run"), (0, "0 given:\n", ""))
            self.assertEqual(self.calls(), [])

    def test_nothing_to_build_costs_little(self):
        def least(program):
            """The seconds of a processor that a call takes, which other tests beside this one change little."""
            spent = []
            for _ in range(20):
                before = resource.getrusage(resource.RUSAGE_CHILDREN)
                subprocess.run([program], env=self.environment, stdout=subprocess.DEVNULL, check=True)
                after = resource.getrusage(resource.RUSAGE_CHILDREN)
                spent.append(after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime)
            return min(spent)
        self.call("run")
        self.assertLess(least(self.tree / "kvr") - least(self.tree / "build/kvrhost"), 0.03)

    def test_build_that_ended_early_is_begun_again(self):
        self.call("run")
        for end in ("broken", signal.SIGINT, signal.SIGTERM, signal.SIGKILL):
            os.utime(self.tree / "src")
            if end == "broken":
                (self.stubs / "broken").touch()
                status, said, complained = self.call("diagnose")
                self.assertEqual((status, said), (2, ""))
                self.assertRegex(complained, "error: broken\nkvr: '.*/build/release' could not be built\n$")
                (self.stubs / "broken").unlink()
            else:
                call = self.start("run", start_new_session=True)
                while not (self.stubs / "busy").exists():
                    time.sleep(0.01)
                os.killpg(call.pid, end)
                self.assertEqual(call.communicate(timeout=60)[0], "")
                (self.stubs / "busy").rmdir()
            self.assertEqual(self.call("run", "x")[:2], (1, "1 given: x\n"), end)

    def test_words_and_what_is_passed_on(self):
        def table(*rows):
            for words, status, said, complained in rows:
                with self.subTest(words=words):
                    result = self.call(*words)
                    self.assertEqual(result[0], status, result)
                    self.assertRegex(result[1], f"^(?:{said})$")
                    self.assertRegex(result[2], f"^(?:{complained})$")
        self.call("run")
        self.calls()
        table((["run", "--line", "m m.reg", "-c", "--help", ""], 5, "5 given: --line m m.reg -c --help \n", ""),
              (["diagnose", "--json", "*"], 3, "3 given: diagnose --json \\*\n", ""),
              (["diff", "only one"], 2, "2 given: diff only one\n", ""),
              (["report", "a.reg", "b.html"], 3, "3 given: report a.reg b.html\n", ""),
              (["run", "--help"], 1, ".*kvrhost.*\n1 given: --help\n", ""),
              (["--version"], 0, r"kvrpagex64 \d+\.\d+\.\d+\n", ""),
              (["help", "diff"], 0, r"\./kvr diff .*(\n    .*)+\n", ""),
              (["test", "--help"], 0, r"\./kvr test .*(\n    .*)+\n", ""),
              (["dignose"], 2, "", "kvr: .* 'dignose'; do you mean 'diagnose'\\?\n"),
              (["help", "picture"], 2, "", "kvr: .* 'picture'; do you mean 'pictures'\\?\n"),
              (["\x1b[31m\n"], 2, "", r"kvr: .* \$'\\E\[31m\\n'; './kvr help' lists .*\n"),
              (["a tree/kvr"], 2, "", "kvr: .*'./kvr run .*\n"),
              (["coverage", "all"], 2, "", "kvr: unknown argument 'all'; './kvr help coverage' .*\n"),
              (["sign", "one"], 2, "", "kvr: .*'./kvr help sign' .*\n"))
        self.assertEqual(self.calls(), [])

    def test_is_called_from_anywhere(self):
        link = self.folder / "link"
        link.symlink_to(self.tree / "kvr")
        self.assertEqual(self.call("diff", "a", "../b", kvr=link, cwd="/")[:2], (3, "3 given: diff a ../b\n"))

    def test_missing_packages_are_named_or_installed(self):
        self.environment["MISSING"] = "cmake"
        self.assertEqual(self.call("diagnose"),
                         (2, "", "kvr: these Debian packages are missing; as root: apt-get install cmake\n"))
        self.environment["USER_ID"] = "0"
        status, said, complained = self.call("run", start_new_session=True)
        self.assertEqual((status, said), (0, "0 given:\n"))
        self.assertIn("kvr: installing cmake, with what they need 3 packages, 12.5 MB to fetch, 40.1 MB of disk\n", complained)
        self.assertIn("install -y --no-install-recommends cmake", self.calls())

    def test_who_sits_at_a_terminal_is_asked_before_anything_is_installed(self):
        self.environment |= {"MISSING": "cmake", "USER_ID": "0"}
        for answer, installs in (("n", False), ("nonsense", False), ("", True), ("Yes", True)):
            shutil.rmtree(self.tree / "build", ignore_errors=True)
            child, terminal = pty.fork()
            if child == 0:
                os.execve(self.tree / "kvr", ["kvr", "run"], self.environment)
            said = b""
            while b"[Y/n]" not in said:
                said += os.read(terminal, 1000)
            self.assertIn(b"12.5 MB to fetch", said)
            self.assertNotIn("install -y --no-install-recommends cmake", self.calls())
            os.write(terminal, answer.encode() + b"\n")
            try:
                while os.read(terminal, 1000):
                    pass
            except OSError: # the terminal's end
                pass
            self.assertEqual(os.waitstatus_to_exitcode(os.waitpid(child, 0)[1]), 0 if installs else 2)
            self.assertEqual("install -y --no-install-recommends cmake" in self.calls(), installs)
            os.close(terminal)

    @unittest.skipIf(os.getuid() != 0, "another user is needed")
    def test_tree_of_another_user(self):
        nobody = {"user": "nobody", "group": "nogroup"}
        self.assertRegex(self.call("run", **nobody)[2], "^kvr: nothing can be built here, because you cannot write to '.*\n$")
        self.call("run")
        self.assertEqual(self.call("run", "x", **nobody), (1, "1 given: x\n", ""))
        os.utime(self.tree / "src")
        self.assertRegex(self.call("run", **nobody)[2], "^kvr: something has to be built, and root built here before: .*\n$")


if __name__ == "__main__":
    unittest.main()
