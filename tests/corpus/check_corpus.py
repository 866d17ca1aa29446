#!/usr/bin/env python3
"""Imports every file of a folder and checks how each import ends.

For each file the script works out with its own small reader whether a model starts outside skipped
subtrees, then lets `kyr import` loose on it twice and compares:

- exit 0 for a well-formed file with a model, exit 1 with KBI_UML2XMI_F0008 for one without,
  exit 1 with line and column for a malformed one; no output file is left after a failure;
- the second run writes the same bytes as the first;
- no report of a sanitizer on stderr.

The folder is no part of the project: it comes as an argument or in KYR_CORPUS. Without it the check
says "skipped" and passes.
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
import time
from pathlib import Path
from xml.parsers import expat

HERE = Path(__file__).resolve().parent
KNOWN_TYPES = frozenset(
    line.strip() for line in (HERE / "xmi_types.txt").read_text().splitlines()
    if line.strip() and not line.startswith("#"))
SKIPPED_TAGS = frozenset(("eAnnotations", "uml:Profile", "uml:Extension", "profileApplication",
                          "xmi:Extension", "memberIncrementType", "customNumberingData"))
MODEL = "uml:Model"
SANITIZER_REPORTS = ("AddressSanitizer", "LeakSanitizer", "UndefinedBehaviorSanitizer",
                     "ThreadSanitizer", "MemorySanitizer", "runtime error:")
POSITION = re.compile(r"line (\d+), column (\d+)")
COUNTED = collections.OrderedDict((
    ("packages", "KYRDesignPackage"), ("classes", "KYRClass"),
    ("attributes", "KYRAttribute"), ("operations", "KYROperation"), ("diagrams", "KYRClassDiagram"),
    ("shapes", "KYRProjection"), ("lines", "KYRRelationshipProjection")))

# What the names in a declaration mean where that differs from Python's reading of them.
CODECS = {"shift_jis": "cp932", "gb2312": "gbk", "ks_c_5601": "cp949", "ks_c_5601-1987": "cp949"}


class Malformed(Exception):
    """The file is no well-formed XML; `line` is None when the bytes already do not decode."""

    def __init__(self, reason, line=None):
        super().__init__(reason)
        self.line = line


def declared_encoding(data):
    """The encoding of a file: byte order mark, shape of the first bytes, declaration, UTF-8."""
    if data.startswith(b"\xef\xbb\xbf"):
        return "utf-8-sig"
    if data.startswith((b"\xff\xfe", b"\xfe\xff")):
        return "utf-16"
    if data.startswith(b"<\0?\0"):
        return "utf-16-le"
    if data.startswith(b"\0<\0?"):
        return "utf-16-be"
    head = re.match(rb"<\?xml[^>]*?encoding\s*=\s*[\"']([A-Za-z][A-Za-z0-9._-]*)[\"']", data[:1024])
    return head.group(1).decode("ascii").lower() if head else "utf-8"


def as_utf8(data):
    """The file in UTF-8, as bytes."""
    encoding = declared_encoding(data)
    try:
        if encoding in ("windows-1252", "cp1252"):
            # Python refuses the five bytes that the code page leaves undefined; here they are
            # the control characters of the same number.
            table = [bytes([b]).decode("cp1252", "ignore") or chr(b) for b in range(256)]
            return data.decode("latin-1").translate(table).encode("utf-8")
        return data.decode(CODECS.get(encoding, encoding)).encode("utf-8")
    except (UnicodeError, LookupError) as error:
        raise Malformed(str(error)) from error


def attribute(pairs, name):
    """The reader's way to look up an attribute: every position of the flat list of names and
    values, without case, and the entry behind the first match."""
    wanted = name.lower()
    for index, entry in enumerate(pairs):
        if entry.lower() == wanted:
            return pairs[index + 1] if index + 1 < len(pairs) else ""
    return ""


class ModelFinder:
    """Follows start and end tags and notes whether a model starts outside skipped subtrees."""

    def __init__(self):
        self.found = False
        self.depth = 0
        self.skipped_tag = ""

    def start(self, tag, attributes):
        if self.depth:
            self.depth += tag == self.skipped_tag
            return
        if tag == "uml:Package" and not self.found:
            tag = MODEL
        if tag == MODEL:
            self.found = True
            return
        kind = attribute(attributes, "xmi:type")
        known_by_type = kind in KNOWN_TYPES and kind != MODEL
        unknown_type = kind and kind != MODEL and not known_by_type
        if unknown_type or (tag in SKIPPED_TAGS and not known_by_type):
            self.depth = 1
            self.skipped_tag = tag

    def end(self, tag):
        if self.depth and tag == self.skipped_tag:
            self.depth -= 1


def has_model(data):
    """True when the reader must find a model in these bytes; raises Malformed."""
    text = as_utf8(data)
    finder = ModelFinder()
    parser = expat.ParserCreate("utf-8")
    parser.ordered_attributes = True
    parser.buffer_text = True
    parser.StartElementHandler = finder.start
    parser.EndElementHandler = finder.end
    try:
        parser.Parse(text, True)
    except expat.ExpatError as error:
        raise Malformed(str(error), error.lineno) from error
    return finder.found


def objects_of(saved):
    """Every object of a saved model."""
    stack = [saved]
    while stack:
        value = stack.pop()
        if isinstance(value, dict):
            if "class" in value:
                yield value
            stack.extend(value.values())
        elif isinstance(value, list):
            stack.extend(value)


def count_objects(saved):
    """How many objects of each counted class a saved model holds."""
    classes = collections.Counter(item["class"] for item in objects_of(saved))
    return {key: classes[name] for key, name in COUNTED.items()}


def run_import(kyr, path, out, timeout):
    return subprocess.run(
        [kyr, "import", str(path), "-o", str(out), "--modification-time", "2026-01-01T00:00:00Z",
         "--quiet"],
        stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=timeout, check=False)


def check_failure(expected, result, out, problems):
    """The failing end of an import: which message it must say, and that no file is left."""
    stderr = result.stderr.decode("utf-8", "replace")
    if result.returncode != 1:
        problems.append(f"exit {result.returncode} instead of 1 ({expected})")
    if out.exists():
        problems.append("an output file was left after a failure")
    if isinstance(expected, Malformed):
        position = POSITION.search(stderr)
        if not position:
            problems.append("no line and column in the message: " + stderr.strip()[-200:])
        elif expected.line is not None and int(position.group(1)) != expected.line:
            problems.append(f"line {position.group(1)} instead of {expected.line}")
    elif "KBI_UML2XMI_F0008" not in stderr:
        problems.append("KBI_UML2XMI_F0008 missing: " + stderr.strip()[-200:])


def check_file(kyr, path, timeout):
    """(exit code, counts, seconds, problems) of one file."""
    problems, counts, code, started = [], None, "", time.monotonic()
    try:
        expected = has_model(path.read_bytes())
    except Malformed as malformed:
        expected = malformed
    with tempfile.TemporaryDirectory() as folder:
        first, second = Path(folder, "first.json"), Path(folder, "second.json")
        try:
            results = [run_import(kyr, path, out, timeout) for out in (first, second)]
        except subprocess.TimeoutExpired:
            return code, counts, time.monotonic() - started, [f"no end within {timeout} s"]
        code = results[0].returncode
        for result in results:
            stderr = result.stderr.decode("utf-8", "replace")
            report = next((text for text in SANITIZER_REPORTS if text in stderr), None)
            if report:
                at = stderr.index(report)
                problems.append("sanitizer report: " + stderr[max(0, at - 200):at + 600])
                break
        if expected is True:
            if code != 0:
                problems.append(f"exit {code} instead of 0: "
                                + results[0].stderr.decode("utf-8", "replace").strip()[-300:])
            elif not first.exists():
                problems.append("no output file")
            else:
                counts = count_objects(json.loads(first.read_bytes()))
                if not second.exists() or first.read_bytes() != second.read_bytes():
                    problems.append("the second run wrote other bytes")
        else:
            check_failure(expected, results[0], first, problems)
            if results[0].stderr != results[1].stderr:
                problems.append("the second run said something else")
    return code, counts, time.monotonic() - started, problems


def files_of(folder):
    return sorted(path for path in folder.rglob("*") if path.is_file())


def print_table(folder, rows):
    width = max([len("file")] + [len(str(path.relative_to(folder))) for path, _ in rows])
    print(f"{'file':<{width}} {'exit':>4} " + " ".join(f"{key:>10}" for key in COUNTED)
          + f" {'seconds':>8}")
    for path, (code, counts, seconds, problems) in rows:
        numbers = " ".join(f"{counts[key] if counts else '-':>10}" for key in COUNTED)
        print(f"{str(path.relative_to(folder)):<{width}} {code!s:>4} {numbers} {seconds:8.2f}"
              + ("  FAILED" if problems else ""))
        for problem in problems:
            print("    " + problem.replace("\n", "\n    "))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--kyr", required=True, help="the kyr command")
    parser.add_argument("--timeout", type=float, default=300.0, help="seconds for one import")
    parser.add_argument("--jobs", type=int, default=os.cpu_count() or 1, help="imports at a time")
    parser.add_argument("folder", nargs="?", default=os.environ.get("KYR_CORPUS", ""),
                        help="folder with the files (default: $KYR_CORPUS)")
    arguments = parser.parse_args()
    folder = Path(arguments.folder) if arguments.folder else None
    if folder is None or not folder.is_dir():
        print("skipped: no folder of files " + ("given" if folder is None else f"at {folder}"))
        return 0
    files = files_of(folder)
    with concurrent.futures.ThreadPoolExecutor(max(1, arguments.jobs)) as pool:
        results = list(pool.map(
            lambda path: check_file(arguments.kyr, path, arguments.timeout), files))
    rows = list(zip(files, results))
    print_table(folder, rows)
    failed = sum(bool(result[3]) for _, result in rows)
    totals = collections.Counter(str(result[0]) for _, result in rows)
    print(f"{len(rows)} files, " + ", ".join(f"exit {c}: {n}" for c, n in sorted(totals.items()))
          + f", {failed} failed")
    return 1 if failed or not rows else 0


if __name__ == "__main__":
    sys.exit(main())
