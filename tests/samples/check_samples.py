#!/usr/bin/env python3
"""Imports every sample and compares what comes out with golden files.

For each sample: it is well-formed XML whose references resolve (the odd ones excepted), the import ends
as it should, the saved model is valid against the JSON Schema, and saved model and log are the bytes of
tests/samples/golden/<sample>.json and <sample>.log. The pictures of its class diagrams, if it has any, are
those in the folder <sample> beside them, and well-formed. `--update` writes all of these anew; review the
difference as code. The command runs in the folder of the samples with relative paths, so that the bytes do not
depend on where the tree stands.
"""

import argparse
import collections
import difflib
import json
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path
from xml.parsers import expat

HERE = Path(__file__).resolve().parent
ROOT = HERE.parent.parent
MODEL_SUFFIXES = (".xmi", ".emx", ".uml", ".uml2", ".xml")
FAILING = {"odd/no-model.xmi": "KBI_UML2XMI_F0008", "odd/truncated.xmi": "line 6, column "}
MODIFICATION_TIME = "2026-01-01T00:00:00Z"

# Tools leave the views of diagrams behind that have been deleted.
DELETED = frozenset(("_18_5_3a1c0f2_1520358410132_813853_7652",))

# Attributes that hold ids, alone or in lists. The tools write "package", "base_Class" and the like
# in their own sections; those are left out.
ID_ATTRIBUTES = frozenset((
    "xmi:idref", "type", "association", "general", "generalization", "generalizationSet", "contract",
    "supplier", "client", "memberEnd", "navigableOwnedEnd", "annotatedElement", "constrainedElement",
    "classifier", "definingFeature", "instance", "includingCase", "addition", "extendedCase", "source",
    "target", "covered", "message", "sendEvent", "receiveEvent", "signature", "signal", "operation",
    "importedPackage", "importedElement", "mergedPackage", "realizingClassifier"))

# The only part of a saved model that differs from build to build.
BUILD_TIME = re.compile(r"(10\.0\.1 - )\d{4}-\d\d-\d\d \d\d:\d\d:\d\d P[SD]T")


def samples(folder):
    """Paths of the samples, relative to their folder, in a fixed order."""
    return sorted((path.relative_to(folder).as_posix() for path in folder.rglob("*")
                   if path.is_file() and path.suffix in MODEL_SUFFIXES),
                  key=lambda name: (name.count("/"), name))


# Tool data, in which the attributes of that list mean something else.
TOOL_DATA = frozenset(("xmi:Extension", "eAnnotations", "uml:Diagram"))


class References:
    """Collects ids and what refers to them."""

    def __init__(self):
        self.ids = set(DELETED)
        self.used = []
        self.tags = []

    def start(self, tag, attributes):
        self.tags.append(tag)
        in_tool_data = not TOOL_DATA.isdisjoint(self.tags)
        for name in ("xmi:id", "ID"):
            if attributes.get(name):
                self.ids.add(attributes[name])
        for name, value in attributes.items():
            # Enterprise Architect names return parameters by ids that stand nowhere else.
            is_return = in_tool_data and value.startswith("EAID_RETURNID_")
            if name in ID_ATTRIBUTES and not is_return and (name == "xmi:idref" or not in_tool_data):
                self.used.append((tag, name, value))

    def end(self, _tag):
        self.tags.pop()

    def unresolved(self):
        return [f"<{tag} {name}='{value}'>" for tag, name, value in self.used
                if value not in self.ids and not all(part in self.ids for part in value.split())]


def read_references(path):
    """The unresolved references of a file; raises expat.ExpatError when it is not well-formed."""
    references = References()
    data = path.read_bytes()
    if b'encoding="windows-1252"' in data[:100]:
        data = data.decode("cp1252").encode("utf-8")
        parser = expat.ParserCreate("utf-8")
    else:
        parser = expat.ParserCreate()
    parser.StartElementHandler = references.start
    parser.EndElementHandler = references.end
    parser.Parse(data, True)
    return references.unresolved()


def check_text(folder, name, problems):
    """A sample is well-formed and its references resolve; the odd ones may refer to nothing."""
    try:
        unresolved = read_references(folder / name)
    except expat.ExpatError as error:
        if name != "odd/truncated.xmi":
            problems.append(f"not well-formed: {error}")
        return
    if unresolved and not name.startswith("odd/"):
        problems.append("references to nothing: " + ", ".join(unresolved[:5]))


def steady(text, out):
    """The text without what differs from run to run: the build time and the place of the output."""
    return BUILD_TIME.sub(r"\1BUILD TIME", text.replace(str(out), "OUT"))


def run_import(kyr, folder, name, out):
    result = subprocess.run(
        [kyr, "import", name, "-o", str(out), "--modification-time", MODIFICATION_TIME,
         "--log-format", "json"],
        cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=120, check=False)
    return (result.returncode, result.stderr.decode("utf-8", "replace"),
            result.stdout.decode("utf-8", "replace"))


def count_objects(saved):
    """How many objects of each class a saved model holds."""
    counts = collections.Counter()
    stack = [saved]
    while stack:
        value = stack.pop()
        if isinstance(value, dict):
            counts[value.get("class")] += 1
            stack.extend(value.values())
        elif isinstance(value, list):
            stack.extend(value)
    return counts


def check_summary(summary, saved, problems):
    """The closing summary counts what was saved."""
    told, counts = json.loads(summary), count_objects(saved)
    pairs = (("packages", told["packages"], counts["KYRDesignPackage"]),
             ("classes and interfaces", told["classes"] + told["interfaces"], counts["KYRClass"]),
             ("attributes", told["attributes"], counts["KYRAttribute"]),
             ("operations", told["operations"], counts["KYROperation"]),
             ("arguments", told["arguments"], counts["KYRArgument"]),
             ("diagrams", told["diagrams"], counts["KYRClassDiagram"]))
    problems += [f"the summary tells {said} {what}, saved are {real}"
                 for what, said, real in pairs if said != real]


def compare(golden, text, update, problems):
    """Compares a text with a golden file, or writes the file."""
    if update:
        golden.parent.mkdir(parents=True, exist_ok=True)
        golden.write_text(text, encoding="utf-8", newline="\n")
        return
    if not golden.is_file():
        problems.append(f"no golden file {golden}; --update writes it")
        return
    wanted = golden.read_text(encoding="utf-8")
    if wanted != text:
        difference = difflib.unified_diff(wanted.splitlines(), text.splitlines(), str(golden),
                                          "now", lineterm="", n=1)
        problems.append("\n".join(list(difference)[:40]))


def schema_validator(path):
    """A function that lists what is wrong with a saved model."""
    import jsonschema  # Only Debian's own interpreter has it everywhere we build.

    schema = json.loads(path.read_text(encoding="utf-8"))
    kind = jsonschema.validators.validator_for(schema)
    kind.check_schema(schema)
    validator = kind(schema)

    def problems_of(model):
        errors = sorted(validator.iter_errors(model), key=lambda error: list(map(str, error.path)))
        return ["/".join(map(str, error.path)) + ": " + error.message[:300] for error in errors[:5]]

    return problems_of


def check_pictures(kyr, model, golden, update, problems):
    """The pictures of the class diagrams of a saved model, which come in files of their names."""
    with tempfile.TemporaryDirectory() as folder:
        result = subprocess.run([kyr, "diagram", str(model), "-o", folder], stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, timeout=120, check=False)
        if result.returncode != 0:
            problems.append("kyr diagram: " + result.stderr.decode("utf-8", "replace").strip()[-300:])
        drawn = {path.name: path.read_text(encoding="utf-8") for path in Path(folder).iterdir()}
    known = {path.name for path in golden.glob("*.svg")}
    for name in sorted(known - set(drawn)):
        if update:
            (golden / name).unlink()
        else:
            problems.append(f"{name} was not drawn")
    for name, text in sorted(drawn.items()):
        try:
            expat.ParserCreate().Parse(text.encode("utf-8"), True)
        except expat.ExpatError as error:
            problems.append(f"{name} is not well-formed: {error}")
        compare(golden / name, text, update, problems)


def check_sample(name, arguments, problems_of_model):
    """The problems of one sample."""
    problems = []
    check_text(arguments.samples, name, problems)
    golden = arguments.golden / name
    with tempfile.TemporaryDirectory() as folder:
        out = Path(folder, "model.json")
        code, log, summary = run_import(arguments.kyr, arguments.samples, name, out)
        compare(golden.with_suffix(".log"), steady(log, out), arguments.update, problems)
        if name in FAILING:
            if code != 1:
                problems.append(f"exit {code} instead of 1")
            if FAILING[name] not in log:
                problems.append(f"'{FAILING[name]}' missing in: {log.strip()[-300:]}")
            if out.exists():
                problems.append("an output file was left after a failure")
            return problems
        if code != 0 or not out.exists():
            problems.append(f"exit {code} instead of 0: {log.strip()[-300:]}")
            return problems
        saved = out.read_text(encoding="utf-8")
        model = json.loads(saved)
        problems += ["schema: " + text for text in problems_of_model(model)]
        check_summary(summary, model, problems)
        compare(golden.with_suffix(".json"), steady(saved, out), arguments.update, problems)
        if count_objects(model)["KYRClassDiagram"] or golden.with_suffix("").is_dir():
            check_pictures(arguments.kyr, out, golden.with_suffix(""), arguments.update, problems)
    return problems


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--kyr", type=os.path.abspath,
                        help="the kyr command; without it only the XML of the samples is checked")
    parser.add_argument("--samples", type=Path, default=ROOT / "samples")
    parser.add_argument("--golden", type=Path, default=HERE / "golden")
    parser.add_argument("--schema", type=Path, default=ROOT / "docs" / "saved-model.schema.json")
    parser.add_argument("--update", action="store_true", help="write the golden files anew")
    parser.add_argument("names", nargs="*", help="samples to check, relative to the folder (default: all)")
    arguments = parser.parse_args()
    if arguments.kyr:
        arguments.kyr = str(Path(arguments.kyr).absolute())
    names = arguments.names or samples(arguments.samples)
    problems_of_model = schema_validator(arguments.schema) if arguments.kyr else None
    failed = 0
    for name in names:
        if arguments.kyr:
            problems = check_sample(name, arguments, problems_of_model)
        else:
            problems = []
            check_text(arguments.samples, name, problems)
        failed += bool(problems)
        print(("FAILED " if problems else "ok     ") + name)
        for problem in problems:
            print("    " + problem.replace("\n", "\n    "))
    print(f"{len(names)} samples, {failed} failed")
    return 1 if failed or not names else 0


if __name__ == "__main__":
    sys.exit(main())
