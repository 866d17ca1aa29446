"""The options that say what a file may go to: exactly the limit passes, and beyond it the file is refused."""

import pathlib
import re
import unittest

from support import CommandTest

HEAD = ('<xmi:XMI xmi:version="2.1" xmlns:xmi="http://schema.omg.org/spec/XMI/2.1"'
        ' xmlns:uml="http://schema.omg.org/spec/UML/2.1"><uml:Model xmi:id="m" name="m">')
TAIL = "</uml:Model></xmi:XMI>"


def nested(depth):
    """A file whose innermost element stands that deep."""
    inner = depth - 2  # behind the root and the model
    return HEAD + '<packagedElement xmi:type="uml:Package">' * inner + "</packagedElement>" * inner + TAIL


def with_value(size):
    return HEAD + f'<packagedElement xmi:type="uml:Class" xmi:id="c" name="{"n" * size}"/>' + TAIL


def with_attributes(count):
    return HEAD + "<packagedElement" + "".join(f' a{i}=""' for i in range(count)) + "/>" + TAIL


def with_name(size):
    return HEAD + f'<packagedElement {"a" * size}=""/>' + TAIL


# Option, the file of a size, a size that fits, and what the message says.
LIMITS = [("--max-depth", nested, 7, "nested elements"),
          ("--max-depth", nested, 1100, "nested elements"),
          ("--max-attribute", with_value, 60, "bytes for one attribute value"),
          ("--max-attribute-count", with_attributes, 8, "attributes on one element"),
          ("--max-attribute-count", with_attributes, 10100, "attributes on one element"),
          ("--max-name", with_name, 40, "bytes for the name"),
          ("--max-name", with_name, 5000, "bytes for the name")]


class LimitsTest(CommandTest):
    def run_with(self, command, option, limit, text):
        path = self.write("limit.xmi", text)
        words = {"import": ["-o", self.folder / "limit.json"],
                 "normalize": ["-o", self.folder / "limit.out.xmi"], "inspect": []}
        return self.kyr(command, path, f"{option}={limit}", *words[command])

    def test_exactly_the_limit_passes_and_one_less_is_refused_by_its_name(self):
        for command, (option, make, size, words) in [*(("inspect", limit) for limit in LIMITS),
                                                     ("import", LIMITS[0]), ("normalize", LIMITS[0])]:
            with self.subTest(option=option, size=size, command=command):
                self.assertEqual(self.run_with(command, option, size, make(size)).code, 0)
                result = self.run_with(command, option, size - 1, make(size))
                self.assertEqual(result.code, 1)
                self.assertIn(f"the limit of {size - 1} {words}", result.errors)
                self.assertIn("line 1, column ", result.errors)

    def test_without_an_option_the_usual_limits_hold(self):
        for make, within, beyond in ((nested, 1000, 1001), (with_attributes, 10000, 10001), (with_name, 4096, 4097)):
            with self.subTest(make=make.__name__):
                self.assertEqual(self.run_with("inspect", "--max-attribute", 100000, make(within)).code, 0)
                result = self.run_with("inspect", "--max-attribute", 100000, make(beyond))
                self.assertEqual(result.code, 1)
                self.assertIn("the limit of ", result.errors)

    def test_a_longer_value_than_a_tag_may_usually_be_passes_when_it_is_allowed(self):
        size = (64 << 20) + 1
        refused = self.run_with("inspect", "--max-depth", 5, with_value(size))
        self.assertEqual(refused.code, 1)
        self.assertIn(f"the limit of {64 << 20} bytes for one attribute value", refused.errors)
        self.assertEqual(self.run_with("inspect", "--max-attribute", size, with_value(size)).code, 0)

    def test_what_is_no_size_is_wrong_usage(self):
        for option, value in (("--max-depth", "0"), ("--max-attribute", "-1"), ("--max-attribute-count", "many"),
                              ("--max-name", ""), ("--max-depth", "99999999999999999999")):
            with self.subTest(option=option, value=value):
                self.assertEqual(self.run_with("inspect", option, value, nested(3)).code, 2)


class Documented(CommandTest):
    def test_the_documentation_has_the_limits_of_the_help(self):
        help_ = " ".join(self.kyr("import", "--help").output.split())
        page = (pathlib.Path(__file__).resolve().parents[2] / "docs" / "limits.md").read_text(encoding="utf-8")
        for option in sorted({limit[0] for limit in LIMITS}):
            with self.subTest(option=option):
                usual = re.search(rf"{option} [A-Z]+ [^-]*?\((\d+)\)", help_).group(1)
                rows = [line for line in page.splitlines() if line.endswith(f"| `{option}` |")]
                self.assertEqual(len(rows), 1)
                self.assertIn(f"| {usual} ", rows[0])


if __name__ == "__main__":
    unittest.main()
