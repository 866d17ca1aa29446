#!/usr/bin/env python3
"""Imports every file of a folder with --trace and checks what the trace tells.

For each file that can be imported:

- converted, absorbed and lost elements are as many as the reader has made, by `kyr inspect`;
- every loss has a reason, and every line number lies in the file;
- an element that is told as lost has no object of its id in the saved model, and one that is not told at
  all has one: the ids of the model and those of the trace are compared with those of the reader;
- what an element was absorbed in is there, by class and path;
- model and messages are the same as without a trace, byte for byte;
- `kyr inspect` counts the same for the same reasons.

    check_trace.py --kyr KYR FOLDER
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

from check_corpus import files_of, objects_of

TIME = ("--modification-time", "2026-01-01T00:00:00Z")


def run(*command, timeout):
    return subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                          timeout=timeout, check=False)


def ends_with_name(path, names):
    """Whether the last name of a path is one of those; names may hold slashes themselves."""
    pieces = path.split("/")
    return any("/".join(pieces[at:]) in names for at in range(len(pieces)))


def problems_of(records, totals, elements, model, line_count):
    """What does not agree between a trace, the elements of the reader and the saved model."""
    told = [record for record in records if record["outcome"] != "noted"]
    by_outcome = collections.Counter(record["outcome"] for record in told)
    if totals["elements"] != len(elements):
        yield f"{totals['elements']} elements told, {len(elements)} read"
    if totals["converted"] + totals["absorbed"] + totals["lost"] != totals["elements"]:
        yield f"the sum is wrong: {totals}"
    if (by_outcome["absorbed"], by_outcome["lost"]) != (totals["absorbed"], totals["lost"]):
        yield f"{dict(by_outcome)} records, but {totals}"
    for record in records:
        if record["reason"] == "unexplained":
            yield f"unexplained: {record}"
        if not 1 <= record.get("line", 1) <= line_count:
            yield f"no such line: {record}"
    ids = collections.Counter(element["id"] for element in elements)
    saved = collections.Counter()
    names = collections.defaultdict(set)
    for item in objects_of(model):
        saved[item.get("sourceId", "")] += 1
        names[item["class"]].add(item.get("name", ""))
    told_ids = collections.Counter(record.get("id", "") for record in told)
    for record in told:
        if record["outcome"] == "absorbed" and not ends_with_name(record["path"], names[record["object"]]):
            yield f"absorbed in nothing: {record}"
        known = record.get("id", "")
        if known and record["outcome"] == "lost" and ids[known] == 1 and saved[known]:
            yield f"lost, but saved: {record}"
    for element in elements:
        if element["id"] and ids[element["id"]] == 1 and not told_ids[element["id"]] and not saved[element["id"]]:
            yield f"converted, but not saved: {element['class']} {element['id']}"


def inspection_problems(records, inspected):
    """What does not agree between a trace and what `kyr inspect` says of an import."""
    reasons = collections.Counter()
    for record in records[:-1]:
        reasons[record["reason"]] += record.get("count", 1)
    if inspected != {**records[-1], "reasons": dict(reasons)}:
        yield f"the inspection counts {inspected}, the trace {records[-1]} and {dict(reasons)}"


def check_file(kyr, path, timeout):
    """The problems of one file, or None when it cannot be imported; and its totals."""
    with tempfile.TemporaryDirectory() as folder:
        plain, traced = Path(folder, "plain.json"), Path(folder, "traced.json")
        trace = Path(folder, "trace.jsonl")
        first = run(kyr, "import", path, "-o", plain, *TIME, timeout=timeout)
        second = run(kyr, "import", path, "-o", traced, "--trace", trace, *TIME, timeout=timeout)
        if first.returncode != second.returncode or first.stderr != second.stderr:
            return [f"ends otherwise with a trace: {second.stderr[-300:]}"], None
        if first.returncode != 0:
            return (["a failed import has left a trace"] if trace.exists() else None), None
        problems = [] if plain.read_bytes() == traced.read_bytes() else ["another model with a trace"]
        records = [json.loads(line) for line in trace.read_text(encoding="utf-8").splitlines()]
        objects = run(kyr, "inspect", path, "--objects", timeout=timeout).stdout.decode("utf-8")
        elements = [{"id": item["id"], "class": item["class"]}
                    for item in map(json.loads, objects.splitlines()) if "made" not in item]
        del objects
        line_count = len(re.split(b"\r\n|\r|\n", path.read_bytes()))
        model = json.loads(traced.read_bytes())["model"]
        problems += problems_of(records[:-1], records[-1], elements, model, line_count)
        reasons = collections.Counter(record["reason"] for record in records[:-1])
        report = json.loads(run(kyr, "inspect", path, "--json", timeout=timeout).stdout)
        problems += inspection_problems(records, report.get("import"))
        return problems, (records[-1], reasons)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--kyr", required=True, help="the kyr command")
    parser.add_argument("--timeout", type=float, default=600.0, help="seconds for one run")
    parser.add_argument("--jobs", type=int, default=os.cpu_count() or 1, help="files at a time")
    parser.add_argument("folder", type=Path, help="folder with the files")
    arguments = parser.parse_args()
    files = files_of(arguments.folder)
    totals, reasons, failed, imported = collections.Counter(), collections.Counter(), 0, 0
    with concurrent.futures.ThreadPoolExecutor(max(1, arguments.jobs)) as pool:
        results = pool.map(lambda path: check_file(arguments.kyr, path, arguments.timeout), files)
        for path, (problems, figures) in zip(files, results):
            if problems is None:
                continue
            imported += 1
            if problems:
                failed += 1
                print(f"{path}: {len(problems)} problems")
                print("".join(f"    {problem}\n" for problem in problems[:10]), end="")
            if figures:
                totals.update(figures[0])
                reasons.update(figures[1])
    print(dict(totals))
    for reason, count in reasons.most_common():
        print(f"{count:9} {reason}")
    print(f"{len(files)} files, {imported} imported, {failed} failed")
    return 1 if failed or not imported else 0


if __name__ == "__main__":
    sys.exit(main())
