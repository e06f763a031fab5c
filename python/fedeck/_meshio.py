"""The assembled model as a meshio.Mesh: what Model.to_meshio returns."""

import ctypes

from ._data import numpy
from . import _model_capi as capi


def _cell_of(library, element_type, cache):
    """(meshio cell name, node positions) of an element type, or None."""
    if element_type not in cache:
        count = ctypes.c_int(0)
        order = (ctypes.c_int * 20)()
        name = ctypes.c_char_p()
        vtk = library.inp_CAPI_VtkCell(element_type.encode(), ctypes.byref(count), order,
                                       ctypes.byref(name))
        if vtk == 0:
            cache[element_type] = None
        else:
            cell = name.value.decode()
            positions = list(order[:count.value])
            # meshio keeps the six-node wedge in the element library's own
            # order and turns it into VTK's when it writes a VTK file.
            if cell == "wedge":
                positions = list(range(6))
            cache[element_type] = (cell, positions)
    return cache[element_type]


class _Level:
    """One level of the assembled mesh: its labels (ascending) and the index
    of its first point."""

    def __init__(self, nodes, first_point):
        self.labels = numpy.asarray(nodes.labels, dtype=numpy.int64)
        self.first_point = first_point

    def points_of(self, labels):
        """Point indices of node labels; -1 where the level lacks the label."""
        labels = numpy.asarray(labels, dtype=numpy.int64)
        if len(self.labels) == 0:
            return numpy.full(labels.shape, -1, dtype=numpy.int64)
        at = numpy.minimum(numpy.searchsorted(self.labels, labels), len(self.labels) - 1)
        return numpy.where(self.labels[at] == labels, at + self.first_point, -1)


def to_meshio(model):
    try:
        import meshio
    except ImportError as error:
        raise ImportError("Model.to_meshio needs meshio (pip install meshio, or Debian's "
                          "python3-meshio)") from error
    from . import _loaded_library

    library = capi.declare(_loaded_library())
    levels = [("", -1, model.assembly)]
    levels += [(name, index, instance)
               for index, (name, instance) in enumerate(sorted(model.instances.items()))]

    points, node_labels, point_instances, by_level = [], [], [], {}
    first = 0
    for name, index, level in levels:
        coordinates = numpy.asarray(level.nodes.coordinates, dtype=numpy.float64).reshape(-1, 3)
        points.append(coordinates)
        node_labels.append(numpy.asarray(level.nodes.labels, dtype=numpy.int32))
        point_instances.append(numpy.full(len(coordinates), index, dtype=numpy.int32))
        by_level[name] = _Level(level.nodes, first)
        first += len(coordinates)

    cells, element_labels, cell_instances, blocks = [], [], [], []
    cache = {}
    for name, index, level in levels:
        for element_type, elements in sorted(level.elements.items()):
            cell = _cell_of(library, element_type, cache)
            if cell is None or len(elements) == 0:
                continue
            cell_name, positions = cell
            connectivity = numpy.asarray(elements.connectivity, dtype=numpy.int64).reshape(
                len(elements), -1)[:, positions]
            indices = by_level[name].points_of(connectivity)
            drawn = (indices >= 0).all(axis=1)
            cells.append(meshio.CellBlock(cell_name, indices[drawn]))
            labels = numpy.asarray(elements.labels, dtype=numpy.int32)[drawn]
            element_labels.append(labels)
            cell_instances.append(numpy.full(len(labels), index, dtype=numpy.int32))
            blocks.append((name, labels))

    point_sets, cell_sets = {}, {}
    for set_name, members in model.assembly.node_sets.items():
        point_sets[set_name] = _points_of_set(by_level, members)
    for set_name, members in model.assembly.element_sets.items():
        cell_sets[set_name] = _cells_of_set(blocks, members)
    for name, instance in sorted(model.instances.items()):
        for set_name, ids in instance.node_sets.items():
            point_sets["%s.%s" % (name, set_name)] = by_level[name].points_of(ids)
        for set_name, ids in instance.element_sets.items():
            cell_sets["%s.%s" % (name, set_name)] = [
                _select(labels, ids if block == name else ()) for block, labels in blocks]

    return meshio.Mesh(
        numpy.concatenate(points) if points else numpy.zeros((0, 3)),
        cells,
        point_data={"node_label": numpy.concatenate(node_labels),
                    "instance": numpy.concatenate(point_instances)},
        cell_data={"element_label": element_labels, "instance": cell_instances},
        point_sets={name: indices[indices >= 0] for name, indices in point_sets.items()},
        cell_sets=cell_sets,
    )


def _points_of_set(by_level, members):
    parts = [by_level[""].points_of(members.ids)]
    parts += [by_level[name].points_of(ids) for name, ids in members.instances.items()
              if name in by_level]
    return numpy.unique(numpy.concatenate(parts))


def _select(labels, ids):
    """Row indices of the block whose labels are among `ids`."""
    return numpy.nonzero(numpy.isin(labels, numpy.asarray(ids, dtype=numpy.int32)))[0]


def _cells_of_set(blocks, members):
    return [_select(labels, members.ids if block == "" else members.instances.get(block, ()))
            for block, labels in blocks]
