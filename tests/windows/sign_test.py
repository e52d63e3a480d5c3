#!/usr/bin/env python3
"""`./kvr sign` with a certificate made for this test: what it packs is signed, whole, and named after the version."""
import hashlib
import pathlib
import subprocess
import tempfile
import unittest
import zipfile

ROOT = pathlib.Path(__file__).resolve().parents[2]


class Sign(unittest.TestCase):
    def test_package_is_signed_and_its_sums_are_true(self):
        with tempfile.TemporaryDirectory() as folder:
            place = pathlib.Path(folder)
            subprocess.run(["openssl", "req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj", "/CN=Test",
                            "-addext", "extendedKeyUsage=codeSigning", "-keyout", "key.pem", "-out", "certificate.pem"],
                           cwd=place, check=True, capture_output=True)
            subprocess.run([ROOT / "kvr", "sign", "certificate.pem", "key.pem"], cwd=place, check=True,
                           capture_output=True)
            package, = (archive for archive in (ROOT / "build/windows").glob("kvrpagex64-*.zip")
                        if not archive.stem.endswith("-symbols"))
            with zipfile.ZipFile(package) as archive:
                archive.extractall(place / "package")
            for line in (place / "package/SHA256SUMS").read_text().splitlines():
                digest, name = line.split()
                self.assertEqual(hashlib.sha256((place / "package" / name).read_bytes()).hexdigest(), digest, name)
            for name in ("kvrpagex64.dll", "kvrhost.exe"):
                said = subprocess.run(["osslsigncode", "verify", "-CAfile", "certificate.pem", f"package/{name}"],
                                      cwd=place, capture_output=True, text=True)
                self.assertEqual(said.returncode, 0, said.stdout)
                self.assertIn("Signature verification: ok", said.stdout)


if __name__ == "__main__":
    unittest.main()
