#!/usr/bin/env python3
"""`./kvr sign` with a certificate made for this test: what it packs is signed, whole, and named after the version."""
import hashlib
import pathlib
import re
import subprocess
import tempfile
import unittest
import uuid
import zipfile

ROOT = pathlib.Path(__file__).resolve().parents[2]

PROGRAMS = {"kvrpagex64.dll", "kvrhost.exe", "kvrbench.exe"}
INFS = {f"{form}/{inf}.inf" for form in ("desktop", "isolated") for inf in ("kvrboard", "kvrports")}
TEXTS = INFS | {"packaging.md", "device_store.md", "service.md", "formats.md", "CHANGELOG.md", "sample.reg"}


def identity(symbols):
    """The key by which a debugger matches these symbols to their library, as the library holds it."""
    said = subprocess.run(["llvm-pdbutil-14", "dump", "--summary", symbols], capture_output=True, text=True, check=True)
    return uuid.UUID(re.search(r"GUID: \{(.*)\}", said.stdout)[1]).bytes_le


class Sign(unittest.TestCase):
    def test_package_is_signed_and_its_sums_are_true(self):
        with tempfile.TemporaryDirectory() as folder:
            place = pathlib.Path(folder)
            subprocess.run(["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj", "/CN=Test",
                            "-addext", "extendedKeyUsage=codeSigning", "-keyout", "key.pem", "-out", "certificate.pem"],
                           cwd=place, check=True, capture_output=True)
            subprocess.run([ROOT / "kvr", "sign", "certificate.pem", "key.pem"], cwd=place, check=True,
                           capture_output=True)
            version = re.search(r"project\(\w+ VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text())[1]
            packed = {}
            for name in (f"kvrpagex64-{version}", f"kvrpagex64-{version}-check", f"kvrpagex64-{version}-symbols"):
                with zipfile.ZipFile(ROOT / f"build/windows/{name}.zip") as archive:
                    archive.extractall(place / name)
                    packed[name] = {file for file in archive.namelist() if not file.endswith("/")}
            package, check, symbols = packed
            self.assertEqual(len(list((ROOT / "build/windows").glob("*.zip"))), 3)
            self.assertEqual(packed[package], PROGRAMS | TEXTS | {"SHA256SUMS"})
            self.assertEqual(packed[check], {"kvrcheck.exe", "kvrpagex64.dll", "check.cmd", "check.wsb", "README.txt"})
            self.assertEqual(packed[symbols], {"kvrpagex64.pdb", "diagnostic/kvrpagex64.dll", "diagnostic/kvrpagex64.pdb"})
            sums = dict(reversed(line.split()) for line in (place / package / "SHA256SUMS").read_text().splitlines())
            self.assertEqual(sums, {name: hashlib.sha256((place / package / name).read_bytes()).hexdigest()
                                    for name in PROGRAMS | TEXTS})
            for library, its_symbols in ((place / package, place / symbols), (place / symbols / "diagnostic",) * 2):
                self.assertIn(identity(its_symbols / "kvrpagex64.pdb"), (library / "kvrpagex64.dll").read_bytes())
            for file in {f"{package}/{name}" for name in PROGRAMS} | {f"{check}/kvrcheck.exe", f"{check}/kvrpagex64.dll"}:
                said = subprocess.run(["osslsigncode", "verify", "-CAfile", "certificate.pem", file],
                                      cwd=place, capture_output=True, text=True)
                self.assertEqual(said.returncode, 0, said.stdout)
                self.assertIn("Signature verification: ok", said.stdout)


if __name__ == "__main__":
    unittest.main()
