#!/usr/bin/env python3
"""Holds the layering of the source tree.

Every `#include "..."` of the production folders is looked up in the table below: a folder sees
lower folders only. Besides, headers must not include each other in a circle, third-party headers
stay in the folder that wraps them, each file opens with a comment that says what it is for, and
no text points at documents or paths that a reader of the project does not have.

    check_includes.py [ROOT]

Prints one line for each finding, and ends with 1 if there is any.
"""

import os
import re
import sys

# Folder -> the folders that it may include besides its own. Lowest first.
FOUNDATION = {"foundation", "foundation/xml"}
READER = FOUNDATION | {"bridge/messages", "uml", "uml/read", "xmi"}
EXTENSION = READER | {"repository"}
CONVERSION = EXTENSION | {"extension", "bridge/state", "database", "convert", "diagram"}
LAYERS = {
    "foundation": FOUNDATION,
    "repository": FOUNDATION,
    "bridge/messages": FOUNDATION,
    "uml": FOUNDATION,
    "uml/read": READER,
    "xmi": READER,
    "extension": EXTENSION,
    # The working state of one import: a leaf that the conversion sees and that sees no conversion.
    "bridge/state": EXTENSION | {"extension"},
    "database": CONVERSION,
    "convert": CONVERSION,
    "diagram": CONVERSION,
    # What became of the elements of a file: looks at all of an import and is called by its driver.
    "trace": CONVERSION,
    "bridge": CONVERSION | {"trace"},
    # What a host may do to a file before it is read.
    "normalize": READER,
    # A saved model as a page; the page's own files stand in report/page.
    "report": FOUNDATION | {"repository"},
    "host": FOUNDATION | {"repository", "normalize", "report"},
}

# The upward edges that are meant: the files that have one, and what they may include by it.
EXCEPTIONS = [
    # The last step of a parse completes the objects from the section of the tool that wrote them.
    (r"xmi/XMIParserExtension\.cpp", r"extension/.*"),
    # The definitions of the options stand in the catalogue too, as the plug-in interface has them.
    (r"bridge/messages/KBI_UML2XMI\.(h|cpp)", r"repository/plugin/KYRBridgeOptionLiteral\.h"),
    # `kyr inspect` shows the objects of the reader, so it is a second client of it beside the bridge; and
    # what an import has lost is found by reading the file as it could have been read.
    (r"host/(Inspect|LossSurvey|ArrivalCount|FailureHint)\w*\.(h|cpp)", r"(bridge/messages|uml|uml/read|xmi|extension)/\w+\.h"),
]

# Third-party header -> the folders that may include it. What is not named here may be used anywhere.
THIRD_PARTY = [
    (r"expat(_external)?\.h|iconv\.h", {"foundation/xml"}),
    (r"rapidjson/.*", {"repository", "host"}),
    (r"sqlite3\.h", {"repository/storage"}),
    (r"CLI/.*", {"host"}),
]

TEST_FOLDERS = ["tests", "bench", "fuzz"]
TEXT_SUFFIXES = (".h", ".cpp", ".py", ".cmake", ".sh", ".txt", ".md", ".in", ".json")
SKIPPED_FOLDERS = {".git", "build", "out", "__pycache__", "node_modules"}

INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)', re.MULTILINE)
# Reasons stand in the text itself, so nothing refers the reader to somewhere else.
POINTERS_ELSEWHERE = [
    # Between slashes it is a piece of a namespace.
    (re.compile(r"(?<![/\w])specs?\b(?!/)", re.IGNORECASE), "points at a document"),
    (re.compile(r"\b(?:Part|Section) \d+\.\d+"), "points at a section of a document"),
    (re.compile(r"(?<![\w.$}])/(?:work|home|root|Users)/\w"), "holds the path of a machine"),
]


def read(root, name):
    with open(os.path.join(root, name), encoding="utf-8", errors="replace") as file:
        return file.read()


def all_files(root):
    found = []
    for folder, subfolders, names in os.walk(root):
        subfolders[:] = sorted(set(subfolders) - SKIPPED_FOLDERS)
        relative = os.path.relpath(folder, root)
        found += [os.path.normpath(os.path.join(relative, name)) for name in sorted(names)]
    return found


def layer_of(name):
    """The entry of LAYERS that a file belongs to: the longest folder that holds it."""
    folder = os.path.dirname(name)
    while folder and folder not in LAYERS:
        folder = os.path.dirname(folder)
    return folder


def check_direction(name, text, exists):
    layer = layer_of(name)
    allowed = LAYERS[layer] | {layer}
    meant = [target for source, target in EXCEPTIONS if re.fullmatch(source, name)]
    for quoted, angled in INCLUDE.findall(text):
        if angled:
            for pattern, folders in THIRD_PARTY:
                if re.fullmatch(pattern, angled) and not name.startswith(tuple(f"{f}/" for f in folders)):
                    yield f"{name}: <{angled}> is for {', '.join(sorted(folders))} alone"
        elif quoted == "BuildTime.h":  # made at configure time
            if layer not in ("bridge", "host"):
                yield f"{name}: {quoted} is for bridge and host alone"
        elif not exists(quoted):
            yield f'{name}: "{quoted}" is no file below the root of the project'
        elif layer_of(quoted) not in allowed and not any(re.fullmatch(target, quoted) for target in meant):
            yield f'{name}: {layer} must not include "{quoted}"'


def find_cycles(includes):
    """One finding for each edge that closes a circle. Depth first, with a stack of our own."""
    done = set()
    for start in sorted(includes):
        stack = [(start, iter(sorted(includes[start])))] if start not in done else []
        open_ = {start: None}
        while stack:
            name, rest = stack[-1]
            following = next(rest, None)
            if following is None:
                done.add(name)
                open_.pop(name, None)
                stack.pop()
            elif following in open_:
                circle = [entry for entry, _ in stack]
                yield "headers include each other in a circle: " + " -> ".join(
                    circle[circle.index(following) :] + [following]
                )
            elif following not in done:
                open_[following] = None
                stack.append((following, iter(sorted(includes.get(following, ())))))


def check_opening(name, text):
    lines = [line.strip() for line in text.splitlines() if line.strip()]
    if lines and lines[0].startswith("#!"):
        lines = lines[1:]
    if not lines or not lines[0].startswith(("//", "/*", "#", '"""')) or lines[0].startswith("#pragma"):
        yield f"{name}: does not open with what it is for"
    if name.endswith(".h") and "#pragma once" not in text:
        yield f"{name}: has no #pragma once"


def check_pointers(name, text):
    for pattern, what in POINTERS_ELSEWHERE:
        for match in pattern.finditer(text):
            line = text.count("\n", 0, match.start()) + 1
            yield f'{name}:{line}: "{match.group()}" {what}'


def check(root):
    files = all_files(root)
    known = set(files)
    includes = {}
    for name in files:
        top = name.split(os.sep)[0]
        is_source = name.endswith((".h", ".cpp"))
        production = is_source and layer_of(name)
        if not production and top not in TEST_FOLDERS and not name.endswith(TEXT_SUFFIXES):
            continue
        if top in TEST_FOLDERS and not name.endswith((".h", ".cpp", ".py", ".cmake", "CMakeLists.txt")):
            continue
        text = read(root, name)
        if production:
            yield from check_direction(name, text, known.__contains__)
        if name.endswith(".h"):
            includes[name] = {quoted for quoted, _ in INCLUDE.findall(text) if quoted in known}
        if is_source or name.endswith((".py", ".cmake", ".sh")):
            yield from check_opening(name, text)
        if os.path.basename(name) not in ("check_includes.py", "check_includes_test.py"):
            yield from check_pointers(name, text)
    yield from find_cycles(includes)


def main(arguments):
    root = arguments[1] if len(arguments) > 1 else os.path.join(os.path.dirname(__file__), "..", "..")
    findings = list(check(os.path.abspath(root)))
    for finding in findings:
        print(finding)
    print(f"{len(findings)} findings")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
