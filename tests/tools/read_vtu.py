"""Reads a .vtu file with meshio and prints what it found as one JSON object.

The C++ tests of `fedeck convert` hand the file to this independent reader
and compare its view with the model. Exit status 77 when meshio cannot be
imported, so that the caller can skip rather than fail.
"""
import json
import sys

try:
    import meshio
    import meshio._mesh
except ImportError:
    sys.exit(77)

# Some releases of meshio know the 15-node wedge's VTK number but not its
# dimension, and fail on reading one.
meshio._mesh.topological_dimension.setdefault("wedge15", 3)


def as_list(array):
    return array.tolist() if hasattr(array, "tolist") else list(array)


def main(path):
    mesh = meshio.read(path)
    result = {
        "points": as_list(mesh.points),
        "cells": [{"type": block.type, "data": as_list(block.data)} for block in mesh.cells],
        "point_data": {name: as_list(values) for name, values in mesh.point_data.items()},
        # One list per array, the blocks joined in file order.
        "cell_data": {
            name: [value for block in blocks for value in as_list(block)]
            for name, blocks in mesh.cell_data.items()
        },
        "field_data": {
            name: bytes(int(b) for b in as_list(values)).decode() for name, values in mesh.field_data.items()
        },
    }
    json.dump(result, sys.stdout)


if __name__ == "__main__":
    main(sys.argv[1])
