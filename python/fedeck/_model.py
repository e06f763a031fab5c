"""The model of a deck after the whole road, as arrays: what read_model returns."""

import array
import ctypes
from typing import Dict, List, Optional

from . import _model_capi as capi
from ._data import numpy

_SEVERITIES = {0: "warning", 1: "error", 2: "fatal error"}
_SURFACE_TYPES = {capi.ELEMENT_FACES: "element", capi.NODES: "node", capi.ANALYTICAL: "analytical"}


class Nodes:
    """Nodes of one level: ``labels`` (n,) ascending and ``coordinates`` (n, 3).

    Without NumPy both are flat ``array.array`` objects, the coordinates x,
    y, z of node after node.
    """

    __slots__ = ("labels", "coordinates")

    def __init__(self, labels, coordinates):
        self.labels = labels
        self.coordinates = coordinates

    def __len__(self):
        return len(self.labels)

    def __repr__(self):
        return "Nodes(%d)" % len(self)


class Elements:
    """Elements of one type: ``labels`` (m,) ascending and ``connectivity``
    (m, width) node labels, a row shorter than ``width`` padded with 0.

    Without NumPy both are flat ``array.array`` objects, row after row.
    """

    __slots__ = ("type", "width", "labels", "connectivity")

    def __init__(self, element_type, width, labels, connectivity):
        self.type = element_type
        self.width = width
        self.labels = labels
        self.connectivity = connectivity

    def __len__(self):
        return len(self.labels)

    def __repr__(self):
        return "Elements(%s, %d x %d)" % (self.type, len(self), self.width)


class Surface:
    """A surface of a part or an instance.

    ``type`` is "element", "node" or "analytical". An element surface has
    ``faces``: face name ("S1", "SPOS", ...) to an array of element labels.
    A node surface has ``nodes`` and their ``areas``.
    """

    __slots__ = ("type", "faces", "nodes", "areas")

    def __init__(self, surface_type, faces=None, nodes=None, areas=None):
        self.type = surface_type
        self.faces = faces if faces is not None else {}
        self.nodes = nodes
        self.areas = areas

    def __repr__(self):
        return "Surface(%s)" % self.type


class Part:
    """One part: its ``nodes``, ``elements`` by type, ``node_sets`` and
    ``element_sets`` (name to an array of labels) and ``surfaces``."""

    def __init__(self, name: str):
        self.name = name
        self.nodes: Nodes = None
        self.elements: Dict[str, Elements] = {}
        self.node_sets: Dict[str, object] = {}
        self.element_sets: Dict[str, object] = {}
        self.surfaces: Dict[str, Surface] = {}

    def __repr__(self):
        return "%s(%r)" % (type(self).__name__, self.name)


class Instance(Part):
    """One instance of a part: ``part`` (its name, None when the model does
    not say), ``rotation`` (3, 3) and ``translation`` (3,) with global =
    rotation @ local + translation, and the level's maps as for a part, its
    ``nodes`` placed in the global frame."""

    def __init__(self, name: str):
        super().__init__(name)
        self.part: Optional[str] = None
        self.rotation = None
        self.translation = None


class AssemblySet:
    """A set of the assembly: ``ids`` of the assembly's own nodes or
    elements, and ``instances``: instance name to the labels it holds there."""

    __slots__ = ("ids", "instances")

    def __init__(self, ids, instances):
        self.ids = ids
        self.instances = instances

    def __repr__(self):
        return "AssemblySet(%d own, %s)" % (len(self.ids), sorted(self.instances))


class AssemblySurface:
    """A surface of the assembly: its own ``nodes`` and ``areas``, and
    ``instances``: instance name to the :class:`Surface` it has there."""

    __slots__ = ("nodes", "areas", "instances")

    def __init__(self, nodes, areas, instances):
        self.nodes = nodes
        self.areas = areas
        self.instances = instances


class Assembly:
    """The assembly's own ``nodes`` and ``elements``, and its ``node_sets``,
    ``element_sets`` (name to :class:`AssemblySet`) and ``surfaces`` (name
    to :class:`AssemblySurface`)."""

    def __init__(self):
        self.nodes: Nodes = None
        self.elements: Dict[str, Elements] = {}
        self.node_sets: Dict[str, AssemblySet] = {}
        self.element_sets: Dict[str, AssemblySet] = {}
        self.surfaces: Dict[str, AssemblySurface] = {}


class Diagnostic:
    """One message of the road: ``severity`` ("warning", "error" or "fatal
    error"), ``text``, and where it points: ``file``, ``line`` and
    ``keyword`` (None and 0 where it points nowhere)."""

    __slots__ = ("severity", "text", "file", "line", "keyword")

    def __init__(self, severity, text, file, line, keyword):
        self.severity = severity
        self.text = text
        self.file = file
        self.line = line
        self.keyword = keyword

    def __repr__(self):
        return "Diagnostic(%s: %s)" % (self.severity, self.text)


class Model:
    """The model of a deck as the solver sees it after the whole road.

    ``parts`` and ``instances`` map names to :class:`Part` and
    :class:`Instance`, ``assembly`` is the :class:`Assembly`'s own level,
    ``diagnostics`` the messages of the road, ``has_errors`` whether any of
    them is an error (the maps then hold what was built).
    """

    def __init__(self):
        self.parts: Dict[str, Part] = {}
        self.instances: Dict[str, Instance] = {}
        self.assembly = Assembly()
        self.diagnostics: List[Diagnostic] = []
        self.has_errors = False
        self.uses_numpy = False

    def to_meshio(self) -> "meshio.Mesh":  # noqa: F821 (meshio is optional)
        """The assembled model as a ``meshio.Mesh``: the assembly's nodes and
        every instance's placed nodes, the elements that have a VTK cell, and
        the assembly's and instances' sets as point and cell sets (an
        instance's as "INSTANCE.NAME"). Raises ImportError without meshio."""
        from ._meshio import to_meshio

        return to_meshio(self)


class _Arrays:
    """Arrays the library fills: NumPy arrays or flat array.array objects."""

    def __init__(self, use_numpy):
        self.use_numpy = use_numpy

    def ints(self, count, width=1):
        if self.use_numpy:
            shape = (count,) if width == 1 else (count, width)
            return numpy.empty(shape, dtype=numpy.int32)
        return array.array("i", bytes(4 * count * width))

    def doubles(self, count, width=1):
        if self.use_numpy:
            shape = (count,) if width == 1 else (count, width)
            return numpy.empty(shape, dtype=numpy.float64)
        return array.array("d", bytes(8 * count * width))

    def address(self, values):
        if values is None:
            return None
        if self.use_numpy:
            return values.ctypes.data
        return values.buffer_info()[0] if len(values) else None

    def square(self, values):
        """Nine values as a 3 x 3 matrix (NumPy) or a list of rows."""
        if self.use_numpy:
            return numpy.array(values, dtype=numpy.float64).reshape(3, 3)
        return [list(values[0:3]), list(values[3:6]), list(values[6:9])]

    def vector(self, values):
        if self.use_numpy:
            return numpy.array(values, dtype=numpy.float64)
        return array.array("d", values)


def _text(value):
    return value.decode("utf-8", "replace") if value is not None else None


class ModelReader:
    """Reads the levels of a model handle into a :class:`Model`."""

    def __init__(self, library, handle, use_numpy):
        self.lib = library
        self.handle = handle
        self.arrays = _Arrays(use_numpy)
        self.faces = None

    def read(self, model):
        lib, handle = self.lib, self.handle
        faces = lib.inp_CAPI_Model_FaceCount(handle)
        self.faces = [_text(lib.inp_CAPI_Model_FaceName(handle, i)) for i in range(faces)]
        self.instance_names = [
            _text(lib.inp_CAPI_Model_LevelName(handle, capi.INSTANCE, i))
            for i in range(lib.inp_CAPI_Model_LevelCount(handle, capi.INSTANCE))
        ]
        levels = []
        for index in range(lib.inp_CAPI_Model_LevelCount(handle, capi.PART)):
            part = Part(_text(lib.inp_CAPI_Model_LevelName(handle, capi.PART, index)))
            model.parts[part.name] = part
            levels.append((capi.PART, index, part))
        for index, name in enumerate(self.instance_names):
            instance = Instance(name)
            self.read_placement(instance, index)
            model.instances[name] = instance
            levels.append((capi.INSTANCE, index, instance))
        levels.append((capi.ASSEMBLY, 0, model.assembly))
        # The elements first, and their memory back to the system before the
        # nodes are read: the peak is the model and the biggest arrays, not
        # the model and all of them. Levels that share a table (an instance
        # where its part stands) share their arrays too.
        read = []
        for kind, index, level in levels:
            level.elements = self.shared(read, kind, index, lib.inp_CAPI_Model_SameElements,
                                         self.elements)
        lib.inp_CAPI_Model_ReleaseElements(handle)
        read = []
        for kind, index, level in levels:
            level.nodes = self.shared(read, kind, index, lib.inp_CAPI_Model_SameNodes,
                                      self.nodes)
        for kind, index, level in levels[:-1]:
            self.read_sets_and_surfaces(level, kind, index)
        assembly = model.assembly
        assembly.node_sets = self.assembly_sets(capi.NODE_SET)
        assembly.element_sets = self.assembly_sets(capi.ELEMENT_SET)
        assembly.surfaces = self.assembly_surfaces()

    def shared(self, done, kind, index, same, read):
        """What an earlier level with the same table got, or a new read."""
        for earlier_kind, earlier_index, value in done:
            if same(self.handle, kind, index, earlier_kind, earlier_index) == 1:
                return value
        value = read(kind, index)
        done.append((kind, index, value))
        return value

    def read_placement(self, instance, index):
        instance.part = _text(self.lib.inp_CAPI_Model_InstancePart(self.handle, index))
        rotation = (ctypes.c_double * 9)()
        translation = (ctypes.c_double * 3)()
        self.lib.inp_CAPI_Model_InstanceTransform(self.handle, index, ctypes.addressof(rotation),
                                                  ctypes.addressof(translation))
        instance.rotation = self.arrays.square(list(rotation))
        instance.translation = self.arrays.vector(list(translation))

    def read_sets_and_surfaces(self, level, kind, index):
        level.node_sets = self.sets(kind, index, capi.NODE_SET)
        level.element_sets = self.sets(kind, index, capi.ELEMENT_SET)
        level.surfaces = {}
        for surface in range(self.lib.inp_CAPI_Model_SurfaceCount(self.handle, kind, index)):
            name = _text(self.lib.inp_CAPI_Model_SurfaceName(self.handle, kind, index, surface))
            _, piece = self.surface_piece(kind, index, surface, 0)
            level.surfaces[name] = piece

    def nodes(self, kind, index):
        count = self.lib.inp_CAPI_Model_NodeCount(self.handle, kind, index)
        labels = self.arrays.ints(count)
        coordinates = self.arrays.doubles(count, 3)
        if count:
            self.lib.inp_CAPI_Model_Nodes(self.handle, kind, index, self.arrays.address(labels),
                                          self.arrays.address(coordinates))
        return Nodes(labels, coordinates)

    def elements(self, kind, index):
        groups = {}
        for group in range(self.lib.inp_CAPI_Model_ElementTypeCount(self.handle, kind, index)):
            name = _text(self.lib.inp_CAPI_Model_ElementTypeName(self.handle, kind, index, group))
            width = ctypes.c_int(0)
            count = self.lib.inp_CAPI_Model_ElementCount(self.handle, kind, index, group,
                                                         ctypes.byref(width))
            labels = self.arrays.ints(count)
            connectivity = self.arrays.ints(count, width.value)
            if count and width.value:
                self.lib.inp_CAPI_Model_Elements(self.handle, kind, index, group,
                                                 self.arrays.address(labels),
                                                 self.arrays.address(connectivity))
            groups[name] = Elements(name, width.value, labels, connectivity)
        return groups

    def set_members(self, kind, index, set_kind, set_index, with_owners=False):
        """The ids of a set and, when asked, the instance of each."""
        size = self.lib.inp_CAPI_Model_SetSize(self.handle, kind, index, set_kind, set_index)
        ids = self.arrays.ints(size)
        owners = self.arrays.ints(size) if with_owners else None
        if size:
            self.lib.inp_CAPI_Model_SetMembers(self.handle, kind, index, set_kind, set_index,
                                               self.arrays.address(ids),
                                               self.arrays.address(owners))
        return ids, owners

    def set_names(self, kind, index, set_kind):
        count = self.lib.inp_CAPI_Model_SetCount(self.handle, kind, index, set_kind)
        return [_text(self.lib.inp_CAPI_Model_SetName(self.handle, kind, index, set_kind, i))
                for i in range(count)]

    def sets(self, kind, index, set_kind):
        return {name: self.set_members(kind, index, set_kind, i)[0]
                for i, name in enumerate(self.set_names(kind, index, set_kind))}

    def grouped(self, ids, keys):
        """The ids by key, each group in the order given: with NumPy one
        selection per key rather than a loop over the ids."""
        if self.arrays.use_numpy:
            return {int(key): ids[keys == key] for key in numpy.unique(keys)}
        groups = {}
        for member, key in zip(ids, keys):
            groups.setdefault(key, array.array("i")).append(member)
        return groups

    def split_by_instance(self, ids, owners):
        """The own ids (owner -1), and the rest by instance name."""
        groups = self.grouped(ids, owners)
        own = groups.pop(-1, self.arrays.ints(0))
        return own, {self.instance_names[owner]: members for owner, members in groups.items()}

    def assembly_sets(self, set_kind):
        sets = {}
        for i, name in enumerate(self.set_names(capi.ASSEMBLY, 0, set_kind)):
            ids, owners = self.set_members(capi.ASSEMBLY, 0, set_kind, i, with_owners=True)
            sets[name] = AssemblySet(*self.split_by_instance(ids, owners))
        return sets

    def surface_piece(self, kind, index, surface, piece):
        owner, piece_type, size = ctypes.c_int(0), ctypes.c_int(0), ctypes.c_int64(0)
        self.lib.inp_CAPI_Model_SurfacePiece(self.handle, kind, index, surface, piece,
                                             ctypes.byref(owner), ctypes.byref(piece_type),
                                             ctypes.byref(size))
        count = size.value
        ids, faces, areas = self.arrays.ints(count), self.arrays.ints(count), self.arrays.doubles(count)
        if count:
            self.lib.inp_CAPI_Model_SurfaceMembers(self.handle, kind, index, surface, piece,
                                                   self.arrays.address(ids),
                                                   self.arrays.address(faces),
                                                   self.arrays.address(areas))
        surface_type = _SURFACE_TYPES[piece_type.value]
        if surface_type == "element":
            by_face = {self.faces[face]: members
                       for face, members in self.grouped(ids, faces).items()}
            return owner.value, Surface("element", faces=by_face)
        if surface_type == "node":
            return owner.value, Surface("node", nodes=ids, areas=areas)
        return owner.value, Surface("analytical")

    def assembly_surfaces(self):
        surfaces = {}
        for surface in range(self.lib.inp_CAPI_Model_SurfaceCount(self.handle, capi.ASSEMBLY, 0)):
            name = _text(self.lib.inp_CAPI_Model_SurfaceName(self.handle, capi.ASSEMBLY, 0,
                                                             surface))
            pieces = self.lib.inp_CAPI_Model_SurfacePieceCount(self.handle, capi.ASSEMBLY, 0,
                                                               surface)
            _, own = self.surface_piece(capi.ASSEMBLY, 0, surface, 0)
            instances = {}
            for piece in range(1, pieces):
                owner, part = self.surface_piece(capi.ASSEMBLY, 0, surface, piece)
                instances[self.instance_names[owner]] = part
            surfaces[name] = AssemblySurface(own.nodes, own.areas, instances)
        return surfaces


def read(library, file_name, include_dir, use_numpy):
    """Runs the deck through the library's road and reads its model."""
    capi.declare(library)
    handle = library.inp_CAPI_Model_New()
    if not handle:
        raise MemoryError("fedeck: out of memory for a model")
    model = Model()
    model.uses_numpy = use_numpy

    def collect(_context, severity, text, file, line, keyword):
        model.diagnostics.append(
            Diagnostic(_SEVERITIES.get(severity, "error"), _text(text), _text(file), line,
                       _text(keyword)))

    callback = capi.Diagnostic(collect)
    try:
        status = library.inp_CAPI_Model_Read(handle, file_name, include_dir, callback, None)
        if status == capi.UNREADABLE:
            raise OSError("fedeck: cannot read deck: %s" % file_name.decode("utf-8", "replace"))
        if status in (capi.MISUSE, capi.FAILED):
            raise RuntimeError("fedeck: the library failed to read %s (status %d)"
                               % (file_name.decode("utf-8", "replace"), status))
        model.has_errors = status == capi.ERRORS
        ModelReader(library, handle, use_numpy).read(model)
    finally:
        library.inp_CAPI_Model_Free(handle)
    return model
