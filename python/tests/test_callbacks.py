"""The callbacks driven directly, as the library calls them, with arguments
made by ctypes: paths of any depth, null pointers, and faults that must come
out of parse() as exceptions rather than vanish inside ctypes."""

import ctypes
import unittest

from fedeck import _capi
from fedeck._builder import DeckBuilder


def string_array(*texts):
    return (ctypes.c_char_p * (len(texts) + 1))(*texts, None)


class CallbackPaths(unittest.TestCase):
    def setUp(self):
        self.builder = DeckBuilder(use_numpy=False)
        self.strings, self.params, self.lists, self.data = self.builder.callbacks

    def test_deepest_path_reaches_a_suboption_of_a_suboption(self):
        self.lists(b".keywords", 1)
        self.lists(b".keywords[0].suboptions", 3)
        self.lists(b".keywords[0].suboptions[2].suboptions", 1)
        self.strings(b".keywords[0].suboptions[2].name", b"str", 1, string_array(b"nodeoutput"))
        self.strings(b".keywords[0].suboptions[2].comments", b"tuple", 2,
                     string_array(b" first", b" second"))
        self.strings(b".keywords[0].suboptions[2].suboptions[0].name", b"str", 1,
                     string_array(b"deepest"))
        deck = self.builder.finish()
        holder = deck.keywords[0].suboptions[2]
        self.assertEqual((holder.name, holder.comments), ("nodeoutput", (" first", " second")))
        self.assertEqual(holder.suboptions[0].name, "deepest")
        self.assertEqual([keyword.name for keyword in deck.keywords[0].suboptions[:2]], ["", ""])

    def test_parameter_records_unpack_key_and_value_in_order(self):
        records = (_capi.ParamKeyValue * 3)(
            _capi.ParamKeyValue(b"name", _capi.Item(_capi.STRING, sval=b"STEEL")),
            _capi.ParamKeyValue(b"inc", _capi.Item(_capi.INTEGER, ival=100)),
            _capi.ParamKeyValue(b"direct", _capi.Item(_capi.NONE)))
        self.lists(b".keywords", 1)
        self.params(b".keywords[0].parameter", 3, ctypes.addressof(records))
        parameters = self.builder.finish().keywords[0].parameters
        self.assertEqual(list(parameters.items()),
                         [("name", "STEEL"), ("inc", 100), ("direct", None)])

    def test_null_pointers_give_empty_values(self):
        self.lists(b".keywords", 1)
        self.strings(b".missingIncludes", b"tuple", 0, None)
        self.strings(b".keywords[0].comments", b"tuple", 0, None)
        self.params(b".keywords[0].parameter", 0, None)
        self.data(b".keywords[0].data", b"inp_IsDoubleCZI", 1000, 7, None)
        deck = self.builder.finish()
        keyword = deck.keywords[0]
        self.assertEqual((deck.missing_includes, keyword.comments, keyword.parameters),
                         ((), (), {}))
        self.assertEqual((keyword.data.kind, keyword.data.shape, len(keyword.data.values)),
                         ("float", (0, 0), 0))



class CallbackFaults(unittest.TestCase):
    def setUp(self):
        self.builder = DeckBuilder(use_numpy=False)
        self.strings, _, self.lists, self.data = self.builder.callbacks

    def test_fault_in_a_callback_is_raised_by_finish_and_later_calls_are_ignored(self):
        self.lists(b".keywords", 1)
        self.data(b".keywords[0].data", b"inp_IsSomethingNew", 1, 1, None)
        self.strings(b".keywords[0].name", b"str", 1, string_array(b"node"))
        with self.assertRaisesRegex(ValueError, "inp_IsSomethingNew"):
            self.builder.finish()
        self.assertEqual(self.builder.deck.keywords[0].name, "")

    def test_unexpected_paths_are_refused(self):
        cases = [(0, b".keywords[0].name"), (1, b".keywords.name"),
                 (1, b".nosuchlist[0].name"), (1, b".keywords[0].colour")]
        for count, path in cases:
            builder = DeckBuilder(use_numpy=False)
            strings, _, lists, _ = builder.callbacks
            lists(b".keywords", count)
            strings(path, b"str", 1, string_array(b"x"))
            with self.assertRaises((ValueError, IndexError), msg=path):
                builder.finish()

if __name__ == "__main__":
    unittest.main()
