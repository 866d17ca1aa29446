"""The line behind an error that says what may help."""

import json
import unittest

from support import BROKEN, DONE, FAILED, NO_MODEL, CommandTest, model_text

F0008 = "[KBI_UML2XMI_F0008] This file may not be a valid UML2 file."
CLASS = '<packagedElement xmi:type="uml:{type}" xmi:id="c" name="Order">{content}</packagedElement>'


def profile_text(content):
    """A model file whose root is a profile, in which the reader finds no model."""
    return (model_text(content=content).replace("<uml:Model ", "<uml:Profile ").replace("</uml:Model>", "</uml:Profile>"))


NORMALIZE = ("STATUS KYRHOST_S0044 The file holds a model, but is not written in the usual form; '{}' reads it "
             "all the same")
FIRST_XMI = "STATUS KYRHOST_S0045 The file is XMI 1.2, which is another language; export the model as XMI 2.1 or later"

CASES = {
    "a profile with a class": (profile_text(CLASS.format(type="Class", content="")), NORMALIZE.format("--normalize")),
    "a profile with a component only": (profile_text(CLASS.format(type="Component", content="")),
                                        NORMALIZE.format("--normalize=all")),
    "a profile with nothing in it": (profile_text(""), None),
    "no model": (NO_MODEL, None),
    "the first XMI": ('<XMI xmi.version="1.2"><XMI.content/></XMI>', FIRST_XMI),
    "what only looks like it": ('<XMI xmi:version="2.1" xmlns:xmi="x"/>', None),
}


class Hints(CommandTest):
    def test_a_hint_follows_the_error_when_it_helps(self):
        for name, (text, hint) in CASES.items():
            for command in (["import"], ["inspect"]):
                with self.subTest(name, command=command):
                    self.write("shop.xmi", text)
                    result = self.kyr(*command, "shop.xmi")
                    self.assertEqual((result.code, result.output), (FAILED, ""))
                    expected = [F0008] if hint is None else [F0008, hint]
                    self.assertEqual(result.error_lines[-len(expected):], expected)
                    self.assertEqual(result.errors.count("KYRHOST_"), len(expected) - 1)
                    self.assertEqual(self.names(), ["shop.xmi"])

    def test_what_the_hint_says_is_so(self):
        for name, option in (("a profile with a class", "--normalize"),
                             ("a profile with a component only", "--normalize=all")):
            self.write("shop.xmi", CASES[name][0])
            result = self.kyr("import", "shop.xmi", option)
            self.assertEqual(result.code, DONE, result.errors)
            self.assertIn("classes 1,", result.output)

    def test_it_is_a_message_of_its_own_as_json(self):
        self.write("shop.xmi", CASES["the first XMI"][0])
        lines = [json.loads(line) for line in self.kyr("import", "shop.xmi", "--log-format", "json").error_lines]
        self.assertEqual([line["code"] for line in lines[-2:]], ["KBI_UML2XMI_F0008", "KYRHOST_S0045"])
        self.assertEqual(lines[-1]["level"], "STATUS")

    def test_each_of_several_files_has_its_own(self):
        self.write("a.xmi", CASES["the first XMI"][0])
        self.write("b.xmi", CASES["a profile with a class"][0])
        result = self.kyr("import", "a.xmi", "b.xmi")
        codes = [line.split()[1] for line in result.error_lines if line.startswith("STATUS KYRHOST")]
        self.assertEqual(codes, ["KYRHOST_S0045", "KYRHOST_S0044"])

    def test_nobody_is_told_who_wants_quiet_or_has_asked_for_the_step(self):
        self.write("shop.xmi", CASES["a profile with nothing in it"][0])
        self.assertNotIn("KYRHOST", self.kyr("import", "shop.xmi", "--normalize").errors)
        self.write("shop.xmi", CASES["a profile with a class"][0])
        self.assertEqual(self.kyr("import", "shop.xmi", "--quiet").error_lines, [F0008])

    def test_other_errors_have_none(self):
        self.write("shop.xmi", BROKEN)
        self.assertNotIn("KYRHOST", self.kyr("import", "shop.xmi").errors)
        self.assertNotIn("KYRHOST", self.kyr("import", "gone.xmi").errors)


if __name__ == "__main__":
    unittest.main()
