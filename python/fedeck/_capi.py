"""ctypes declarations of the flat C entry of libfedeck.so, and its loading.

The record layouts mirror binding/inp_CAPI.h; they are part of the library's
interface on 64-bit targets, and the tests check them against the offsets
the header documents.
"""

import ctypes
import ctypes.util
import os

# The values of inp_CAPI_Item.itemType.
INTEGER = 0
BOOLEAN = 1
REAL = 2
STRING = 3
NONE = 4

LIBRARY_ENV = "FEDECK_LIBRARY"
BUNDLED_NAME = "libfedeck.so"


class Item(ctypes.Structure):
    """One value: only the field named by itemType means anything."""

    _fields_ = [
        ("itemType", ctypes.c_int32),
        ("ival", ctypes.c_int32),
        ("bval", ctypes.c_bool),
        ("dval", ctypes.c_double),
        ("sval", ctypes.c_char_p),
    ]


class ParamKeyValue(ctypes.Structure):
    """One parameter of a keyword: its name and its value."""

    _fields_ = [
        ("key", ctypes.c_char_p),
        ("value", Item),
    ]


PopulateStrings = ctypes.CFUNCTYPE(
    None, ctypes.c_char_p, ctypes.c_char_p, ctypes.c_int, ctypes.POINTER(ctypes.c_char_p))
# The parameter records and data tables arrive as plain addresses: they are
# unpacked in bulk rather than through ctypes objects.
PopulateParam = ctypes.CFUNCTYPE(None, ctypes.c_char_p, ctypes.c_int, ctypes.c_void_p)
CreateKwdsList = ctypes.CFUNCTYPE(None, ctypes.c_char_p, ctypes.c_int)
PopulateDataArray = ctypes.CFUNCTYPE(
    None, ctypes.c_char_p, ctypes.c_char_p, ctypes.c_int, ctypes.c_int, ctypes.c_void_p)


def _declare(library):
    parse = library.inp_CAPI_Parse
    parse.restype = ctypes.c_int
    parse.argtypes = [
        ctypes.c_char_p, ctypes.c_char_p, ctypes.c_bool, ctypes.c_int, ctypes.c_bool,
        ctypes.c_bool, PopulateStrings, PopulateParam, CreateKwdsList, PopulateDataArray,
    ]
    as_text = library.inp_CAPI_Item_AsCharPtr
    as_text.restype = ctypes.c_char_p
    as_text.argtypes = [ctypes.POINTER(Item)]
    return library


def _candidates():
    """The places to look for the library, in order, as (description, path)."""
    configured = os.environ.get(LIBRARY_ENV)
    if configured:
        yield "%s=%s" % (LIBRARY_ENV, configured), configured
        # A library named explicitly is the one wanted: falling back to
        # another would hide a wrong setting.
        return
    bundled = os.path.join(os.path.dirname(os.path.abspath(__file__)), BUNDLED_NAME)
    yield "the copy bundled with the package (%s)" % bundled, bundled
    found = ctypes.util.find_library("fedeck")
    yield "ctypes.util.find_library('fedeck') (%s)" % (found or "nothing found"), found


def load_library():
    """Loads libfedeck.so and declares its functions.

    Raises OSError naming every place tried when none of them holds a
    loadable library.
    """
    tried = []
    for description, path in _candidates():
        if not path:
            tried.append(description)
            continue
        if os.sep in path and not os.path.exists(path):
            tried.append(description + ": no such file")
            continue
        try:
            return _declare(ctypes.CDLL(path)), path
        except OSError as error:
            tried.append("%s: %s" % (description, error))
    raise OSError(
        "fedeck cannot find its shared library libfedeck.so. Build it (CMake target "
        "fedeck_shared) and set %s to its path, or install the package with the library "
        "bundled. Tried: %s" % (LIBRARY_ENV, "; ".join(tried)))
