"""The package's own build backend: wheels that pip accepts, with the
library inside when one is given."""

import base64
import csv
import hashlib
import io
import os
import subprocess
import sys
import tarfile
import tempfile
import unittest
import zipfile

import fedeck
import fedeck_build

from .support import DeckTestCase


def wheel_members(path):
    with zipfile.ZipFile(path) as wheel:
        return {name: wheel.read(name) for name in wheel.namelist()}


class Wheel(DeckTestCase):
    def build(self, **config):
        name = fedeck_build.build_wheel(self.directory, config or None)
        return name, wheel_members(os.path.join(self.directory, name))

    def test_record_lists_every_member_with_its_hash_and_size(self):
        _, members = self.build(library=fedeck.library_path())
        record_name = "fedeck-%s.dist-info/RECORD" % fedeck.__version__
        rows = list(csv.reader(io.StringIO(members[record_name].decode())))
        self.assertEqual({row[0] for row in rows}, set(members))
        for name, digest, size in rows:
            if name == record_name:
                self.assertEqual((digest, size), ("", ""))
                continue
            expected = base64.urlsafe_b64encode(
                hashlib.sha256(members[name]).digest()).rstrip(b"=").decode()
            self.assertEqual((digest, size), ("sha256=" + expected, str(len(members[name]))), name)

    def test_library_is_bundled_and_makes_the_wheel_platform_specific(self):
        name, members = self.build(library=fedeck.library_path())
        with open(fedeck.library_path(), "rb") as stream:
            self.assertEqual(members["fedeck/libfedeck.so"], stream.read())
        self.assertFalse(name.endswith("-any.whl"), name)
        wheel = members["fedeck-%s.dist-info/WHEEL" % fedeck.__version__].decode()
        self.assertIn("Root-Is-Purelib: false", wheel)
        self.assertIn("Tag: " + name[len("fedeck-%s-" % fedeck.__version__):-len(".whl")], wheel)
        metadata = members["fedeck-%s.dist-info/METADATA" % fedeck.__version__].decode()
        self.assertIn("Name: fedeck\nVersion: %s\n" % fedeck.__version__, metadata)

    def test_a_library_named_but_absent_stops_the_build(self):
        with self.assertRaises(FileNotFoundError):
            fedeck_build.build_wheel(self.directory, {"library": "/nonexistent/libfedeck.so"})

    def test_unpacked_wheel_finds_its_bundled_library(self):
        name, _ = self.build(library=fedeck.library_path())
        site = os.path.join(self.directory, "site")
        with zipfile.ZipFile(os.path.join(self.directory, name)) as wheel:
            wheel.extractall(site)
        deck = self.write("deck.inp", "*NSET, NSET=A\n1, 2\n")
        environment = {key: value for key, value in os.environ.items()
                       if key != "FEDECK_LIBRARY"}
        environment["PYTHONPATH"] = site
        script = ("import fedeck, sys\n"
                  "print(fedeck.library_path())\n"
                  "print(fedeck.parse(sys.argv[1], use_numpy=False).keywords[0].data.tolist())\n")
        result = subprocess.run([sys.executable, "-c", script, deck], cwd=tempfile.gettempdir(),
                                env=environment, capture_output=True, text=True, check=True)
        self.assertEqual(result.stdout.splitlines(),
                         [os.path.join(site, "fedeck", "libfedeck.so"), "[[1, 2]]"])


class SourceDistribution(DeckTestCase):
    def test_sdist_holds_what_a_wheel_build_needs(self):
        name = fedeck_build.build_sdist(self.directory)
        root = name[:-len(".tar.gz")]
        with tarfile.open(os.path.join(self.directory, name)) as archive:
            names = set(archive.getnames())
        for member in ("pyproject.toml", "fedeck_build.py", "fedeck/__init__.py", "PKG-INFO"):
            self.assertIn(root + "/" + member, names)
        self.assertNotIn(root + "/fedeck/libfedeck.so", names)



if __name__ == "__main__":
    unittest.main()
