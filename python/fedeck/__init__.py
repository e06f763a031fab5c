"""Reads keyword-based finite-element input decks through libfedeck.so.

    >>> import fedeck
    >>> deck = fedeck.parse("model.inp", include_dir="includes")
    >>> for keyword in deck.walk():
    ...     print(keyword.name, keyword.parameters, keyword.data)

:func:`parse` returns a :class:`Deck` of :class:`Keyword` objects; the data
lines of each keyword are a :class:`Data` table, numeric tables as one flat
array (NumPy arrays when NumPy is installed).

The shared library is looked for in the file named by the environment
variable FEDECK_LIBRARY, then in the copy bundled with the package, then
through ``ctypes.util.find_library("fedeck")``.
"""

import os
import threading

from . import _capi
from ._builder import DeckBuilder
from ._data import Data
from ._data import numpy as _numpy
from ._deck import Deck, Keyword

__all__ = ["parse", "Deck", "Keyword", "Data", "library_path"]
__version__ = "0.1.0"

# The entry keeps its callbacks in process-wide variables: one call at a time.
_entry_lock = threading.Lock()
_library = None
_library_path = None


def _loaded_library():
    global _library, _library_path
    if _library is None:
        _library, _library_path = _capi.load_library()
    return _library


def library_path():
    """The path of the shared library in use, loading it if need be."""
    _loaded_library()
    return _library_path


def _check_readable(path):
    """Raises FileNotFoundError, PermissionError or IsADirectoryError for a
    deck the library couldn't open: its own failure there would be a C++
    exception, which ends the process."""
    with open(path, "rb"):
        pass


def parse(path, include_dir=None, organize=True, bulk=True, *, use_numpy=None, verbose=0):
    """Reads the deck at ``path`` and returns its :class:`Deck`.

    ``include_dir``: a directory searched for include files that aren't
    found as written; None (the default) searches the deck's own directory,
    where include files are usually kept. ``organize``: nest keywords into their holders (a
    *STEP holds its procedure, loads and output) instead of a flat list.
    ``bulk``: with False the data lines of all keywords but *HEADING and
    *STEP are skipped, which is fast on big decks: their ``data`` is then
    empty. ``use_numpy``: numeric tables as NumPy arrays; None (the default)
    uses NumPy when it can be imported. ``verbose``: 1 or more prints the
    fatal errors of expansion and organization to standard error (those of
    reading the deck always are).

    Defects of the deck don't raise: the library delivers what it could
    read. Raises FileNotFoundError, PermissionError or IsADirectoryError when
    the deck can't be opened, OSError when the shared library can't be
    found, ValueError when NumPy is asked for and missing.
    """
    if use_numpy is None:
        use_numpy = _numpy is not None
    elif use_numpy and _numpy is None:
        raise ValueError("use_numpy=True, but NumPy cannot be imported")
    path = os.fspath(path)
    file_name = os.fsencode(path)
    if include_dir is None:
        include_dir = os.path.dirname(path)
    directory_name = os.fsencode(os.fspath(include_dir))
    library = _loaded_library()
    _check_readable(path)
    builder = DeckBuilder(use_numpy)
    with _entry_lock:
        library.inp_CAPI_Parse(file_name, directory_name, bool(organize), int(verbose),
                               bool(bulk), False, *builder.callbacks)
    return builder.finish()
