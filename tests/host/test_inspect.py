"""`kyr inspect`: the report and the list of objects, written out in full for a small file."""

import json
import os
import pathlib
import shutil
import subprocess
import unittest

from support import BROKEN, DATA, DONE, FAILED, KYR, NO_MODEL, SAMPLES, SMALL, CommandTest, model_text

REPORT = {
    "file": str(SMALL),
    "tool": "A modelling tool",
    "toolVersion": "3.1",
    "umlVersion": "2.1",
    "xmiVersion": "2.1",
    "objects": 13,
    "made": 0,
    "classes": {"UMLClass": 3, "UMLParameter": 2, "UMLComment": 1, "UMLLiteralString": 1,
                "UMLGeneralization": 1, "UMLPackage": 1, "UMLPrimitiveType": 1, "UMLProperty": 1,
                "UMLOperation": 1, "UMLModel": 1},
    "diagrams": [],
    "references": {"resolved": 27, "unresolved": 1, "withoutId": 0, "unfitting": 0,
                   "firstMissingIds": ["nowhere"]},
    "skippedTypes": [{"type": "uml:StateMachine", "count": 2, "first": "line 20, column 7"}],
    "unknownTags": [{"tag": "oddity", "count": 1, "first": "line 24, column 7"},
                    {"tag": "tool:mark", "count": 2, "first": "line 26, column 5"}],
    "import": {"elements": 13, "converted": 9, "absorbed": 2, "lost": 2,
               "reasons": {"initial-value": 1, "description": 1, "no-id": 1, "no-return-type": 1,
                           "reference-not-found": 1, "type-unknown": 2, "tag-ignored": 3}},
}

TEXT = f"""\
File:         {SMALL}
Tool:         A modelling tool 3.1
UML version:  2.1
XMI version:  2.1
Objects:      13
  3  UMLClass
  2  UMLParameter
  1  UMLComment
  1  UMLLiteralString
  1  UMLGeneralization
  1  UMLPackage
  1  UMLPrimitiveType
  1  UMLProperty
  1  UMLOperation
  1  UMLModel
References:   27 resolved, 1 unresolved, 0 between classes that do not fit
  first ids that no element bears:
    'nowhere'
Skipped values of xmi:type: 1
  2  uml:StateMachine  first at line 20, column 7
Unknown tags: 2
  1  oddity  first at line 24, column 7
  2  tool:mark  first at line 26, column 5
Converted:    9
Absorbed:     2
  1  initial-value
  1  description
Lost:         2
  1  no-id
  1  no-return-type
"""


def property_text(number):
    return f'<ownedAttribute xmi:type="uml:Property" xmi:id="a{number}" type="gone{number}"/>'


class Report(CommandTest):
    def test_the_report_as_json(self):
        result = self.kyr("inspect", SMALL, "--json")
        self.assertEqual((result.code, result.errors), (DONE, ""))
        report = json.loads(result.output)
        self.assertEqual(report, REPORT)
        self.assertEqual(list(report["classes"]), list(REPORT["classes"]), "most frequent first")

    def test_the_report_as_text(self):
        result = self.kyr("inspect", SMALL)
        self.assertEqual((result.code, result.errors, result.output), (DONE, "", TEXT))

    def test_quick_leaves_out_what_an_import_would_make_of_it(self):
        self.assertEqual(self.kyr("inspect", SMALL, "--quick").output, TEXT[:TEXT.index("Converted:")])
        report = json.loads(self.kyr("inspect", SMALL, "--quick", "--json").output)
        self.assertEqual(report, {key: value for key, value in REPORT.items() if key != "import"})

    def test_what_an_import_would_make_of_it_is_what_its_trace_tells(self):
        for options in ((), ("--normalize",)):
            for sample in ("plain.xmi", "enterprise-architect.xmi", "magicdraw-diagrams.xmi"):
                with self.subTest(sample=sample, options=options):
                    summary = json.loads(self.kyr("import", SAMPLES / sample, "-o", "out.json", "--trace", "out.jsonl",
                                                  "--log-format", "json", *options).output)
                    del summary["trace"]["output"]
                    report = json.loads(self.kyr("inspect", SAMPLES / sample, "--json", *options).output)
                    self.assertEqual(report["import"], summary["trace"])
                    self.assertEqual(report["import"]["elements"], report["objects"])
        self.assertEqual(self.names(), ["out.json", "out.jsonl"])

    def test_without_a_plug_in_the_file_is_read_all_the_same(self):
        (self.folder / "bin").mkdir()
        alone = self.folder / "bin" / "kyr"
        alone.write_bytes(pathlib.Path(KYR).read_bytes())
        alone.chmod(0o755)
        (self.folder / "lib").mkdir()
        for library in (pathlib.Path(KYR).parent.parent / "lib").glob("libkyr.so*"):
            shutil.copy(library, self.folder / "lib")
        result = self.kyr("inspect", SMALL, program=alone)
        self.assertEqual((result.code, result.errors), (DONE, ""))
        report = TEXT[:TEXT.index("Converted:")] + "No import:    [KYRHOST_F0005] The plug-in "
        self.assertTrue(result.output.startswith(report), result.output)
        report = json.loads(self.kyr("inspect", SMALL, "--json", program=alone).output)
        self.assertEqual(list(report["import"]), ["failure"])

    def test_diagrams_are_counted_by_kind(self):
        result = self.kyr("inspect", SAMPLES / "magicdraw-diagrams.xmi")
        self.assertIn("Diagrams:     4\n  3  Class Diagram\n  1  Use Case Diagram\n", result.output)
        report = json.loads(self.kyr("inspect", SAMPLES / "magicdraw-diagrams.xmi", "--json").output)
        self.assertEqual(report["diagrams"], [{"kind": "Class Diagram", "count": 3},
                                              {"kind": "Use Case Diagram", "count": 1}])

    def test_what_the_file_does_not_tell_is_said(self):
        self.write("shop.xmi", '<uml:Model xmlns:uml="urn:nobody" xmi:id="m"/>'.replace(
            "xmi:id", 'xmlns:xmi="urn:nobody" xmi:id'))
        output = self.kyr("inspect", "shop.xmi").output
        for label in ("Tool:         ", "UML version:  ", "XMI version:  "):
            self.assertIn(label + "(not known)\n", output)

    def test_the_first_ten_missing_ids_are_listed_each_once(self):
        content = "".join(property_text(number) for number in range(25)) * 2
        self.write("shop.xmi", model_text(content=f'<packagedElement xmi:type="uml:Class" xmi:id="c">{content}'
                                                  "</packagedElement>"))
        references = json.loads(self.kyr("inspect", "shop.xmi", "--json").output)["references"]
        self.assertEqual(references["firstMissingIds"], [f"gone{number}" for number in range(10)])
        self.assertEqual(references["unresolved"], 50)

    def test_references_of_elements_without_id_are_told_apart(self):
        content = '<packagedElement xmi:type="uml:Class" name="Order" nestingPackage="m" package="m"/>'
        self.write("shop.xmi", model_text(content=content))
        references = json.loads(self.kyr("inspect", "shop.xmi", "--json").output)["references"]
        self.assertEqual((references["unresolved"], references["withoutId"]), (1, 1))
        self.assertEqual(references["firstMissingIds"], [])
        self.assertIn("1 of the unresolved are of elements that have no id", self.kyr("inspect", "shop.xmi").output)

    def test_references_between_classes_that_do_not_fit_are_told_apart(self):
        content = ('<packagedElement xmi:type="uml:Package" xmi:id="p"/>'
                   '<packagedElement xmi:type="uml:Class" xmi:id="c">'
                   '<ownedAttribute xmi:type="uml:Property" xmi:id="a" type="p"/></packagedElement>')
        self.write("shop.xmi", model_text(content=content))
        references = json.loads(self.kyr("inspect", "shop.xmi", "--json").output)["references"]
        self.assertEqual((references["unresolved"], references["unfitting"]), (0, 1))

    def test_the_text_cuts_long_lists_and_names_and_json_does_not(self):
        long_id = "x" * 1000
        content = "".join(f"<oddity{number}/>" for number in range(30)) + (
            f'<packagedElement xmi:type="uml:Class" xmi:id="c"><ownedAttribute xmi:type="uml:Property" '
            f'xmi:id="a" type="{long_id}"/></packagedElement>')
        self.write("shop.xmi", model_text(content=content))
        text = self.kyr("inspect", "shop.xmi").output
        self.assertEqual(text.count("oddity"), 20)
        self.assertIn("  and 10 more, which '--json' lists\n", text)
        self.assertIn("    '" + "x" * 120 + "...'\n", text)
        report = json.loads(self.kyr("inspect", "shop.xmi", "--json").output)
        self.assertEqual(len(report["unknownTags"]), 30)
        self.assertEqual(report["references"]["firstMissingIds"], [long_id])

    def test_nothing_is_saved(self):
        self.write("shop.xmi", SMALL.read_bytes())
        self.kyr("inspect", "shop.xmi")
        self.kyr("inspect", "shop.xmi", "--objects")
        self.assertEqual(self.names(), ["shop.xmi"])

    def test_the_encoding_can_be_given(self):
        self.write("shop.xmi", model_text(name="Caf\xe9").encode("windows-1252"))
        self.assertFails(self.kyr("inspect", "shop.xmi"), FAILED, "--encoding windows-1252")
        result = self.kyr("inspect", "shop.xmi", "--objects", "--encoding", "windows-1252")
        self.assertEqual(json.loads(result.output)["fields"]["UMLNamedElement.name"], "Café")

    def test_failures_are_those_of_an_import(self):
        os.mkfifo(self.folder / "pipe")
        self.write("no-model.xmi", NO_MODEL)
        self.write("broken.xmi", BROKEN)
        for name, message in (("no-model.xmi", "[KBI_UML2XMI_F0008] "), ("broken.xmi", "line 3, column "),
                              ("missing.xmi", "No such file"), (".", "directory"), ("pipe", "FIFO"),
                              ("/dev/null", "device")):
            for form in ([], ["--json"], ["--objects"]):
                with self.subTest(name=name, form=form):
                    self.assertFails(self.kyr("inspect", name, *form), FAILED, message)


class Objects(CommandTest):
    def test_each_object_of_a_small_file(self):
        result = self.kyr("inspect", SMALL, "--objects")
        self.assertEqual((result.code, result.errors), (DONE, ""))
        expected = (DATA / "small.objects.jsonl").read_text(encoding="utf-8").splitlines()
        for line, wanted in zip(result.output.splitlines(), expected):
            self.assertEqual(json.loads(line), json.loads(wanted))
        self.assertEqual(result.output.splitlines(), expected, "order of lines and of fields")

    def test_a_kind_object_with_number_0_is_written_and_a_missing_one_is_not(self):
        lines = [json.loads(line) for line in self.kyr("inspect", SMALL, "--objects").output.splitlines()]
        fields = {line["id"]: line["fields"] for line in lines}
        self.assertEqual(fields["total"]["UMLProperty.aggregation"], 0)
        self.assertNotIn("UMLNamedElement.visibility", fields["sum"])

    def test_names_of_fields_are_those_of_uml(self):
        fields = json.loads(self.kyr("inspect", SMALL, "--objects").output.splitlines()[4])["fields"]
        self.assertEqual(fields["UMLProperty.class"], 3)

    def test_indexes_count_the_lines_and_lead_to_objects(self):
        for sample in SAMPLES.glob("*.xmi"):
            lines = [json.loads(line) for line in self.kyr("inspect", sample, "--objects").output.splitlines()]
            self.assertEqual([line["index"] for line in lines], list(range(len(lines))))
            for line in lines:
                self.assertEqual(list(line)[:4], ["index", "class", "kind", "id"])
                owner = line["fields"].get("UMLElement.owner")
                if owner is not None:
                    self.assertIn(line["index"], lines[owner]["fields"]["UMLElement.ownedElement"])

    def test_objects_that_the_extension_made_follow_and_are_marked(self):
        lines = [json.loads(line) for line in self.kyr("inspect", SAMPLES / "magicdraw.xmi",
                                                       "--objects").output.splitlines()]
        made = [line.get("made", False) for line in lines]
        self.assertEqual(made, sorted(made), "made ones stand behind all others")
        self.assertGreater(sum(made), 0)
        self.assertEqual(sum(made), json.loads(
            self.kyr("inspect", SAMPLES / "magicdraw.xmi", "--json").output)["made"])

    def test_the_end_of_a_long_list_is_not_waited_for(self):
        content = "".join(f'<packagedElement xmi:type="uml:Class" xmi:id="c{i}" name="{"n" * 100}"/>'
                          for i in range(5000))
        path = self.write("shop.xmi", model_text(content=content))
        process = subprocess.Popen([KYR, "inspect", str(path), "--objects"], stdout=subprocess.PIPE,
                                   stderr=subprocess.PIPE)
        self.assertIn(b'"index":0', process.stdout.readline())
        process.stdout.close()
        self.assertEqual(process.stderr.read(), b"")
        process.stderr.close()
        self.assertEqual(process.wait(), DONE)


if __name__ == "__main__":
    unittest.main()
