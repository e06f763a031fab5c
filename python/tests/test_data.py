"""The data lines of a keyword: which table type each kind of content takes,
and that every table is copied out whole before the library frees it."""

import array
import unittest

from fedeck._data import numpy

from .support import DeckTestCase


class NumericTables(DeckTestCase):
    def test_all_integers_make_a_flat_int_array(self):
        data = self.data_of("NSET", """
            *NSET, NSET=ROOT
            1, 2, 3
            -4, 5, 123456789
            """)
        self.assertEqual((data.kind, data.shape, data.int_first_column), ("int", (2, 3), False))
        self.assertIsInstance(data.values, array.array)
        self.assertEqual(data.values.typecode, "i")
        self.assertEqual(data.values.tolist(), [1, 2, 3, -4, 5, 123456789])

    def test_integer_labels_with_reals_make_a_double_table_with_integer_first_column(self):
        data = self.data_of("AMPLITUDE", """
            *AMPLITUDE, NAME=STEPS
            1, 2.5
            3, 4
            """)
        self.assertEqual((data.kind, data.shape, data.int_first_column), ("float", (2, 2), True))
        self.assertEqual(data.values.typecode, "d")
        self.assertEqual(data.values.tolist(), [1.0, 2.5, 3.0, 4.0])

    def test_reals_throughout_make_a_plain_double_table(self):
        data = self.data_of("AMPLITUDE", """
            *AMPLITUDE, NAME=RAMP
            0.0, 0.0, 1.5, 1.0
            """)
        self.assertEqual((data.kind, data.shape, data.int_first_column), ("float", (1, 4), False))
        self.assertEqual(data.values.tolist(), [0.0, 0.0, 1.5, 1.0])

    def test_rows_and_columns_keep_their_places_in_a_large_node_table(self):
        lines = "\n".join("%d, %d.5, %d., -%d.25" % (n, n, 2 * n, n) for n in range(1, 3001))
        data = self.data_of("NODE", "*NODE\n" + lines + "\n")
        # Node rows are completed to seven columns by the library.
        self.assertEqual((data.shape, data.int_first_column), ((3000, 7), True))
        self.assertEqual(len(data.values), 21000)
        self.assertEqual(data[2999].tolist(), [3000.0, 3000.5, 6000.0, -3000.25, 0.0, 0.0, 0.0])
        self.assertEqual(data[1234, 2], 2470.0)
        self.assertEqual(data[-1, 0], 3000.0)
        self.assertEqual(data.tolist()[1], [2.0, 2.5, 4.0, -2.25, 0.0, 0.0, 0.0])
        with self.assertRaises(IndexError):
            data.row(3000)



class ItemTables(DeckTestCase):
    def test_keyword_without_data_lines_is_an_empty_item_table(self):
        data = self.data_of("MATERIAL", "*MATERIAL, NAME=STEEL\n")
        self.assertEqual((data.kind, data.shape, data.values), ("item", (0, 0), []))
        self.assertFalse(data)
        self.assertEqual(list(data), [])

    def test_a_real_first_spoils_a_later_integer(self):
        data = self.data_of("AMPLITUDE", "*AMPLITUDE, NAME=A\n1.5, 2\n")
        self.assertEqual(data.kind, "item")
        self.assertEqual(data.values, [[1.5, 2]])
        self.assertEqual([type(value) for value in data.values[0]], [float, int])

    def test_text_in_column_zero_takes_the_item_table(self):
        data = self.data_of("NSET", "*NSET, NSET=BOTH\nLEFT, 2\nRIGHT, 3\n")
        self.assertEqual(data.kind, "item")
        self.assertEqual(data.values, [["LEFT", 2], ["RIGHT", 3]])

    def test_rows_of_different_lengths_are_padded_with_none_to_the_longest(self):
        data = self.data_of("NSET", "*NSET, NSET=A\n1, 2, 3\n4\n5, 6\n")
        self.assertEqual(data.kind, "item")
        self.assertEqual(data.shape, (3, 3))
        self.assertEqual(data.values, [[1, 2, 3], [4, None, None], [5, 6, None]])

    def test_an_empty_item_within_a_row_is_none(self):
        data = self.data_of("NSET", "*NSET, NSET=A\n1, , 3\n")
        self.assertEqual((data.kind, data.values), ("item", [[1, None, 3]]))

    def test_item_rows_index_like_the_numeric_tables(self):
        data = self.data_of("NSET", "*NSET, NSET=BOTH\nLEFT, 2\nRIGHT, 3\n")
        self.assertEqual(data[1], ["RIGHT", 3])
        self.assertEqual(data[0, 0], "LEFT")
        self.assertEqual(data.tolist(), [["LEFT", 2], ["RIGHT", 3]])

    def test_without_bulk_only_heading_and_step_keep_lines_as_text(self):
        deck = self.parse_text("""
            *HEADING
            A model, in words
            *NODE
            1, 0., 0., 0.
            *STEP, NAME=LOAD
            Pull on the free end
            *STATIC
            0.1, 1.
            *END STEP
            """, use_numpy=False, bulk=False, organize=False)
        heading = self.only_keyword(deck, "HEADING").data
        step = self.only_keyword(deck, "STEP").data
        self.assertEqual((heading.kind, heading.cols), ("item", 1))
        self.assertTrue(all(isinstance(row[0], str) for row in heading.values + step.values))
        self.assertIn("Pull", " ".join(row[0] for row in step.values))
        for name in ("NODE", "STATIC"):
            self.assertEqual(self.only_keyword(deck, name).data.shape, (0, 0), name)


@unittest.skipUnless(numpy, "NumPy is not installed")
class NumpyTables(DeckTestCase):
    def test_numeric_tables_are_two_dimensional_arrays_that_own_their_memory(self):
        deck = self.parse_text("""
            *NSET, NSET=A
            1, 2, 3
            4, 5, 6
            *AMPLITUDE, NAME=STEPS
            1, 2.5
            3, 4
            """, use_numpy=True)
        integers = self.only_keyword(deck, "NSET").data
        reals = self.only_keyword(deck, "AMPLITUDE").data
        self.assertEqual((integers.values.dtype, integers.values.shape), (numpy.int32, (2, 3)))
        self.assertEqual((reals.values.dtype, reals.values.shape), (numpy.float64, (2, 2)))
        self.assertTrue(integers.values.flags.owndata and reals.values.flags.owndata)
        self.assertEqual(integers.values.tolist(), [[1, 2, 3], [4, 5, 6]])
        self.assertEqual(reals.tolist(), [[1.0, 2.5], [3.0, 4.0]])
        self.assertEqual(integers[1, 2], 6)
        self.assertFalse(integers.is_flat)

    def test_default_uses_numpy_and_item_tables_stay_lists(self):
        deck = self.parse_text("*NSET, NSET=A\n1, 2\n*NSET, NSET=B\nLEFT\n")
        first, second = deck.find("NSET")
        self.assertIsInstance(first.data.values, numpy.ndarray)
        self.assertEqual(second.data.values, [["LEFT"]])


if __name__ == "__main__":
    unittest.main()
