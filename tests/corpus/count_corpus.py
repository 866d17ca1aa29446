#!/usr/bin/env python3
"""Imports every file of a folder and prints a Markdown table of what came of it.

The counts are those of the saved models: a row for each file, and one for all. A file that cannot be
imported has the code of the message instead. Files stand as the folder has them, so that modules that a
model refers to are found beside it; `check_corpus.py` says whether each import ends as it should.
"""

import argparse
import collections
import concurrent.futures
import json
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

from check_corpus import files_of, objects_of, run_import

CODE = re.compile(r"\bK[A-Z]+[A-Z0-9]*(?:_[A-Z0-9]+)*_F\d{4}\b")

# Column and the class whose objects it counts.
CLASSES = (
    ("packages", "KYRDesignPackage"), ("classes", "KYRClass"), ("attributes", "KYRAttribute"),
    ("operations", "KYROperation"), ("associations", "KYRAssociation"), ("generalizations", "KYRGeneralization"),
    ("realizations", "KYRRealization"), ("dependencies", "KYRDependency"), ("types", "KYRDerivedType"),
    ("class types", "KYRClassType"))
MORE = ("keys (candidate/foreign)", "schemas", "data store", "descriptions", "property values", "multiplicities",
        "diagrams", "shapes", "lines")
COLUMNS = ("exporter", *(title for title, _ in CLASSES), *MORE)


def count_model(document):
    """The columns of one saved model, as numbers and texts."""
    classes, counts = collections.Counter(), collections.Counter()
    for item in objects_of(document["model"]):
        classes[item["class"]] += 1
        counts["descriptions"] += bool(item.get("description"))
        counts["property values"] += len(item.get("propertyValues", ()))
        counts["multiplicities"] += item["class"] == "KYRAssociationRole" and bool(item.get("multiplicity"))
    row = {title: classes[name] for title, name in CLASSES}
    row.update({title: counts[title] for title in ("descriptions", "property values", "multiplicities")})
    row["exporter"] = " ".join(filter(None, (document["origins"][0].get("toolName"),
                                             document["origins"][0].get("toolVersion"))))
    row["keys (candidate/foreign)"] = (classes["KYRCandidateKey"], classes["KYRForeignKey"])
    row["schemas"] = classes["KYRDatabaseSchema"]
    row["data store"] = document.get("dataStore", "")
    row["diagrams"] = classes["KYRClassDiagram"]
    row["shapes"] = classes["KYRProjection"]
    row["lines"] = classes["KYRRelationshipProjection"]
    return row


def count_file(kyr, path, timeout):
    """The columns of one file, or the code of the message that its import ended with."""
    with tempfile.TemporaryDirectory() as folder:
        out = Path(folder, "model.json")
        try:
            result = run_import(kyr, path, out, timeout)
        except subprocess.TimeoutExpired:
            return f"no end within {timeout} s"
        if result.returncode == 0:
            return count_model(json.loads(out.read_bytes()))
    code = CODE.search(result.stderr.decode("utf-8", "replace"))
    return code.group() if code else f"exit {result.returncode}"


def total_of(rows):
    """The sums of all columns of numbers."""
    total = dict.fromkeys(COLUMNS, 0)
    total.update({"exporter": "", "data store": "", "keys (candidate/foreign)": (0, 0)})
    for row in rows:
        for title, value in row.items():
            if isinstance(value, tuple):
                total[title] = tuple(map(sum, zip(total[title], value)))
            elif isinstance(value, int):
                total[title] += value
    return total


def cell(value):
    return "/".join(map(str, value)) if isinstance(value, tuple) else str(value).replace("|", "\\|")


def print_table(folder, rows):
    print("| file | " + " | ".join(COLUMNS) + " |")
    print("|---|" + "".join("---|" if title in ("exporter", "data store") else "--:|" for title in COLUMNS))
    for path, row in rows:
        name = path if isinstance(path, str) else path.relative_to(folder).as_posix()
        cells = [row] + [""] * (len(COLUMNS) - 1) if isinstance(row, str) else [cell(row[title]) for title in COLUMNS]
        print(f"| {cell(name)} | " + " | ".join(cells) + " |")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--kyr", required=True, help="the kyr command")
    parser.add_argument("--timeout", type=float, default=300.0, help="seconds for one import")
    parser.add_argument("--jobs", type=int, default=os.cpu_count() or 1, help="imports at a time")
    parser.add_argument("folder", type=Path, help="folder with the files")
    arguments = parser.parse_args()
    files = files_of(arguments.folder)
    with concurrent.futures.ThreadPoolExecutor(max(1, arguments.jobs)) as pool:
        rows = list(pool.map(lambda path: count_file(arguments.kyr, path, arguments.timeout), files))
    imported = [row for row in rows if not isinstance(row, str)]
    print_table(arguments.folder, [*zip(files, rows), (f"{len(imported)} of {len(files)} files", total_of(imported))])
    return 0 if imported else 1


if __name__ == "__main__":
    sys.exit(main())
