"""`kyr info --types`: the type names of each data store."""

import json
import unittest

from support import DONE, WRONG_USAGE, CommandTest

STORES = ["ACCESS", "DB2_UDB", "DERBY", "INFORMIX", "INGRES", "INTERBASE", "MICROSOFT_SQL_SERVER", "MYSQL", "ORACLE",
          "POSTGRESQL", "SYBASE_AS_ANYWHERE", "SYBASE_SQL_SERVER", "OMG_UML_OMG_UML", "OMG_UML_OMG_UML_SEA"]


class Types(CommandTest):
    def tables(self, *arguments):
        """The data stores that the command lists as JSON."""
        result = self.kyr("info", "--types", *arguments, "--json")
        self.assertEqual((result.code, result.errors), (DONE, ""))
        return json.loads(result.output)["dataStores"]

    def test_every_store_is_listed_in_order(self):
        tables = self.tables()
        self.assertEqual([store["name"] for store in tables], STORES)
        for store in tables:
            self.assertEqual(list(store), ["name", "title", "source", "types"])
            self.assertTrue(store["title"] and store["source"])
            self.assertGreater(len(store["types"]), 20)
            for row in store["types"]:
                self.assertTrue(row["name"])
                self.assertRegex(row["dataType"], "^SQL_[A-Z_]+$")

    def test_one_store_is_the_same_as_among_all(self):
        for store in self.tables():
            self.assertEqual(self.tables(store["name"]), [store])
            self.assertEqual(self.tables(store["name"].lower()), [store])

    def test_well_known_names_stand_for_what_they_are(self):
        cases = [("ORACLE", "VARCHAR2", "SQL_VARCHAR"), ("POSTGRESQL", "jsonb", "SQL_JSON"),
                 ("MICROSOFT_SQL_SERVER", "uniqueidentifier", "SQL_GUID"), ("OMG_UML_OMG_UML", "EString", "SQL_VARCHAR"),
                 ("OMG_UML_OMG_UML_SEA", "UnlimitedNatural", "SQL_BIGINT")]
        for store, name, data_type in cases:
            with self.subTest(store=store, name=name):
                types = {row["name"].lower(): row["dataType"] for row in self.tables(store)[0]["types"]}
                self.assertEqual(types[name.lower()], data_type)

    def test_the_text_holds_what_the_json_holds_in_columns(self):
        lines = self.kyr("info", "--types").output.splitlines()
        for store in self.tables():
            at = lines.index(f"{store['name']}  {store['title']}")
            self.assertEqual(lines[at + 1], f"  from {store['source']}")
            rows = lines[at + 2:at + 2 + len(store["types"])]
            self.assertEqual([line.rsplit(None, 1) for line in rows],
                             [["  " + row["name"], row["dataType"]] for row in store["types"]])
            self.assertEqual(len({line.rindex("SQL_") for line in rows}), 1, "the codes stand below each other")
            after = at + 2 + len(rows)
            self.assertIn(lines[after:after + 1], ([], [""]), "an empty line between two stores")

    def test_the_text_of_one_store_has_no_empty_line(self):
        output = self.kyr("info", "--types", "derby").output
        self.assertTrue(output.startswith("DERBY  "))
        self.assertNotIn("\n\n", output)

    def test_an_unknown_store_is_wrong_usage_and_the_message_names_all(self):
        for arguments in (["SQLITE"], ["SQLITE", "--json"], ["ORACLE "], [""]):
            with self.subTest(arguments=arguments):
                result = self.kyr("info", "--types", *arguments)
                self.assertFails(result, WRONG_USAGE, "[KYRHOST_F0001] ")
                self.assertEqual(len(result.error_lines), 1)
                self.assertIn(f"'{arguments[0]}' is no data store; there are {', '.join(STORES)}", result.errors)


if __name__ == "__main__":
    unittest.main()
