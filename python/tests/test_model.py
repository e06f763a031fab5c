"""fedeck.read_model against `fedeck model` on the same decks, array by
array; the array forms with and without NumPy; Model.to_meshio through
meshio's own writer and reader; and the failures."""

import array
import json
import os
import subprocess
import unittest

import fedeck
from fedeck._data import numpy

from .support import DeckTestCase

try:
    import meshio
except ImportError:
    meshio = None

FEDECK_CLI = os.environ.get("FEDECK_CLI")

# One part placed twice, the second moved and turned; elements of one type
# in two widths; sets and surfaces at every level. The C++ tests of the model
# entry read the same deck.
with open(os.path.join(os.path.dirname(os.path.abspath(__file__)), os.pardir, os.pardir, "tests",
                       "binding", "placed_brick.inp"), encoding="utf-8") as _deck:
    PARTS_DECK = _deck.read()

# A flat deck of two element families, generated nodes and sets.
FLAT_DECK = """
*HEADING
*NODE
1, 0., 0., 0.
5, 4., 0., 0.
*NGEN, NSET=EDGE
1, 5, 1
*NODE
11, 0., 1., 0.
12, 1., 1., 0.
13, 2., 1., 0.
*ELEMENT, TYPE=CPS4, ELSET=PLATE
1, 1, 2, 12, 11
2, 2, 3, 13, 12
*ELEMENT, TYPE=T2D2, ELSET=BARS
3, 3, 4
4, 4, 5
*SURFACE, NAME=LOWER, TYPE=ELEMENT
PLATE, S1
*SOLID SECTION, ELSET=PLATE, MATERIAL=STEEL
1.
*SOLID SECTION, ELSET=BARS, MATERIAL=STEEL
1.
*MATERIAL, NAME=STEEL
*ELASTIC
200000., 0.3
*STEP
*STATIC
*END STEP
"""


def as_list(values):
    """A flat list of Python numbers of a NumPy array or an array.array."""
    if hasattr(values, "tolist"):
        values = values.tolist()
    flat = []
    for value in values:
        if isinstance(value, list):
            flat.extend(value)
        else:
            flat.append(value)
    return flat


class ReadModel(DeckTestCase):

    def read(self, text, **options):
        return fedeck.read_model(self.write("deck.inp", text), **options)

    def fedeck_model(self, text):
        path = self.write("deck.inp", text)
        done = subprocess.run([FEDECK_CLI, "model", path], capture_output=True, text=True)
        return json.loads(done.stdout)

    def assert_nodes(self, nodes, rows):
        self.assertEqual(as_list(nodes.labels), [row[0] for row in rows])
        expected = [value for row in rows for value in row[1:]]
        for got, want in zip(as_list(nodes.coordinates), expected):
            self.assertAlmostEqual(got, want, places=12)
        self.assertEqual(len(as_list(nodes.coordinates)), len(expected))

    def assert_elements(self, elements, rows):
        by_type = {}
        for row in rows:
            by_type.setdefault(row[1], []).append(row)
        self.assertEqual(sorted(elements), sorted(by_type))
        for element_type, group in by_type.items():
            found = elements[element_type]
            self.assertEqual(as_list(found.labels), [row[0] for row in group])
            width = max(len(row) - 2 for row in group)
            self.assertEqual(found.width, width)
            padded = [node for row in group for node in row[2:] + [0] * (width - len(row) + 2)]
            self.assertEqual(as_list(found.connectivity), padded)

    def assert_sets(self, sets, expected):
        self.assertEqual(sorted(sets), sorted(expected))
        for name, ids in expected.items():
            self.assertEqual(as_list(sets[name]), ids, name)

    def assert_surface(self, surface, expected):
        self.assertEqual(surface.type, expected["type"])
        if expected["type"] == "element":
            self.assertEqual({face: sorted(as_list(ids)) for face, ids in surface.faces.items()},
                             expected["faces"])
        elif expected["type"] == "node":
            self.assertEqual(as_list(surface.nodes), [row[0] for row in expected["nodes"]])
            self.assertEqual(as_list(surface.areas), [row[1] for row in expected["nodes"]])

    def assert_level(self, level, expected):
        self.assert_nodes(level.nodes, expected["nodes"])
        self.assert_elements(level.elements, expected["elements"])
        self.assert_sets(level.node_sets, expected["nodeSets"])
        self.assert_sets(level.element_sets, expected["elementSets"])
        self.assertEqual(sorted(level.surfaces), sorted(expected["surfaces"]))
        for name, surface in expected["surfaces"].items():
            self.assert_surface(level.surfaces[name], surface)

    def assert_same_model(self, model, expected):
        self.assertEqual(sorted(model.parts), sorted(expected["parts"]))
        for name, part in expected["parts"].items():
            self.assert_level(model.parts[name], part)
        assembly = expected["assembly"]
        self.assertEqual(sorted(model.instances), sorted(assembly["instances"]))
        for name, instance in assembly["instances"].items():
            found = model.instances[name]
            self.assertEqual(found.part, instance["part"])
            self.assertEqual(as_list(found.rotation), as_list(instance["rotation"]))
            self.assertEqual(as_list(found.translation), instance["translation"])
            self.assert_level(found, instance)
        self.assert_nodes(model.assembly.nodes, assembly["nodes"])
        self.assert_elements(model.assembly.elements, assembly["elements"])
        for kind, sets in (("nodeSets", model.assembly.node_sets),
                           ("elementSets", model.assembly.element_sets)):
            self.assertEqual(sorted(sets), sorted(assembly[kind]))
            for name, members in assembly[kind].items():
                self.assertEqual(as_list(sets[name].ids), members["ids"])
                self.assertEqual({k: as_list(v) for k, v in sets[name].instances.items()},
                                 members["instances"])
        self.assertEqual(sorted(model.assembly.surfaces), sorted(assembly["surfaces"]))
        for name, surface in assembly["surfaces"].items():
            found = model.assembly.surfaces[name]
            self.assertEqual(as_list(found.nodes), [row[0] for row in surface["nodes"]])
            self.assertEqual(sorted(found.instances), sorted(surface["instances"]))
            for instance, piece in surface["instances"].items():
                self.assert_surface(found.instances[instance], piece)

    @unittest.skipUnless(FEDECK_CLI, "FEDECK_CLI names no fedeck program")
    def test_the_model_is_what_fedeck_model_shows(self):
        for deck in (PARTS_DECK, FLAT_DECK):
            for use_numpy in ([False, True] if numpy is not None else [False]):
                with self.subTest(deck=deck.split("\n")[2], use_numpy=use_numpy):
                    expected = self.fedeck_model(deck)
                    model = self.read(deck, use_numpy=use_numpy)
                    self.assertEqual(model.diagnostics, [])
                    self.assertFalse(model.has_errors)
                    self.assert_same_model(model, expected)

    def test_without_numpy_the_arrays_are_flat(self):
        model = self.read(PARTS_DECK, use_numpy=False)
        turned = model.instances["TURNED"]
        self.assertIsInstance(turned.nodes.coordinates, array.array)
        self.assertEqual(turned.nodes.coordinates.typecode, "d")
        self.assertEqual(len(turned.nodes.coordinates), 24)
        self.assertEqual(turned.elements["B31"].connectivity.typecode, "i")
        self.assertEqual(list(turned.elements["B31"].connectivity), [1, 2, 0, 2, 3, 4])
        # (1, 2, 0) moved by (10, 0, 0) and turned a quarter about z there.
        self.assertEqual([round(v, 12) for v in turned.nodes.coordinates[6:9]], [8.0, 1.0, 0.0])

    @unittest.skipIf(numpy is None, "NumPy is not importable")
    def test_with_numpy_the_arrays_have_their_shapes(self):
        model = self.read(PARTS_DECK)
        turned = model.instances["TURNED"]
        self.assertEqual(turned.nodes.coordinates.shape, (8, 3))
        self.assertEqual(turned.nodes.labels.dtype, numpy.int32)
        self.assertEqual(turned.elements["C3D8"].connectivity.shape, (1, 8))
        self.assertEqual(turned.rotation.shape, (3, 3))
        placed = turned.rotation @ model.parts["BRICK"].nodes.coordinates.T
        numpy.testing.assert_allclose(placed.T + turned.translation, turned.nodes.coordinates)

    def test_a_deck_with_errors_gives_its_diagnostics_and_what_was_built(self):
        model = self.read("*NODE\n1, 0, 0, 0\n*ELEMENT, TYPE=NOSUCH7\n1, 1\n")
        self.assertTrue(model.has_errors)
        errors = [d for d in model.diagnostics if d.severity != "warning"]
        self.assertTrue(errors)
        self.assertIn("NOSUCH7", errors[0].text)
        self.assertEqual((os.path.basename(errors[0].file), errors[0].line, errors[0].keyword),
                         ("deck.inp", 3, "ELEMENT"))

    def test_unreadable_decks_raise(self):
        with self.assertRaises(FileNotFoundError):
            fedeck.read_model(os.path.join(self.directory, "none.inp"))
        with self.assertRaises(IsADirectoryError):
            fedeck.read_model(self.directory)
        if numpy is None:
            with self.assertRaises(ValueError):
                fedeck.read_model(self.write("deck.inp", FLAT_DECK), use_numpy=True)


@unittest.skipIf(meshio is None or numpy is None, "meshio is not importable (Debian: python3-meshio)")
class ToMeshio(DeckTestCase):

    def test_the_assembled_model_round_trips_through_meshio(self):
        model = fedeck.read_model(self.write("deck.inp", PARTS_DECK))
        mesh = model.to_meshio()
        self.assertEqual(len(mesh.points), 17)
        self.assertEqual([block.type for block in mesh.cells],
                         ["line", "hexahedron", "line", "hexahedron"])
        # TURNED.3 is the 12th point: the assembly's node, 8 of STILL, then TURNED.
        numpy.testing.assert_allclose(mesh.points[11], [8.0, 1.0, 0.0], atol=1e-12)
        self.assertEqual(sorted(mesh.point_sets["TOPS"].tolist()), [0, 5, 6, 15])
        self.assertEqual([s.tolist() for s in mesh.cell_sets["TURNED.ALL"]], [[], [], [], [0]])
        path = os.path.join(self.directory, "model.vtu")
        meshio.write(path, mesh)
        back = meshio.read(path)
        numpy.testing.assert_allclose(back.points, mesh.points)
        self.assertEqual([(b.type, b.data.tolist()) for b in back.cells],
                         [(b.type, b.data.tolist()) for b in mesh.cells])
        self.assertEqual(back.point_data["node_label"].tolist(),
                         mesh.point_data["node_label"].tolist())

    @unittest.skipUnless(FEDECK_CLI, "FEDECK_CLI names no fedeck program")
    def test_it_matches_what_fedeck_convert_writes(self):
        deck = self.write("deck.inp", PARTS_DECK)
        written = os.path.join(self.directory, "convert.vtu")
        subprocess.run([FEDECK_CLI, "convert", deck, written], check=True, capture_output=True)
        converted = meshio.read(written)
        mesh = fedeck.read_model(deck).to_meshio()
        numpy.testing.assert_allclose(converted.points, mesh.points)
        def cells(of):
            return sorted((block.type, row) for block in of.cells for row in block.data.tolist())

        self.assertEqual(cells(converted), cells(mesh))


if __name__ == "__main__":
    unittest.main()
