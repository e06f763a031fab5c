"""The records that cross into the library keep the layout of the C header."""

import ctypes
import os
import re
import unittest

from fedeck import _builder, _capi

HEADER = os.path.join(os.path.dirname(__file__), os.pardir, os.pardir, "binding", "inp_CAPI.h")


class RecordLayout(unittest.TestCase):
    def test_item_is_32_bytes_with_documented_offsets(self):
        self.assertEqual(ctypes.sizeof(_capi.Item), 32)
        offsets = {name: getattr(_capi.Item, name).offset
                   for name in ("itemType", "ival", "bval", "dval", "sval")}
        self.assertEqual(offsets, {"itemType": 0, "ival": 4, "bval": 8, "dval": 16, "sval": 24})

    def test_parameter_record_is_40_bytes_key_then_item(self):
        self.assertEqual(ctypes.sizeof(_capi.ParamKeyValue), 40)
        self.assertEqual(_capi.ParamKeyValue.key.offset, 0)
        self.assertEqual(_capi.ParamKeyValue.value.offset, 8)

    @unittest.skipUnless(os.path.exists(HEADER), "the C header is not beside the package")
    def test_item_type_numbers_match_the_header(self):
        with open(HEADER, encoding="utf-8") as stream:
            declared = dict(re.findall(r"inp_CAPI_(\w+) = (\d+)", stream.read()))
        ours = {"INTEGER": _capi.INTEGER, "BOOLEAN": _capi.BOOLEAN, "REAL": _capi.REAL,
                "STRING": _capi.STRING, "NONE": _capi.NONE}
        self.assertEqual({name: int(declared[name]) for name in ours}, ours)


def make_item(item_type, ival=0, bval=False, dval=0.0, sval=None):
    return _capi.Item(item_type, ival, bval, dval, sval)


class ItemDecoding(unittest.TestCase):
    """Item tables are unpacked with struct rather than through ctypes: both
    readings of the same bytes must agree."""

    def unpack(self, items):
        table = (_capi.Item * len(items))(*items)
        return _builder.item_rows(1, len(items), ctypes.addressof(table))[0]

    def test_each_type_reads_its_own_field(self):
        items = [make_item(_capi.INTEGER, ival=-7, dval=9.0), make_item(_capi.REAL, dval=2.5),
                 make_item(_capi.STRING, sval=b"steel"), make_item(_capi.BOOLEAN, bval=True),
                 make_item(_capi.NONE, ival=3)]
        values = self.unpack(items)
        self.assertEqual(values, [-7, 2.5, "steel", True, None])
        self.assertEqual([type(value) for value in values], [int, float, str, bool, type(None)])

    def test_text_that_is_not_utf8_survives_as_in_file_names(self):
        self.assertEqual(self.unpack([make_item(_capi.STRING, sval=b"caf\xe9")]),
                         [os.fsdecode(b"caf\xe9")])

    def test_unknown_item_type_is_refused(self):
        with self.assertRaises(ValueError):
            self.unpack([make_item(9)])


class LibraryReadsOurRecords(unittest.TestCase):
    """The library's own text conversion, fed records built here, proves that
    both sides agree on every field's place."""

    def as_text(self, item):
        library = _capi.load_library()[0]
        return library.inp_CAPI_Item_AsCharPtr(ctypes.byref(item)).decode()

    def test_every_type_as_text(self):
        self.assertEqual(self.as_text(make_item(_capi.INTEGER, ival=42)), "42")
        self.assertEqual(self.as_text(make_item(_capi.REAL, dval=0.25)), "0.25")
        self.assertEqual(self.as_text(make_item(_capi.BOOLEAN, bval=True)), "True")
        self.assertEqual(self.as_text(make_item(_capi.BOOLEAN, bval=False)), "False")
        self.assertEqual(self.as_text(make_item(_capi.STRING, sval=b"C3D8")), "C3D8")
        self.assertEqual(self.as_text(make_item(_capi.NONE)), "None")


if __name__ == "__main__":
    unittest.main()
