#!/usr/bin/env python3
"""The tree check finds what it is there for: each case lays down a small tree and reads the findings."""

import os
import sys
import tempfile
import unittest

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
import check_includes  # noqa: E402


def findings(files):
    with tempfile.TemporaryDirectory() as root:
        for name, text in files.items():
            path = os.path.join(root, name)
            os.makedirs(os.path.dirname(path), exist_ok=True)
            with open(path, "w", encoding="utf-8") as file:
                file.write(text)
        return list(check_includes.check(root))


def header(*includes):
    lines = ["// What it is for.", "#pragma once"] + [f'#include "{name}"' for name in includes]
    return "\n".join(lines) + "\n"


class CheckIncludes(unittest.TestCase):
    def test_a_tree_that_looks_down_only_is_clean(self):
        self.assertEqual([], findings({"foundation/A.h": header(), "uml/B.h": header("foundation/A.h")}))

    def test_an_include_of_a_higher_folder_is_found(self):
        found = findings({"foundation/A.h": header("uml/B.h"), "uml/B.h": header()})
        self.assertEqual(['foundation/A.h: foundation must not include "uml/B.h"'], found)

    def test_subfolders_count_as_their_folder_unless_they_have_a_row_of_their_own(self):
        clean = {"repository/model/A.h": header("repository/B.h"), "repository/B.h": header()}
        self.assertEqual([], findings(clean))
        found = findings({"uml/A.h": header("uml/read/B.h"), "uml/read/B.h": header()})
        self.assertEqual(['uml/A.h: uml must not include "uml/read/B.h"'], found)

    def test_the_conversion_sees_the_state_of_the_bridge_but_not_the_bridge(self):
        found = findings({
            "convert/A.h": header("bridge/state/S.h", "bridge/D.h"),
            "bridge/state/S.h": header(),
            "bridge/D.h": header(),
        })
        self.assertEqual(['convert/A.h: convert must not include "bridge/D.h"'], found)

    def test_only_the_last_step_of_the_parse_reaches_up_to_the_extension(self):
        files = {"extension/E.h": header(), "xmi/XMIParserExtension.cpp": header("extension/E.h")}
        self.assertEqual([], findings(files))
        found = findings({"extension/E.h": header(), "xmi/XMIParser.cpp": header("extension/E.h")})
        self.assertEqual(['xmi/XMIParser.cpp: xmi must not include "extension/E.h"'], found)

    def test_an_include_that_is_not_from_the_root_is_found(self):
        found = findings({"foundation/A.h": header("B.h"), "foundation/B.h": header()})
        self.assertEqual(['foundation/A.h: "B.h" is no file below the root of the project'], found)

    def test_a_third_party_header_outside_its_folder_is_found(self):
        found = findings({"uml/A.h": header() + "#include <expat.h>\n"})
        self.assertEqual(["uml/A.h: <expat.h> is for foundation/xml alone"], found)
        self.assertEqual([], findings({"foundation/xml/A.h": header() + "#include <expat.h>\n"}))

    def test_a_circle_of_headers_is_found(self):
        found = findings({"uml/A.h": header("uml/B.h"), "uml/B.h": header("uml/A.h")})
        self.assertEqual(["headers include each other in a circle: uml/A.h -> uml/B.h -> uml/A.h"], found)

    def test_two_roads_to_one_header_are_no_circle(self):
        self.assertEqual([], findings({
            "uml/A.h": header("uml/B.h", "uml/C.h"),
            "uml/B.h": header("uml/C.h"),
            "uml/C.h": header(),
        }))

    def test_a_file_without_an_opening_comment_is_found(self):
        found = findings({"uml/A.h": "#pragma once\n", "scripts/a.sh": "#!/bin/sh\n# Why.\n"})
        self.assertEqual(["uml/A.h: does not open with what it is for"], found)

    def test_a_header_without_a_guard_is_found(self):
        self.assertEqual(["uml/A.h: has no #pragma once"], findings({"uml/A.h": "// Why.\n"}))

    def test_pointers_to_documents_and_machine_paths_are_found_with_their_line(self):
        found = findings({"docs/a.md": "one\nsee Pa" "rt 2.1 of it\nunder /home/me/x\n"})
        self.assertEqual([
            'docs/a.md:2: "Pa' 'rt 2.1" points at a section of a document',
            'docs/a.md:3: "/home/m" holds the path of a machine',
        ], found)


if __name__ == "__main__":
    unittest.main()
