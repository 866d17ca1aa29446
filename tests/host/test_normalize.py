"""The normalising step on the command line: the flag of import and inspect, and `kyr normalize`."""

import json
import shutil

from support import DONE, FAILED, SAMPLES, SMALL, WRONG_USAGE, CommandTest, model_text, saved_objects

TIME = ("--modification-time", "2026-01-01T00:00:00Z")
NESTED = ('<packagedElement xmi:type="uml:Model" xmi:id="n" name="N">'
          '<packagedElement xmi:type="uml:Class" xmi:id="c" name="C">'
          '<ownedAttribute xmi:type="uml:Property" xmi:id="a" name="a"/></packagedElement></packagedElement>')
COMPONENT = '<packagedElement xmi:type="uml:Component" xmi:id="k" name="K"/>'
NORMALISED = "normalised: contents of packages 1"


def ids_of(path):
    return {item.get("sourceId") for item in saved_objects(path)}


class Import(CommandTest):
    def test_with_the_flag_what_a_rule_cures_arrives(self):
        self.write("m.xmi", model_text(content=NESTED))
        self.assertEqual(self.kyr("import", "m.xmi", "-o", "without.json").code, DONE)
        result = self.kyr("import", "--normalize", "m.xmi", "-o", "with.json")
        self.assertEqual(result.code, DONE)
        self.assertNotIn("c", ids_of(self.folder / "without.json"))
        self.assertLessEqual({"n", "c", "a"}, ids_of(self.folder / "with.json"))
        self.assertEqual(result.output.splitlines()[-1], NORMALISED)

    def test_without_the_flag_the_last_line_says_what_was_lost(self):
        self.write("m.xmi", model_text(content=NESTED))
        result = self.kyr("import", "m.xmi")
        self.assertEqual(
            result.output.splitlines()[-1],
            "lost for the way the file is written (models in the model or misplaced contents of packages): "
            "classes 1, attributes 1, associations 0; '--normalize' keeps them")
        self.assertNotIn("lost", self.kyr("import", "m.xmi", "--quiet").output)

    def test_the_json_summary_has_both(self):
        self.write("m.xmi", model_text(content=NESTED))
        summary = json.loads(self.kyr("import", "m.xmi", "--log-format", "json").output)
        self.assertEqual(summary["lost"], {"classes": 1, "attributes": 1, "associations": 0,
                                           "reasons": "models in the model or misplaced contents of packages"})
        summary = json.loads(self.kyr("import", "m.xmi", "--log-format", "json", "--normalize").output)
        self.assertEqual(summary["normalized"], {"packageContents": 1})
        self.assertNotIn("lost", summary)

    def test_a_file_that_needs_no_rule_gives_the_same_bytes(self):
        for name in ("together.xmi", "plain.xmi", "rational-software-architect.emx"):
            with self.subTest(sample=name):
                without = self.kyr("import", SAMPLES / name, "-o", "without.json", *TIME)
                with_step = self.kyr("import", SAMPLES / name, "-o", "with.json", *TIME, "--normalize")
                if "nothing to change" not in with_step.output:
                    continue
                self.assertEqual(without.errors, with_step.errors)
                self.assertEqual((self.folder / "without.json").read_bytes(),
                                 (self.folder / "with.json").read_bytes())
        self.write("m.xmi", model_text(content='<packagedElement xmi:type="uml:Class" xmi:id="c" name="C"/>'))
        self.kyr("import", "m.xmi", "-o", "without.json", *TIME)
        result = self.kyr("import", "m.xmi", "-o", "with.json", *TIME, "--normalize")
        self.assertIn("normalised: nothing to change\n", result.output)
        self.assertEqual((self.folder / "without.json").read_bytes(), (self.folder / "with.json").read_bytes())

    def test_all_brings_in_what_an_import_drops_on_purpose(self):
        self.write("m.xmi", model_text(content=COMPONENT))
        for flag, arrives in (("--normalize", False), ("--normalize=usual", False), ("--normalize=all", True)):
            with self.subTest(flag=flag):
                self.assertEqual(self.kyr("import", flag, "m.xmi", "-o", "out.json").code, DONE)
                self.assertEqual("k" in ids_of(self.folder / "out.json"), arrives)
        self.assertEqual(self.kyr("import", "--normalize=some", "m.xmi").code, WRONG_USAGE)

    def test_a_tool_that_is_named_in_an_unusual_way_is_reported(self):
        text = model_text().replace("<uml:Model", '<documentation xmi:type="xmi:Documentation" exporter="T" '
                                    'exporterVersion="1"/><uml:Model')
        self.write("m.xmi", text)
        errors = self.kyr("import", "--normalize", "m.xmi").errors
        self.assertIn("S0009 This file follows T '1' conventions", errors)
        self.assertIn("WARNING KYRHOST_W0041 ", errors)

    def test_a_broken_file_fails_with_its_position(self):
        self.write("m.xmi", "<a>\n  <b></a>")
        result = self.kyr("import", "--normalize", "m.xmi")
        self.assertEqual(result.code, FAILED)
        self.assertIn("line 2, column", result.errors)


class Inspect(CommandTest):
    def test_the_report_is_of_the_file_behind_the_step(self):
        self.write("m.xmi", model_text(content=NESTED))
        result = self.kyr("inspect", "--normalize", "m.xmi")
        self.assertIn("  1  UMLPackage\n", result.output)
        self.assertEqual(result.output.splitlines()[-1], NORMALISED)
        report = json.loads(self.kyr("inspect", "--normalize", "--json", "m.xmi").output)
        self.assertEqual(report["normalized"], {"packageContents": 1})
        self.assertNotIn("normalized", json.loads(self.kyr("inspect", "--json", "m.xmi").output))

    def test_the_trace_tells_the_rules_before_the_sum(self):
        self.write("m.xmi", model_text(content=NESTED))
        self.kyr("import", "--normalize", "m.xmi", "--trace", "t.jsonl")
        lines = [json.loads(line) for line in (self.folder / "t.jsonl").read_text().splitlines()]
        self.assertEqual(lines[-2], {"normalized": {"packageContents": 1}})
        self.assertIn("elements", lines[-1])


class Normalize(CommandTest):
    def test_the_written_file_is_what_an_import_with_the_step_reads(self):
        shutil.copy(SAMPLES / "magicdraw-module.xmi", self.folder)  # one of the samples refers to it
        for sample in (SMALL, *sorted(SAMPLES.glob("*.*"))):
            with self.subTest(sample=sample.name):
                if sample.suffix == ".md":
                    continue
                self.assertEqual(self.kyr("normalize", sample, "-o", "n.xmi").code, DONE)
                self.kyr("import", "--normalize", sample, "-o", "first.json", *TIME)
                self.kyr("import", "n.xmi", "-o", "second.json", *TIME)
                first, second = (
                    (self.folder / name).read_bytes().split(b'"model":')[1] for name in ("first.json", "second.json"))
                self.assertEqual(first, second)
                again = self.kyr("normalize", "n.xmi", "-o", "again.xmi")
                self.assertIn("normalised: nothing to change\n", again.output)
                self.assertEqual((self.folder / "n.xmi").read_bytes(), (self.folder / "again.xmi").read_bytes())

    def test_it_says_what_it_has_done(self):
        self.write("m.xmi", model_text(content=NESTED + COMPONENT))
        self.assertEqual(self.kyr("normalize", "m.xmi", "-o", "n.xmi").output, f"Wrote 'n.xmi'\n{NORMALISED}\n")
        self.assertEqual(self.kyr("normalize", "m.xmi", "--all", "-o", "n.xmi").output,
                         "Wrote 'n.xmi'\nnormalised: components and nodes 1, contents of packages 1\n")

    def test_wrong_usage(self):
        self.write("m.xmi", model_text())
        self.assertEqual(self.kyr("normalize", "m.xmi").code, WRONG_USAGE)
        result = self.kyr("normalize", "m.xmi", "-o", "./m.xmi")
        self.assertEqual(result.code, WRONG_USAGE)
        self.assertIn("[KYRHOST_F0043]", result.errors)
        self.assertEqual((self.folder / "m.xmi").read_text(encoding="utf-8"), model_text())

    def test_nothing_is_written_of_a_broken_file(self):
        self.write("m.xmi", "<a><b></a>")
        self.assertEqual(self.kyr("normalize", "m.xmi", "-o", "n.xmi").code, FAILED)
        self.assertFalse((self.folder / "n.xmi").exists())
