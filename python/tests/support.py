"""Helpers of the tests: decks written into temporary directories."""

import os
import tempfile
import textwrap
import unittest

import fedeck


class DeckTestCase(unittest.TestCase):
    """Each test gets a fresh directory; decks are written there as text."""

    def setUp(self):
        self._directory = tempfile.TemporaryDirectory(prefix="fedeck-test-")
        self.directory = self._directory.name

    def tearDown(self):
        self._directory.cleanup()

    def write(self, name, text):
        path = os.path.join(self.directory, name)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as stream:
            stream.write(textwrap.dedent(text).lstrip("\n"))
        return path

    def parse_text(self, text, **options):
        """Parses ``text`` as the deck deck.inp of the test's directory."""
        return fedeck.parse(self.write("deck.inp", text), **options)

    def only_keyword(self, deck, name):
        found = deck.find(name)
        self.assertEqual(len(found), 1, "keywords named %s: %r" % (name, found))
        return found[0]

    def data_of(self, keyword_name, text, **options):
        """The data of the one keyword named so in ``text``, as flat arrays."""
        deck = self.parse_text(text, use_numpy=False, **options)
        return self.only_keyword(deck, keyword_name).data
