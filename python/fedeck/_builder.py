"""The four callbacks of the flat entry, building a Deck from the paths."""

import array
import ctypes
import struct

from . import _capi
from ._data import KIND_OF_TYPE_NAME, TYPECODE_OF_KIND, Data, numpy
from ._deck import Deck, Keyword

# The path's field names and the attribute each sets.
ATTRIBUTE_OF_FIELD = {
    "includes": "includes",
    "missingIncludes": "missing_includes",
    "name": "name",
    "comments": "comments",
    "parameter": "parameters",
    "data": "data",
    "keywords": "keywords",
    "suboptions": "suboptions",
}

# The records unpacked in one go rather than field by field through ctypes:
# native alignment puts the fields at the offsets of the C records.
ITEM_STRUCT = struct.Struct("@ii?dP")
PARAMETER_STRUCT = struct.Struct("@Pii?dP")
assert ITEM_STRUCT.size == ctypes.sizeof(_capi.Item)
assert PARAMETER_STRUCT.size == ctypes.sizeof(_capi.ParamKeyValue)


def decode(raw):
    """Text from the library; bytes that aren't UTF-8 survive as they do in
    file names (os.fsdecode)."""
    return raw.decode("utf-8", "surrogateescape")


def item_value(item_type, ival, bval, dval, sval_address):
    """The Python value of one item's fields."""
    if item_type == _capi.INTEGER:
        return ival
    if item_type == _capi.REAL:
        return dval
    if item_type == _capi.STRING:
        return decode(ctypes.string_at(sval_address)) if sval_address else ""
    if item_type == _capi.BOOLEAN:
        return bval
    if item_type == _capi.NONE:
        return None
    raise ValueError("unknown item type %d" % item_type)


def numeric_values(kind, rows, cols, address, use_numpy):
    """The table copied out of the library's buffer in one copy."""
    typecode = TYPECODE_OF_KIND[kind]
    count = rows * cols
    if use_numpy:
        values = numpy.empty((rows, cols), dtype=numpy.int32 if kind == "int" else numpy.float64)
        destination = values.ctypes.data
    else:
        values = array.array(typecode, [0]) * count
        destination = values.buffer_info()[0]
    if count:
        ctypes.memmove(destination, address, count * values.itemsize)
    return values


def item_rows(rows, cols, address):
    """The rows of an inp_CAPI_Item table as lists of Python values."""
    if rows * cols == 0:
        return [[None] * cols for _ in range(rows)]
    raw = ctypes.string_at(address, rows * cols * ITEM_STRUCT.size)
    values = [item_value(*fields) for fields in ITEM_STRUCT.iter_unpack(raw)]
    return [values[start:start + cols] for start in range(0, rows * cols, cols)]


class DeckBuilder:
    """Receives the calls of one parse and grows a Deck by their paths.

    ctypes can't let an exception cross the C frames, so the first one
    raised in a callback is kept and re-raised by :meth:`finish`; the calls
    after it are ignored.
    """

    def __init__(self, use_numpy):
        self.deck = Deck()
        self.use_numpy = use_numpy
        self.error = None
        # The calls of one keyword come in a run with the same prefix: keep
        # the last holder found so that its path is walked once, not five
        # times.
        self._last_prefix = None
        self._last_holder = None
        # Held here, so that they live as long as the parse that calls them.
        self.callbacks = (
            _capi.PopulateStrings(self._guarded(self.populate_strings)),
            _capi.PopulateParam(self._guarded(self.populate_param)),
            _capi.CreateKwdsList(self._guarded(self.create_keywords)),
            _capi.PopulateDataArray(self._guarded(self.populate_data)),
        )

    def finish(self):
        if self.error is not None:
            error, self.error = self.error, None
            raise error
        return self.deck

    def _guarded(self, callback):
        def call(*arguments):
            if self.error is not None:
                return
            try:
                callback(*arguments)
            except BaseException as error:  # noqa: B902 - re-raised by finish()
                self.error = error
        return call

    # The callbacks.

    def populate_strings(self, path, object_type, count, strings):
        texts = tuple(decode(strings[i]) for i in range(count))
        if object_type == b"str":
            value = texts[0] if texts else ""
        else:
            value = texts
        self._set(path, value)

    def populate_param(self, path, count, address):
        parameters = {}
        if count and address:
            raw = ctypes.string_at(address, count * PARAMETER_STRUCT.size)
            for key_address, *item in PARAMETER_STRUCT.iter_unpack(raw):
                parameters[decode(ctypes.string_at(key_address))] = item_value(*item)
        self._set(path, parameters)

    def create_keywords(self, path, count):
        self._set(path, [Keyword() for _ in range(count)])
        # The holders found so far may belong to the list just replaced.
        self._last_prefix = self._last_holder = None

    def populate_data(self, path, type_name, rows, cols, address):
        type_name = decode(type_name)
        kind = KIND_OF_TYPE_NAME.get(type_name)
        if kind is None:
            raise ValueError("unknown data array type %r at %s" % (type_name, decode(path)))
        if not address:
            # No data lines, or an allocation that failed in the library:
            # there is nothing to read whatever the counts say.
            rows = cols = 0
        if kind == "item":
            values = item_rows(rows, cols, address)
        else:
            values = numeric_values(kind, rows, cols, address, self.use_numpy)
        self._set(path, Data(kind, rows, cols, values, type_name == "inp_IsDoubleCZI"))

    # Paths.

    def _set(self, path, value):
        prefix, _, field = path.rpartition(b".")
        holder = self._holder(prefix)
        attribute = ATTRIBUTE_OF_FIELD.get(decode(field))
        if attribute is None or not hasattr(holder, attribute):
            raise ValueError("unexpected path %s from the library" % decode(path))
        setattr(holder, attribute, value)

    def _holder(self, prefix):
        if prefix != self._last_prefix:
            self._last_holder = self._walk(prefix)
            self._last_prefix = prefix
        return self._last_holder

    def _walk(self, prefix):
        """The object that ``prefix``, such as b".keywords[3].suboptions[0]",
        names: each step is a list field and an index into it."""
        holder = self.deck
        for step in prefix.split(b".")[1:]:
            field, bracket, rest = step.partition(b"[")
            attribute = ATTRIBUTE_OF_FIELD.get(decode(field))
            is_list_step = attribute in ("keywords", "suboptions") and rest.endswith(b"]")
            if not bracket or not is_list_step:
                raise ValueError("unexpected path %s from the library" % decode(prefix))
            holder = getattr(holder, attribute)[int(rest[:-1])]
        return holder
