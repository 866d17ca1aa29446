#!/usr/bin/env python3
"""The table of what was converted, made of golden models that were read by eye."""

import contextlib
import io
import json
import unittest
from pathlib import Path

import count_corpus

GOLDEN = Path(__file__).resolve().parents[1] / "samples" / "golden"


def row_of(name):
    return count_corpus.count_model(json.loads((GOLDEN / name).read_text(encoding="utf-8")))


class CountCorpus(unittest.TestCase):
    def test_a_row_has_every_column(self):
        self.assertEqual(sorted(row_of("plain.json")), sorted(count_corpus.COLUMNS))

    def test_a_database_model(self):
        self.assertEqual(row_of("magicdraw-database.json"), {
            "exporter": "MagicDraw UML 19.0 v3", "packages": 4, "classes": 13, "attributes": 30, "operations": 0,
            "associations": 4, "generalizations": 2, "realizations": 0, "dependencies": 0, "types": 9,
            "class types": 1, "keys (candidate/foreign)": (7, 6), "schemas": 4, "data store": "ORACLE",
            "descriptions": 9, "property values": 0, "multiplicities": 8, "diagrams": 0, "shapes": 0, "lines": 0})

    def test_documentation_and_tagged_values(self):
        row = row_of("enterprise-architect-database.json")
        self.assertEqual((row["descriptions"], row["property values"], row["data store"]), (14, 16, "ORACLE"))

    def test_the_table_ends_with_sums_and_names_the_message_of_a_failure(self):
        rows = [(Path("f/a.xmi"), row_of("magicdraw-database.json")), (Path("f/b|c.xmi"), "KBI_UML2XMI_F0008")]
        printed = io.StringIO()
        with contextlib.redirect_stdout(printed):
            count_corpus.print_table(Path("f"), [*rows, ("1 of 2 files", count_corpus.total_of([rows[0][1]]))])
        lines = printed.getvalue().splitlines()
        self.assertEqual(len({line.replace("\\|", "").count("|") for line in lines}), 1)
        self.assertTrue(lines[2].startswith("| a.xmi | MagicDraw UML 19.0 v3 | 4 | 13 | 30 |"))
        self.assertTrue(lines[3].startswith("| b\\|c.xmi | KBI_UML2XMI_F0008 |"))
        self.assertTrue(lines[4].startswith("| 1 of 2 files |  | 4 | 13 | 30 |"))
        self.assertIn("| 7/6 |", lines[4])


if __name__ == "__main__":
    unittest.main()
