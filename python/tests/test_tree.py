"""The keyword tree: names, parameters, nesting by paths, comments and the
files a deck reads."""

import os
import subprocess
import unittest

import fedeck

from .support import DeckTestCase

STEP_DECK = """
    *HEADING
    Cantilever
    ** The material, in two keywords.
    *MATERIAL, NAME=STEEL
    *ELASTIC
    210000., 0.3
    *STEP, NAME=PULL, NLGEOM
    *STATIC
    0.1, 1.
    *OUTPUT, FIELD
    ** Displacements only.
    *NODE OUTPUT
    U
    *END STEP
    """


class KeywordTree(DeckTestCase):
    def test_organized_deck_nests_suboptions_by_their_paths(self):
        deck = self.parse_text(STEP_DECK)
        self.assertEqual([keyword.name for keyword in deck.keywords][:3],
                         ["heading", "material", "step"])
        material, step = deck.keywords[1], deck.keywords[2]
        self.assertEqual([keyword.name for keyword in material.suboptions], ["elastic"])
        self.assertEqual([keyword.name for keyword in step.suboptions][:2], ["static", "output"])
        node_output = step.suboptions[1].suboptions[0]
        self.assertEqual(node_output.name, "nodeoutput")
        self.assertEqual(node_output.data.values, [["U"]])
        self.assertEqual(node_output.comments, (" Displacements only.",))
        self.assertEqual([keyword.name for keyword in deck.walk()][:7],
                         ["heading", "material", "elastic", "step", "static", "output",
                          "nodeoutput"])
        self.assertEqual(deck.find("NODE OUTPUT"), [node_output])

    def test_without_organizing_the_keywords_stay_flat(self):
        deck = self.parse_text(STEP_DECK, organize=False)
        names = [keyword.name for keyword in deck.keywords]
        self.assertEqual(names[:6], ["heading", "material", "elastic", "step", "static", "output"])
        self.assertTrue(all(not keyword.suboptions for keyword in deck.keywords))

    def test_parameters_become_python_values_of_their_type(self):
        deck = self.parse_text("""
            *SURFACE INTERACTION, NAME=ROUGH
            *FRICTION, SLIP TOLERANCE=0.005
            0.1
            *STEP, NAME=PULL, NLGEOM, INC=100
            *STATIC
            0.1, 1.
            *END STEP
            """)
        self.assertEqual(self.only_keyword(deck, "step").parameters,
                         {"name": "PULL", "inc": 100, "nlgeom": True})
        friction = self.only_keyword(deck, "friction").parameters
        self.assertEqual(friction, {"sliptolerance": 0.005})
        self.assertIsInstance(friction["sliptolerance"], float)
        self.assertEqual(self.only_keyword(deck, "static").parameters, {})

    def test_comments_belong_to_the_keyword_after_them(self):
        deck = self.parse_text(STEP_DECK)
        self.assertEqual(self.only_keyword(deck, "material").comments,
                         (" The material, in two keywords.",))
        self.assertEqual(self.only_keyword(deck, "elastic").comments, ())


class IncludedFiles(DeckTestCase):
    def test_included_files_are_listed_and_their_keywords_spliced_in(self):
        nodes = self.write("mesh/nodes.inp", "*NODE\n1, 0., 0., 0.\n2, 1., 0., 0.\n")
        deck = self.parse_text("""
            *INCLUDE, INPUT=%s
            *INCLUDE, INPUT=absent.inp
            *NSET, NSET=ALL
            1, 2
            """ % nodes)
        self.assertEqual([keyword.name for keyword in deck.keywords], ["node", "nset"])
        self.assertEqual(deck.keywords[0].data[1, 1], 1.0)
        self.assertEqual(deck.includes, (nodes,))
        self.assertEqual(deck.missing_includes, ("absent.inp",))

    def test_include_directory_is_searched(self):
        self.write("library/material.inp", "*MATERIAL, NAME=STEEL\n*DENSITY\n7.85e-09\n")
        deck_path = self.write("deck.inp", "*INCLUDE, INPUT=material.inp\n")
        without = fedeck.parse(deck_path)
        self.assertEqual((without.keywords, len(without.missing_includes)), ([], 1))
        found = fedeck.parse(deck_path, include_dir=os.path.join(self.directory, "library"))
        self.assertEqual([keyword.name for keyword in found.walk()], ["material", "density"])
        self.assertEqual(found.missing_includes, ())

    def test_includes_beside_the_deck_are_found_without_an_include_dir(self):
        self.write("model/material.inp", "*MATERIAL, NAME=STEEL\n*DENSITY\n7.85e-09\n")
        self.write("model/elsewhere/material.inp", "*MATERIAL, NAME=ALUMINIUM\n")
        deck_path = self.write("model/deck.inp", "*INCLUDE, INPUT=material.inp\n")
        beside = fedeck.parse(deck_path)
        self.assertEqual(beside.keywords[0].parameters, {"name": "STEEL"})
        self.assertEqual(beside.missing_includes, ())
        chosen = fedeck.parse(deck_path, include_dir=os.path.join(self.directory, "model", "elsewhere"))
        self.assertEqual(chosen.keywords[0].parameters, {"name": "ALUMINIUM"})

    @unittest.skipUnless(os.environ.get("FEDECK_CLI"), "FEDECK_CLI names no fedeck program")
    def test_data_read_from_an_encrypted_file_is_withheld(self):
        plain = self.write("plain.inp", "*NODE\n1, 0.5, 0., 0.\n*NSET, NSET=SECRET\n1\n")
        secret = os.path.join(self.directory, "secret.inp")
        subprocess.run([os.environ["FEDECK_CLI"], "encrypt", "--password", "sesame",
                        plain, secret], check=True, capture_output=True)
        deck = self.parse_text("""
            *INCLUDE, INPUT=%s, PASSWORD=sesame
            *NSET, NSET=PLAIN
            7
            """ % secret)
        self.assertEqual([keyword.name for keyword in deck.keywords], ["node", "nset", "nset"])
        self.assertEqual([keyword.data for keyword in deck.keywords[:2]], [None, None])
        self.assertEqual(deck.keywords[1].parameters, {"nset": "SECRET"})
        self.assertEqual(deck.keywords[2].data.tolist(), [[7]])
        self.assertIn(secret, deck.includes)


if __name__ == "__main__":
    unittest.main()
