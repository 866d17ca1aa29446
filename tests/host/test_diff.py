"""`kyr diff`: what it prints, and its exit codes."""

import json
import unittest

from support import NO_MODEL, CommandTest, model_text

EQUAL, DIFFERENT, TROUBLE = 0, 1, 2

OLD = ('<packagedElement xmi:type="uml:Package" xmi:id="p" name="Sales">'
       '<packagedElement xmi:type="uml:Class" xmi:id="c" name="Order">'
       '<ownedAttribute xmi:type="uml:Property" xmi:id="a" name="number"/></packagedElement>'
       '<packagedElement xmi:type="uml:Class" xmi:id="d" name="Draft">'
       '<ownedAttribute xmi:type="uml:Property" xmi:id="b" name="text"/></packagedElement></packagedElement>')
NEW = ('<packagedElement xmi:type="uml:Package" xmi:id="p" name="Sales">'
       '<packagedElement xmi:type="uml:Package" xmi:id="q" name="Inner">'
       '<packagedElement xmi:type="uml:Class" xmi:id="c" name="Purchase">'
       '<ownedAttribute xmi:type="uml:Property" xmi:id="a" name="number" isDerived="true"/></packagedElement>'
       '</packagedElement></packagedElement>')


class Diff(CommandTest):
    def setUp(self):
        super().setUp()
        for name, content in (("old", OLD), ("new", NEW)):
            self.write(f"{name}.xmi", model_text(content=content))
            self.assertEqual(self.kyr("import", f"{name}.xmi").code, 0)

    def test_equal_models(self):
        self.kyr("import", "old.xmi", "-o", "again.json", "--modification-time", "2030-01-01")
        result = self.kyr("diff", "old.json", "again.json")
        self.assertEqual((result.code, result.output, result.errors), (EQUAL, "The models are equal\n", ""))
        result = self.kyr("diff", "old.json", "again.json", "--json")
        self.assertEqual(result.code, EQUAL)
        self.assertEqual(json.loads(result.output), {"old": "old.json", "new": "again.json", "equal": True,
                                                     "removed": [], "added": [], "renamed": [], "moved": [],
                                                     "changed": []})

    def test_differences_as_lines(self):
        result = self.kyr("diff", "old.json", "new.json")
        self.assertEqual((result.code, result.errors), (DIFFERENT, ""))
        self.assertEqual(result.output, """removed class Sales/Draft (objects inside: 1)
added package Sales/Inner
renamed class Sales/Inner/Purchase: 'Order' -> 'Purchase'
moved class Sales/Inner/Purchase: 'Sales' -> 'Sales/Inner'
changed attribute Sales/Inner/Purchase/number
  isDerived: no -> yes
1 removed, 1 added, 1 renamed, 1 moved, 1 changed
""")

    def test_differences_as_json(self):
        result = self.kyr("diff", "old.json", "new.json", "--json")
        self.assertEqual(result.code, DIFFERENT)
        report = json.loads(result.output)
        self.assertFalse(report["equal"])
        self.assertEqual(report["removed"], [{"kind": "class", "path": "Sales/Draft", "sourceId": "d", "holds": 1}])
        self.assertEqual(report["added"], [{"kind": "package", "path": "Sales/Inner", "sourceId": "q", "holds": 0}])
        pair = {"kind": "class", "path": "Sales/Inner/Purchase", "sourceId": "c", "oldPath": "Sales/Order"}
        self.assertEqual((report["renamed"], report["moved"]), ([pair], [pair]))
        self.assertEqual(report["changed"], [
            {"kind": "attribute", "path": "Sales/Inner/Purchase/number", "sourceId": "a",
             "fields": [{"field": "isDerived", "old": False, "new": True}]}])

    def test_values_of_every_kind_in_both_forms(self):
        template = ('<packagedElement xmi:type="uml:DataType" xmi:id="s" name="Small"/>'
                    '<packagedElement xmi:type="uml:DataType" xmi:id="l" name="Large"/>'
                    '<packagedElement xmi:type="uml:Class" xmi:id="c" name="C">'
                    '<ownedAttribute xmi:type="uml:Property" xmi:id="a" name="n" {}</ownedAttribute></packagedElement>')
        for name, rest in (("first", 'visibility="public" type="s">'),
                           ("second", 'visibility="private" type="l"><defaultValue xmi:type="uml:LiteralString" '
                                      'xmi:id="v" value="5"/>')):
            self.write(f"{name}.xmi", model_text(content=template.format(rest)))
            self.assertEqual(self.kyr("import", f"{name}.xmi", "-q").code, 0)
        output = self.kyr("diff", "first.json", "second.json").output
        for line in ("  visibility: 0 -> 2", "  initialValue: nothing -> '5'", "  type: 'Small' -> 'Large'"):
            self.assertIn(line, output.splitlines())
        report = json.loads(self.kyr("diff", "second.json", "first.json", "--json").output)
        change = next(change for change in report["changed"] if change["sourceId"] == "a")
        fields = {field["field"]: (field["old"], field["new"]) for field in change["fields"]}
        self.assertEqual(fields, {"visibility": (2, 0), "initialValue": ("5", None), "type": (["Large"], ["Small"])})

    def test_texts_of_files_obey_nothing_on_a_terminal(self):
        text = (self.folder / "new.json").read_text().replace('"number"', '"\\u001b[2J"')
        self.write("odd.json", text)
        result = self.kyr("diff", "new.json", "odd.json")
        self.assertIn("'\\x1b[2J'", result.output)
        self.assertNotIn("\x1b", result.output)

    def test_trouble_is_no_difference(self):
        self.write("other.json", "{}")
        self.write("shop.xmi", NO_MODEL)
        for name in ("other.json", "shop.xmi", "missing.json"):
            for arguments in (["old.json", name], [name, "old.json"]):
                self.assertFails(self.kyr("diff", *arguments), TROUBLE, name)
        self.assertFails(self.kyr("diff", "old.json"), TROUBLE, "'kyr diff --help'")


if __name__ == "__main__":
    unittest.main()
