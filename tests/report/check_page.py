#!/usr/bin/env python3
"""Opens pages of `kyr report` in a headless Chromium and works them as a reader would.

    check_page.py KYR SOURCE_FOLDER MODULE_FOLDER

Makes the pages: of samples, of a model that means harm, and of one with 20,000 classes. browser/check_page.mjs
then does what is to be done in them. The modules that it needs are installed into MODULE_FOLDER. Where
Chromium, node or npm are not there, or the modules cannot be had, the test says so and ends with 77: skipped. Pages
whose pictures Graphviz has laid out are looked at where it is installed.
"""

import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

SKIPPED = 77
CHROMIUMS = ("chromium", "chromium-browser", "google-chrome", "google-chrome-stable")
INSTALL_TIMEOUT = 150
CHECK_TIMEOUT = 540
CLASSES = 20000
DEPTH = 5000

HOSTILE = "</script><script>hit()</script><img src=x onerror=hit()>\"'><svg onload=hit()>"
TURNED = "user\u202etxt.exe\u2066\u200f"
LONG = "x<b>" * 250000


class Skipped(Exception):
    pass


def find_browser():
    for name in ("node", "npm"):
        if shutil.which(name) is None:
            raise Skipped(f"{name} is not installed")
    for name in CHROMIUMS:
        if shutil.which(name) is not None:
            return shutil.which(name)
    raise Skipped("Chromium is not installed")


def install_modules(source, folder):
    """As the lock file says; a folder that has them already stays as it is."""
    lock = (source / "package-lock.json").read_bytes()
    copy = folder / "package-lock.json"
    if copy.exists() and copy.read_bytes() == lock and (folder / "node_modules" / ".package-lock.json").exists():
        return
    folder.mkdir(parents=True, exist_ok=True)
    for name in ("package.json", "package-lock.json"):
        shutil.copy(source / name, folder / name)
    try:
        result = subprocess.run(["npm", "ci", "--ignore-scripts", "--no-audit", "--no-fund"], cwd=folder, text=True,
                                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                timeout=INSTALL_TIMEOUT, check=False)
    except subprocess.TimeoutExpired as error:
        raise Skipped("npm did not get the modules in time") from error
    if result.returncode != 0:
        raise Skipped(f"npm cannot get the modules: {result.stdout.strip()}")


class SavedModel:
    """A saved model on its way; objects get their ids in the order of the document at the end."""

    def __init__(self, name):
        self.model = {"class": "KYRStoreModel", "name": name}

    def write(self, path):
        head = {"format": "kyr-store-model", "version": 1, "designLevel": 1, "storeType": 3, "origins": []}
        numbers = {}
        self.number(self.model, numbers)
        path.write_text(json.dumps({**head, "model": self.resolve(self.model, numbers)}), encoding="utf-8")

    def number(self, value, numbers):
        if isinstance(value, list):
            for entry in value:
                self.number(entry, numbers)
        elif isinstance(value, dict):
            if "class" in value:
                numbers[id(value)] = len(numbers) + 1
            for entry in value.values():
                self.number(entry, numbers)

    def resolve(self, value, numbers):
        if isinstance(value, Reference):
            return numbers[id(value.target)]
        if isinstance(value, list):
            return [self.resolve(entry, numbers) for entry in value]
        if isinstance(value, dict):
            own = {"id": numbers[id(value)]} if "class" in value else {}
            return {**own, **{key: self.resolve(entry, numbers) for key, entry in value.items()}}
        return value


class Reference:
    def __init__(self, target):
        self.target = target


def hostile_model(path):
    names = [HOSTILE, TURNED, LONG, "javascript:hit()", "__proto__", "constructor", "a/b::c#d%zz%2e", "../..", "<!--<script>"]
    saved = SavedModel(HOSTILE)
    saved.model["description"] = f"<html><body onload=hit()><script>hit()</script>{HOSTILE}</body></html>"
    property_type = {"class": "KYRPropertyType", "name": HOSTILE, "elementType": "KYRClass"}
    type_ = {"class": "KYRDerivedType", "name": HOSTILE, "nativeDataType": HOSTILE,
             "typeValues": [{"class": "KYRTypeValue", "name": name} for name in names[:2]]}
    classes = []
    for name in names:
        feature = {"name": name, "description": HOSTILE}
        classes.append({
            "class": "KYRClass", "name": name, "sourceId": name[:100], "description": name,
            "propertyValues": [{"propertyType": Reference(property_type), "value": HOSTILE}],
            "notes": [{"class": "KYRNote", "noteText": HOSTILE}],
            "attributes": [{"class": "KYRAttribute", **feature, "type": Reference(type_), "initialValue": HOSTILE}],
            "operations": [{"class": "KYROperation", **feature}]})
    roles = [{"class": "KYRAssociationRole", "name": HOSTILE, "multiplicity": HOSTILE, "associatedClass": Reference(class_)}
             for class_ in classes[:2]]
    association = {"class": "KYRAssociation", "name": HOSTILE, "roles": roles}
    shapes = [{"class": "KYRProjection", "fontName": HOSTILE, "width": 200, "height": 100, "x": 100, "y": 100 + 200 * i,
               "displayFlags": 0x190001C, "subject": Reference(class_)} for i, class_ in enumerate(classes)]
    diagram = {"class": "KYRClassDiagram", "name": HOSTILE, "modelElements": [Reference(class_) for class_ in classes],
               "diagramElements": shapes}
    saved.model["propertyTypes"] = [property_type]
    saved.model["types"] = [type_]
    saved.model["designPackages"] = [{"class": "KYRDesignPackage", "name": HOSTILE, "elements": [*classes, association],
                                      "diagrams": [diagram]}]
    saved.write(path)


def large_model(path):
    saved = SavedModel("Large")
    packages = []
    for number in range(CLASSES):
        if number % 5000 == 0:
            packages.append({"class": "KYRDesignPackage", "name": f"Part{number // 5000}", "elements": []})
        packages[-1]["elements"].append({
            "class": "KYRClass", "name": f"Class{number}", "description": f"What class {number} is for.",
            "attributes": [{"class": "KYRAttribute", "name": f"field{number}x{i}"} for i in range(6)]})
    elements = packages[0]["elements"]
    for number in range(1, 5000):
        elements.append({"class": "KYRAssociation", "roles": [
            {"class": "KYRAssociationRole", "multiplicity": "0..1", "associatedClass": Reference(elements[0])},
            {"class": "KYRAssociationRole", "multiplicity": "0..*", "associatedClass": Reference(elements[number])}]})
    saved.model["designPackages"] = packages
    saved.write(path)


def tied_model(path):
    """A class with every kind of tie, to itself too, and others of which each is tied in one way."""
    saved = SavedModel("Tied")

    def association(first, second, names=("", ""), part=None, **fields):
        roles = [{"class": "KYRAssociationRole", "name": name, "multiplicity": "0..*", "associatedClass": Reference(end)}
                 for name, end in zip(names, (first, second))]
        if part is not None:
            roles[part]["isAggregate"] = True
        return {"class": "KYRAssociation", "roles": roles, **fields}

    def generalization(super_, sub):
        role = lambda class_: [{"class": "KYRGeneralizationRole", "associatedClass": Reference(class_)}]
        return {"class": "KYRGeneralization", "supertypeRoles": role(super_), "subtypeRoles": role(sub)}

    own, person, manager, firm, named, clock, payroll, long = [{"class": "KYRClass", "name": name} for name in (
        "Employee", "Person", "Manager", "Firm", "Named", "Clock", "Payroll", "ANameThatNoBoxHasRoomFor" * 9)]
    own["attributes"] = [{"class": "KYRAttribute", "name": f"field{number}"} for number in range(11)]
    relations = [
        generalization(person, own), generalization(own, manager),
        {"class": "KYRRealization", "realizationClass": Reference(named), "specificationClass": Reference(own)},
        association(own, own, ("boss", "reports")), association(firm, own, ("employer", "staff"), 1, isComposite=True),
        association(own, firm, ("", "lends to")), association(own, long, ("x", "aRoleThatNobodyCouldWriteInOneGo" * 9), 0),
        {"class": "KYRDependency", "clientClass": Reference(own), "supplierClass": Reference(clock)},
        {"class": "KYRDependency", "clientClass": Reference(payroll), "supplierClass": Reference(own)}]
    saved.model["designPackages"] = [{"class": "KYRDesignPackage", "name": "P", "elements": [
        own, person, manager, firm, named, clock, payroll, long, *relations]}]
    saved.write(path)


def deep_model(path):
    """Packages in packages, a class in the last. Written as text: the encoder would not go so deep."""
    head = '{"format":"kyr-store-model","version":1,"designLevel":1,"storeType":3,"origins":[],"model":'
    opening = "".join('{"id":%d,"class":"KYRDesignPackage","name":"P","elements":[' %
                      (number + 2) for number in range(DEPTH))
    class_ = '{"id":%d,"class":"KYRClass","name":"Bottom"}' % (DEPTH + 2)
    path.write_text(head + '{"id":1,"class":"KYRStoreModel","name":"Deep","designPackages":[' + opening + class_ +
                    "]}" * DEPTH + "]}}", encoding="utf-8")


def make_pages(kyr, source, folder):
    def run(*arguments):
        subprocess.run([kyr, *map(str, arguments)], cwd=folder, check=True, stdin=subprocess.DEVNULL,
                       stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    for name, sample in (("wine", "magicdraw-diagrams.xmi"), ("plain", "plain.xmi"), ("database", "magicdraw-database.xmi")):
        run("import", source / "samples" / sample, "-q", "-o", f"{name}.json", "--log-file", f"{name}.log")
    hostile_model(folder / "hostile.json")
    large_model(folder / "large.json")
    tied_model(folder / "tied.json")
    deep_model(folder / "deep.json")
    with open(folder / "hostile.log", "w", encoding="utf-8") as log:
        log.write(f"WARNING {HOSTILE} {HOSTILE}\n{LONG}\n{TURNED}\n")
    for name in ("wine", "database", "large", "deep", "tied"):
        run("report", f"{name}.json", "--layout", "simple")
    for name in ("plain", "hostile"):
        run("report", f"{name}.json", "--layout", "simple", "--messages", f"{name}.log")
    if shutil.which("dot") is None:
        print("Graphviz is not installed, so its pictures are not looked at: scripts/install-deps.sh graphviz")
        return
    for name in ("wine", "plain", "hostile", "large", "tied"):
        run("report", f"{name}.json", "--layout", "graphviz", "-o", f"{name}-graphviz.html")


def main(kyr, source, modules):
    source, modules = pathlib.Path(source).resolve(), pathlib.Path(modules).resolve()
    try:
        browser = find_browser()
        scripts = source / "tests" / "report" / "browser"
        install_modules(scripts, modules)
    except Skipped as reason:
        print(f"skipped: {reason}; scripts/install-deps.sh browser installs what Debian has")
        return SKIPPED
    with tempfile.TemporaryDirectory(prefix="kyr-page-") as folder:
        make_pages(os.path.abspath(kyr), source, pathlib.Path(folder))
        return subprocess.run(["node", scripts / "check_page.mjs", modules, browser, folder], check=False,
                              stdin=subprocess.DEVNULL, timeout=CHECK_TIMEOUT).returncode


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
