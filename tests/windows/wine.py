"""Wine as the Windows of the tests: each test has a prefix and a screen of its own. The prefix is a copy of one that is
kept as it was installed."""
import atexit
import fcntl
import os
import pathlib
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ.get("KVR_WINDOWS_BUILD", ROOT / "build" / "windows"))
HOST_BUILD = ROOT / "build" / "windows" # whose programs operate any build's library
TEMPLATES = ROOT / "build" / "wine"
PROGRAMS = ["kvrhost.exe", "kvrhost_test.exe", "kvrfit.exe", "kvrpictures.exe", "kvrlifetime.exe",
            "kvrkeys.exe", "kvrinstall.exe", "kvrcrash.exe", "kvrbench.exe"]
CLASSES = r"HKEY_LOCAL_MACHINE\SYSTEM\CurrentControlSet\Control\Class"
PORTS = "{4d36e978-e325-11ce-bfc1-08002be10318}"

# "MS Shell Dlg" is Microsoft Sans Serif on Windows, which has every script. Here each script has its own
# font; these are the nearest of the small ones.
DEFAULT_FONT = "Liberation Sans"
FONTS = {"DejaVu Sans": [1025, 1037], "Loma": [1054], "WenQuanYi Micro Hei": [1028, 1041, 1042, 2052]}

NO_DESKTOP = 75 # what kvrhost_test.exe ends with where it should be started again

SUBSTITUTES = r"HKLM\Software\Microsoft\Windows NT\CurrentVersion\FontSubstitutes"
DESKTOP = r"HKCU\Control Panel\Desktop"
SETTINGS = [
    # No window manager: the windows draw their own frames, and nothing has to be awaited when they close.
    ["add", r"HKCU\Software\Wine\X11 Driver", "/v", "Managed", "/d", "N"],
    # The serial ports of the real machine do not belong to the simulated one.
    ["add", r"HKLM\System\CurrentControlSet\Services\MountMgr", "/v", "Start", "/t", "REG_DWORD", "/d", "4"],
    ["delete", r"HKLM\Software\Microsoft\Windows NT\CurrentVersion\Ports"],
]


def built(file, preset):
    """A program that a test takes from another build than its own."""
    if not file.exists():
        sys.exit(f"{file} is missing. It comes with: cmake --preset {preset} && "
                 f"cmake --build build/{preset} --target {file.stem}")
    return file


# A test that is stopped still clears up.
signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))


def font_settings(font):
    return [["add", SUBSTITUTES, "/v", name, "/d", font] for name in ("MS Shell Dlg", "MS Shell Dlg 2", "Tahoma")]


def windows_path(file):
    return "Z:" + str(pathlib.Path(file).resolve()).replace("/", "\\")


class Checks:
    """Tells what does not hold, and goes on."""

    def __init__(self):
        self.failed = []

    def __call__(self, what, holds, told=""):
        if not holds:
            self.failed.append(what)
            print(f"not so: {what}", told)


class Screen:
    """An invisible display, one for all prefixes."""
    display = None

    @classmethod
    def name(cls):
        if cls.display is None:
            read, write = os.pipe()
            cls.server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x1024x24"],
                                          pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            os.close(write)
            with os.fdopen(read) as answer:
                cls.display = ":" + answer.readline().strip()
            atexit.register(cls.close)
        return cls.display

    @classmethod
    def close(cls):
        cls.server.terminate()
        cls.server.wait()


class Processor:
    """One processor for all programs of a prefix, shared with no other prefix if possible. Windows programs and their
    server take turns thousands of times for a sheet: on one processor a sheet opens in half the time."""

    def __init__(self):
        numbers = list(os.sched_getaffinity(0))
        self.number = random.choice(numbers)
        for number in numbers:
            self.lock = open(pathlib.Path(tempfile.gettempdir()) / f"kvr-processor-{number}", "w")
            try:
                fcntl.flock(self.lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
                self.number = number
                break
            except BlockingIOError:
                self.lock.close()

    def command(self, *words):
        return ["taskset", "-c", str(self.number), *words]

    def close(self):
        self.lock.close()


class Prefix:
    """A fresh Windows, deleted at the end of the with block."""

    def __init__(self, place=None, display=None):
        self.place = pathlib.Path(place) if place else None
        self.own = place is None
        self.display = display

    def __enter__(self):
        if self.own:
            self.place = pathlib.Path(tempfile.mkdtemp(prefix="kvr-windows-"))
            self._copy_of(template(), self.place)
        self.library = self.place / "drive_c" / "windows" / "system32" / "kvrpagex64.dll" # where an INF puts it
        self.processor = Processor()
        # What is in the registry's volatile part lives as long as the server does: longer than between two
        # programs, but not for ever if this process is killed.
        subprocess.run(self.processor.command("wineserver", "-p60"), env=self.environment(), check=True)
        self.programs = self.place / "drive_c" / "kvr"
        self.programs.mkdir(parents=True, exist_ok=True)
        for program in PROGRAMS if self.own else []:
            shutil.copy(HOST_BUILD / program, self.programs)
        if self.own:
            shutil.copy(BUILD / self.library.name, self.library)
        return self

    def __exit__(self, *_):
        self.processor.close()
        # Windows takes most of a second to shut down, without work for a processor.
        closing = threading.Thread(target=self._close)
        closing.start()
        if not self.own: # it is to be copied
            closing.join()

    def _close(self):
        subprocess.run(["wineserver", "-k"], env=self.environment(), stderr=subprocess.DEVNULL)
        subprocess.run(["wineserver", "-w"], env=self.environment(), stderr=subprocess.DEVNULL, timeout=30)
        if self.own:
            shutil.rmtree(self.place, ignore_errors=True)

    @staticmethod
    def _copy_of(origin, place):
        """Has its own registry, drive letters and Windows folder; whatever nobody writes to is only linked."""
        for file in origin.glob("*.reg"):
            shutil.copy(file, place)
        shutil.copy(origin / ".update-timestamp", place)
        (place / "dosdevices").mkdir()
        (place / "dosdevices" / "c:").symlink_to("../drive_c")
        (place / "dosdevices" / "z:").symlink_to("/")
        for folder, own in (("drive_c", {"windows", "kvr", "ProgramData"}), ("drive_c/ProgramData", set()),
                            ("drive_c/windows", {"win.ini", "temp", "system32"}),
                            ("drive_c/windows/system32", {"msports.dll"})):
            (place / folder).mkdir()
            for entry in (origin / folder).iterdir():
                if entry.name not in own:
                    (place / folder / entry.name).symlink_to(entry)
        # The place of the system's own.
        shutil.copy(HOST_BUILD / "standins" / "msports.dll", place / "drive_c" / "windows" / "system32")

    def environment(self):
        return {**os.environ, "WINEPREFIX": str(self.place), "WINEDEBUG": "-all", "LC_ALL": "C.UTF-8",
                "WINEDLLOVERRIDES": "msports,cfgmgr32=n,b;mscoree,mshtml=d", "DISPLAY": self.display or Screen.name()}

    def run(self, *command, input=b"", timeout=300):
        """Runs a program of the system or of C:\\kvr. Returns the bytes that it writes, and its exit code."""
        program = command[0]
        if (self.programs / program).exists():
            program = "C:\\kvr\\" + program
        for _ in range(10):
            done = subprocess.run(self.processor.command("wine", program, *map(str, command[1:])), env=self.environment(),
                                  input=input, stdout=subprocess.PIPE, timeout=timeout)
            if done.returncode != NO_DESKTOP:
                break
            time.sleep(1)
        return done.stdout, done.returncode

    def reg(self, *arguments):
        _, code = self.run("reg", *arguments, "/f")
        if code:
            raise RuntimeError("reg " + " ".join(arguments))

    def use_font(self, font):
        for setting in font_settings(font):
            self.reg(*setting)

    def use_scale(self, dots_per_inch):
        self.reg("add", DESKTOP, "/v", "LogPixels", "/t", "REG_DWORD", "/d", str(dots_per_inch))

    def import_file(self, file):
        _, code = self.run("regedit", "/S", windows_path(file))
        if code:
            raise RuntimeError(f"regedit can't import {file}")

    def import_machine(self, file):
        """The machine of an export, with what the INF of its drivers has set for each device, in one file: a second
        import in a row fails at times."""
        wide = pathlib.Path(file).read_bytes().startswith(b"\xff\xfe")
        export = pathlib.Path(file).read_text("utf-16" if wide else "utf-8-sig")
        machine = self.place / "machine.reg"
        machine.write_text(export + "\n" + providers_of(export), "utf-16")
        self.import_file(machine)


def providers_of(export):
    """Makes the driver's key of each board and port of an export, with the provider of its page in it."""
    devices = {}
    for path, values in re.findall(r"^\[(HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Enum(?:\\[^\]\\]+){3})"
                                   r"(?:\\Device Parameters)?\]\n((?:(?:[^\[\n].*)?\n)*)", export, re.M):
        devices[path] = devices.get(path, "") + values
    lines = []
    for number, (path, values) in enumerate(devices.items()):
        port = '"Class"="Ports"' in values or '"PortName"' in values
        if port or '"BoardNrController"' in values:
            named = re.search(r'"ClassGUID"="(.*)"', values)
            driver = rf"{named[1] if named else PORTS}\{number:04}"
            function = "KvrUartPropPageProvider" if port else "KvrBoardPropPageProvider"
            lines += [f"[{path}]", '"Driver"="{}"'.format(driver.replace("\\", "\\\\")), rf"[{CLASSES}\{driver}]",
                      f'"EnumPropPages32"="kvrpagex64.dll,{function}"']
    return "\n".join(lines) + "\n"


def template():
    """The prefix that all others are copied from, installed once for each version of Wine."""
    TEMPLATES.mkdir(parents=True, exist_ok=True)
    with open(TEMPLATES / "lock", "w") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        return made_template()


def made_template():
    version = subprocess.run(["wine", "--version"], capture_output=True, text=True).stdout.strip()
    place = TEMPLATES / re.sub(r"[^\w.]+", "-", version).strip("-")
    if place.exists():
        return place
    making = place.with_name("making")
    shutil.rmtree(making, ignore_errors=True)
    making.mkdir(parents=True)
    with Prefix(making) as prefix:
        subprocess.run(["wineboot", "-i"], env=prefix.environment(), check=True, stdin=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL)
        for setting in SETTINGS + font_settings(DEFAULT_FONT):
            prefix.reg(*setting)
        # The symbols on the title bars' buttons are letters of this font.
        for font in pathlib.Path("/usr/share/wine/fonts").glob("marlett.ttf"):
            shutil.copy(font, making / "drive_c" / "windows" / "Fonts")
    shutil.rmtree(making / "drive_c" / "kvr")
    # The system makes this key anew at each start, and nothing can be imported into it until a key there is
    # kept.
    with open(making / "system.reg", "a") as registry:
        registry.write("\n[Hardware\\\\Devicemap\\\\Serialcomm]\n")
    making.rename(place)
    return place
