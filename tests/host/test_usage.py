"""The words of the command line: what is refused, and what help and version say."""

import json
import os
import pathlib
import re
import unittest

from support import DONE, SMALL, WRONG_USAGE, CommandTest


class WrongUsage(CommandTest):
    def test_each_kind_of_wrong_words_ends_with_2_and_says_where_help_is(self):
        cases = [
            ([], "'kyr --help'"),
            (["export"], "There is no command 'export'. 'kyr --help'"),
            (["--json"], "'kyr --help'"),
            (["import"], "'kyr import --help'"),
            (["import", "a.xmi", "-j", "0"], "'kyr import --help'"),
            (["import", "a.xmi", "-j", "-1"], "'kyr import --help'"),
            (["import", "a.xmi", "--loud"], "'kyr import --help'"),
            (["import", "a.xmi", "-o"], "'kyr import --help'"),
            (["import", "a.xmi", "-o", ""], "the name is empty. 'kyr import --help'"),
            (["import", "a.xmi", "--format", "xml"], "'kyr import --help'"),
            (["import", "a.xmi", "-o", "b", "-o", "c"], "'kyr import --help'"),
            (["import", "a.xmi", "--log-format", "xml"], "'kyr import --help'"),
            (["import", "a.xmi", "--modification-time", "yesterday"], "'kyr import --help'"),
            (["import", "a.xmi", "--modification-time", "2026-13-01T00:00:00Z"], "'kyr import --help'"),
            (["info", "a.xmi"], "'kyr info --help'"),
            (["info", "ORACLE"], "'kyr info --help'"),
            (["info", "--types", "a.xmi"], "'kyr info --help'"),
            (["info", "--types", ""], "'kyr info --help'"),
            (["info", "--types", "ORACLE", "MYSQL"], "'kyr info --help'"),
            (["info", "--types", "--plugin", "p.so"], "'kyr info --help'"),
            (["inspect"], "'kyr inspect --help'"),
            (["inspect", "a.xmi", "--quiet"], "'kyr inspect --help'"),
        ]
        for arguments, hint in cases:
            with self.subTest(arguments=arguments):
                result = self.kyr(*arguments)
                self.assertFails(result, WRONG_USAGE, "[KYRHOST_F0001] ")
                self.assertIn(hint, result.errors)
                self.assertEqual(len(result.error_lines), 1)
        self.assertEqual(self.names(), [])

    def test_a_wrong_word_is_shown_escaped(self):
        result = self.kyr("inspect", "a.xmi", "\x1b[2Jb.xmi")
        self.assertFails(result, WRONG_USAGE, "\\x1b[2Jb.xmi")
        self.assertNotIn("\x1b", result.errors)

    def test_the_model_is_not_written_over_its_own_input(self):
        text = SMALL.read_bytes()
        path = self.write("shop.json", text)
        os.symlink(path, self.folder / "link.json")
        os.link(path, self.folder / "twin.json")
        for arguments in (["shop.json"], ["shop.json", "-o", "./shop.json"], ["link.json", "-o", "shop.json"],
                          ["shop.json", "-o", "twin.json"], ["shop.json", "-o", "."]):
            with self.subTest(arguments=arguments):
                self.assertFails(self.kyr("import", *arguments), WRONG_USAGE, "[KYRHOST_F0002] ")
                self.assertEqual(path.read_bytes(), text)

    def test_the_log_is_not_written_over_input_or_output(self):
        text = SMALL.read_bytes()
        path = self.write("shop.xmi", text)
        self.assertFails(self.kyr("import", "shop.xmi", "--log-file", path), WRONG_USAGE, "[KYRHOST_F0003] ")
        self.assertFails(self.kyr("import", "shop.xmi", "--log-file", "shop.json"), WRONG_USAGE,
                         "[KYRHOST_F0004] ")
        self.assertEqual(path.read_bytes(), text)
        self.assertEqual(self.names(), ["shop.xmi"])

    def test_late_wrong_usage_is_json_where_json_is_asked_for(self):
        self.write("shop.json", SMALL.read_bytes())
        result = self.kyr("import", "shop.json", "--log-format", "json")
        line = json.loads(result.errors)
        self.assertEqual((result.code, line["level"], line["code"]), (WRONG_USAGE, "FATAL", "KYRHOST_F0002"))


class Help(CommandTest):
    def test_help_goes_to_the_standard_output_and_has_an_example(self):
        for command in ([], ["import"], ["info"], ["inspect"], ["diff"]):
            with self.subTest(command=command):
                result = self.kyr(*command, "--help")
                self.assertEqual((result.code, result.errors), (DONE, ""))
                self.assertIn("Usage: " + " ".join(["kyr", *command]), result.output)
                self.assertIn("Example", result.output)
                self.assertLessEqual(max(map(len, result.output.splitlines())), 92)

    def test_help_names_every_option(self):
        options = {
            "import": ["--jobs", "--output", "--format", "--append", "--root-package", "--modification-time", "--encoding",
                       "--quiet", "--timing", "--log-format", "--log-file", "--plugin", "--normalize[=all]"],
            "info": ["--json", "--plugin", "--types", "STORE"],
            "inspect": ["--json", "--objects", "--normalize[=all]", "--encoding"],
            "normalize": ["--output", "--all", "--encoding"],
        }
        for command in ("import", "inspect", "normalize"):
            options[command] += ["--max-depth", "--max-attribute ", "--max-attribute-count", "--max-name"]
        for command, names in options.items():
            output = self.kyr(command, "--help").output
            for name in names:
                self.assertIn(name, output)

    def test_the_documentation_has_every_option(self):
        page = (pathlib.Path(__file__).parents[2] / "docs" / "command-line.md").read_text(encoding="utf-8")
        for command in ("import", "info", "inspect", "diagram", "diff", "normalize"):
            section = page.split(f"## kyr {command}\n")[1].split("\n## ")[0]
            for option in re.findall(r"--[a-z-]+", self.kyr(command, "--help").output.split("Examples")[0]):
                if option != "--help":
                    self.assertIn(option, section)

    def test_the_list_of_commands_has_one_line_for_each(self):
        lines = self.kyr("--help").output.splitlines()
        for command in ("import", "info", "inspect", "diagram", "diff", "normalize"):
            self.assertEqual(sum(line.startswith(f"  {command} ") for line in lines), 1)

    def test_the_version_is_that_of_the_plug_in(self):
        result = self.kyr("--version")
        self.assertEqual(result.code, DONE)
        version = json.loads(self.kyr("info", "--json").output)["version"]
        self.assertEqual(result.output, "kyr " + version.split(" - ")[0] + "\n")


if __name__ == "__main__":
    unittest.main()
