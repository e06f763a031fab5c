"""Failures the package reports itself, and calls from several threads."""

import os
import subprocess
import sys
import threading
import unittest

import fedeck
from fedeck._data import numpy

from .support import DeckTestCase

PACKAGE_ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))


class UnreadableDeck(DeckTestCase):
    """The library would end the process on these: the package must raise
    before calling it."""

    def test_missing_deck_raises_file_not_found(self):
        missing = os.path.join(self.directory, "nothing.inp")
        with self.assertRaises(FileNotFoundError) as raised:
            fedeck.parse(missing)
        self.assertEqual(raised.exception.filename, missing)

    def test_directory_raises_is_a_directory(self):
        with self.assertRaises(IsADirectoryError):
            fedeck.parse(self.directory)

    def test_deck_without_read_permission_raises_permission_error(self):
        deck = self.write("locked.inp", "*NSET, NSET=A\n1\n")
        os.chmod(deck, 0)
        if os.geteuid() != 0:
            with self.assertRaises(PermissionError):
                fedeck.parse(deck)
            return
        # The superuser reads anything: try it as an unprivileged user in a
        # child process. The library is loaded first, here: the unprivileged
        # child might not be allowed to read the build directory.
        fedeck.library_path()
        os.chmod(self.directory, 0o755)
        child = os.fork()
        if child == 0:
            status = 1
            try:
                os.setgid(65534)
                os.setuid(65534)
                fedeck.parse(deck)
            except PermissionError:
                status = 0
            except BaseException:
                status = 2
            finally:
                os._exit(status)
        _, wait_status = os.waitpid(child, 0)
        self.assertEqual(os.waitstatus_to_exitcode(wait_status), 0)

    @unittest.skipIf(numpy, "NumPy is installed")
    def test_asking_for_numpy_without_it_raises_value_error(self):
        with self.assertRaises(ValueError):
            self.parse_text("*NSET, NSET=A\n1\n", use_numpy=True)


class LibraryNotFound(unittest.TestCase):
    def test_message_names_the_configured_path(self):
        script = ("import fedeck\n"
                  "try:\n    fedeck.library_path()\n"
                  "except OSError as error:\n    print(error)\n")
        environment = dict(os.environ, FEDECK_LIBRARY="/nonexistent/libfedeck.so")
        result = subprocess.run([sys.executable, "-c", script], cwd=PACKAGE_ROOT, env=environment,
                                capture_output=True, text=True, check=True)
        self.assertIn("FEDECK_LIBRARY=/nonexistent/libfedeck.so: no such file", result.stdout)
        self.assertIn("fedeck_shared", result.stdout)


class SeveralThreads(DeckTestCase):
    def test_concurrent_calls_each_get_their_own_deck(self):
        paths = [self.write("deck%d.inp" % n, "*NSET, NSET=SET%d\n%d, %d\n" % (n, n, n + 1))
                 for n in range(4)]
        failures = []

        def parse_repeatedly(n):
            for _ in range(10):
                keyword = fedeck.parse(paths[n], use_numpy=False).keywords[0]
                if (keyword.parameters, keyword.data.tolist()) != ({"nset": "SET%d" % n},
                                                                   [[n, n + 1]]):
                    failures.append((n, keyword))

        threads = [threading.Thread(target=parse_repeatedly, args=(n,)) for n in range(4)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
        self.assertEqual(failures, [])


if __name__ == "__main__":
    unittest.main()
