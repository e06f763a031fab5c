"""Reads keyword-based finite-element input decks through libfedeck.so.

    >>> import fedeck
    >>> deck = fedeck.parse("model.inp", include_dir="includes")
    >>> for keyword in deck.walk():
    ...     print(keyword.name, keyword.parameters, keyword.data)
    >>> model = fedeck.read_model("model.inp")
    >>> model.instances["PART-1-1"].nodes.coordinates.shape
    (1030301, 3)

:func:`read_model` returns the :class:`Model` the solver sees after the
whole road: parts, placed instances and the assembly, as arrays.

:func:`parse` returns a :class:`Deck` of :class:`Keyword` objects; the data
lines of each keyword are a :class:`Data` table, numeric tables as one flat
array (NumPy arrays when NumPy is installed).

The shared library is looked for in the file named by the environment
variable FEDECK_LIBRARY, then in the copy bundled with the package, then
through ``ctypes.util.find_library("fedeck")``.
"""

import os
import threading
from typing import Optional, Union

from . import _capi
from ._builder import DeckBuilder
from ._data import Data
from ._data import numpy as _numpy
from ._deck import Deck, Keyword
from . import _model
from ._model import (Assembly, AssemblySet, AssemblySurface, Diagnostic, Elements, Instance,
                     Model, Nodes, Part, Surface)

__all__ = ["parse", "read_model", "Deck", "Keyword", "Data", "Model", "Part", "Instance",
           "Assembly", "Nodes", "Elements", "Surface", "AssemblySet", "AssemblySurface",
           "Diagnostic", "library_path"]
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


def _numpy_wanted(use_numpy):
    """NumPy when asked for, or by default when it can be imported."""
    if use_numpy is None:
        return _numpy is not None
    if use_numpy and _numpy is None:
        raise ValueError("use_numpy=True, but NumPy cannot be imported")
    return bool(use_numpy)


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
    use_numpy = _numpy_wanted(use_numpy)
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


def read_model(path: "Union[str, os.PathLike]",
               include_dir: "Optional[Union[str, os.PathLike]]" = None, *,
               use_numpy: Optional[bool] = None) -> Model:
    """Reads the deck at ``path``, runs the whole road of a new job and
    returns its :class:`Model`: ``parts``, ``instances`` (placed by their
    transforms), the ``assembly``'s own nodes, elements, sets and surfaces,
    and the ``diagnostics`` of the road.

    ``include_dir``: where include files that aren't found as written are
    looked for; None (the default) is the deck's own directory.
    ``use_numpy``: arrays as NumPy arrays; None (the default) uses NumPy
    when it can be imported, and flat ``array.array`` objects otherwise.

    Defects of the deck don't raise: they are in ``diagnostics``,
    ``has_errors`` says whether one is an error, and the maps hold what was
    built. Raises FileNotFoundError, PermissionError or IsADirectoryError
    when the deck can't be opened, OSError when the shared library can't be
    found, ValueError when NumPy is asked for and missing.
    """
    use_numpy = _numpy_wanted(use_numpy)
    path = os.fspath(path)
    library = _loaded_library()
    _check_readable(path)
    include = os.fsencode(os.fspath(include_dir)) if include_dir is not None else None
    return _model.read(library, os.fsencode(path), include, use_numpy)
