"""`kyr import` into a database: how it is asked for, and what happens to what is there."""

import sqlite3
import subprocess
import unittest

from support import DONE, FAILED, KYR, NO_MODEL, SMALL, WRONG_USAGE, CommandTest, model_text, saved_objects


def class_text(name):
    return f'<packagedElement xmi:type="uml:Class" xmi:id="{name}" name="{name}"/>'


class Database(CommandTest):
    def ask(self, query, name="m.sqlite"):
        connection = sqlite3.connect(self.folder / name)
        try:
            return connection.execute(query).fetchall()
        finally:
            connection.close()

    def test_the_extension_or_the_option_asks_for_it(self):
        for arguments, name in ((["-o", "m.sqlite"], "m.sqlite"), (["-o", "m.sqlite3"], "m.sqlite3"),
                                (["-o", "any", "--format", "sqlite"], "any"),
                                (["--format", "sqlite"], "small.sqlite"), (["--append"], "small.sqlite")):
            with self.subTest(arguments=arguments):
                result = self.kyr("import", SMALL, *arguments)
                self.assertEqual(result.code, DONE, result.errors)
                self.assertIn(f"Wrote '{name}'", result.output)
                self.assertEqual(self.names(), [name])
                self.assertEqual(self.ask("PRAGMA foreign_key_check", name), [])
                (self.folder / name).unlink()
        self.kyr("import", SMALL, "-o", "m.sqlite", "--format", "json")
        self.assertTrue((self.folder / "m.sqlite").read_bytes().startswith(b"{"))

    def test_it_holds_what_json_holds_under_the_same_ids(self):
        text = self.kyr("import", SMALL, "-o", "m.json").output.splitlines()[1]
        self.assertEqual(self.kyr("import", SMALL, "-o", "m.sqlite").output.splitlines()[1], text)
        rows = self.ask("SELECT id, name, source_id FROM objects ORDER BY id")
        objects = sorted(saved_objects(self.folder / "m.json"), key=lambda item: item["id"])
        self.assertEqual(rows, [(item["id"], item.get("name"), item.get("sourceId")) for item in objects])

    def test_a_file_that_is_there_is_replaced_unless_appending(self):
        self.write("m.sqlite", "old")
        self.assertEqual(self.kyr("import", SMALL, "-o", "m.sqlite").code, DONE)
        self.write("shop.xmi", model_text("Second", class_text("A")))
        self.assertEqual(self.kyr("import", "shop.xmi", "-o", "m.sqlite", "--append").code, DONE)
        self.assertEqual(self.ask("SELECT count(*) FROM models"), [(2,)])
        self.write("shop.xmi", model_text("Third", class_text("B")))
        self.assertEqual(self.kyr("import", "shop.xmi", "-o", "m.sqlite", "--append").code, DONE)
        self.assertEqual(self.ask("SELECT name FROM models WHERE origin_path = 'shop.xmi'"), [("Third",)])
        self.assertEqual(self.ask("SELECT name FROM classes WHERE name IN ('A', 'B')"), [("B",)])

    def test_a_failed_import_leaves_the_database_alone(self):
        self.kyr("import", SMALL, "-o", "m.sqlite")
        before = (self.folder / "m.sqlite").read_bytes()
        self.write("shop.xmi", NO_MODEL)
        for arguments in ([], ["--append"]):
            self.assertEqual(self.kyr("import", "shop.xmi", "-o", "m.sqlite", *arguments).code, FAILED)
            self.assertEqual((self.folder / "m.sqlite").read_bytes(), before)
        self.assertEqual(self.names(), ["m.sqlite", "shop.xmi"])

    def test_many_imports_at_a_time_add_to_one_file(self):
        processes = []
        for number in range(6):
            self.write(f"{number}.xmi", model_text(f"M{number}", class_text("C")))
            processes.append(subprocess.Popen([KYR, "import", f"{number}.xmi", "-q", "--append", "-o", "m.sqlite"],
                                              cwd=self.folder))
        self.assertEqual([process.wait() for process in processes], [DONE] * 6)
        self.assertEqual(self.ask("SELECT name FROM models ORDER BY name"), [(f"M{n}",) for n in range(6)])
        self.assertEqual(self.ask("PRAGMA integrity_check"), [("ok",)])

    def test_only_databases_are_appended_to(self):
        for arguments in (["--append", "--format", "json"],):
            self.assertFails(self.kyr("import", SMALL, *arguments), WRONG_USAGE, "[KYRHOST_F0031] ")
        self.assertEqual(self.names(), [])


if __name__ == "__main__":
    unittest.main()
