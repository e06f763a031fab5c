"""The data lines of a keyword, as the library delivers them."""

import array

try:
    import numpy
except ImportError:  # NumPy is optional: flat array.array tables stand in.
    numpy = None

# What the library's array type names become, and the array.array code of
# each numeric kind.
KIND_OF_TYPE_NAME = {
    "inp_IsInt": "int",
    "inp_IsDouble": "float",
    "inp_IsDoubleCZI": "float",
    "inp_IsItem": "item",
}
TYPECODE_OF_KIND = {"int": "i", "float": "d"}


class Data:
    """The data lines of one keyword: a table of ``rows`` x ``cols`` values.

    ``kind`` says how the values are held:

    ``"int"``
        every item is an integer. ``values`` is a NumPy array of dtype int32
        and shape (rows, cols) when NumPy can be imported, else a flat
        ``array.array('i')`` of rows * cols numbers, row after row.
    ``"float"``
        every item is numeric and at least one is a real. ``values`` is a
        float64 NumPy array of shape (rows, cols), else a flat
        ``array.array('d')``. Integers among them are read as floats.
        ``int_first_column`` is true when column 0 holds integers, the
        labels of a table such as a node list; they too are floats here.
    ``"item"``
        anything else: text, mixed types, rows of different lengths, or no
        data lines at all. ``values`` is a list of rows, each a list of
        ``cols`` Python values (int, float, str); an empty item, and each
        place beyond the end of a shorter row, is None.

    Whatever the kind, ``len(data)`` is the number of rows, iteration and
    ``data[i]`` give row i, ``data[i, j]`` one value, ``shape`` is
    (rows, cols) and ``tolist()`` gives a list of rows of Python values.
    """

    __slots__ = ("kind", "int_first_column", "rows", "cols", "values")

    def __init__(self, kind, rows, cols, values, int_first_column=False):
        self.kind = kind
        self.int_first_column = int_first_column
        self.rows = rows
        self.cols = cols
        self.values = values

    @property
    def shape(self):
        return (self.rows, self.cols)

    @property
    def is_flat(self):
        """True when ``values`` is one flat array.array, row after row."""
        return isinstance(self.values, array.array)

    def __len__(self):
        return self.rows

    def __bool__(self):
        return self.rows > 0

    def __getitem__(self, index):
        if isinstance(index, tuple):
            row, col = index
            return self.row(row)[col]
        return self.row(index)

    def __iter__(self):
        for i in range(self.rows):
            yield self.row(i)

    def row(self, index):
        """Row ``index`` (negative counts from the end): a list of items,
        a slice of the flat array, or a NumPy row."""
        if index < 0:
            index += self.rows
        if not 0 <= index < self.rows:
            raise IndexError("row %d of a table of %d rows" % (index, self.rows))
        if self.is_flat:
            start = index * self.cols
            return self.values[start:start + self.cols]
        return self.values[index]

    def tolist(self):
        """The table as a list of rows of Python values."""
        if self.kind == "item":
            return [list(row) for row in self.values]
        if self.is_flat:
            return [self.row(i).tolist() for i in range(self.rows)]
        return self.values.tolist()

    def __repr__(self):
        return "Data(kind=%r, shape=%r%s)" % (
            self.kind, self.shape, ", int_first_column=True" if self.int_first_column else "")
