"""Where the plug-in comes from, what is said when there is none, and `kyr info`."""

import json
import os
import pathlib
import re
import shutil
import unittest

from support import DONE, FAILED, KYR, PLUGIN_NAME, SMALL, CommandTest


def plugin_path():
    """The plug-in that the command under test uses."""
    return pathlib.Path(json.loads(os.popen(f"'{KYR}' info --json").read())["plugin"])


def library_path():
    """The libkyr that the command under test uses."""
    return plugin_path().parent.parent / "libkyr.so.10"


class Installation(CommandTest):
    """A copy of program and library, in the layout of an installation."""

    def setUp(self):
        super().setUp()
        (self.folder / "bin").mkdir()
        (self.folder / "lib").mkdir()
        self.program = shutil.copy(KYR, self.folder / "bin")
        shutil.copy(library_path(), self.folder / "lib" / "libkyr.so.10")

    def put(self, folder):
        (self.folder / folder).mkdir(exist_ok=True)
        return shutil.copy(plugin_path(), self.folder / folder)

    def test_a_missing_plug_in_is_an_error_that_names_both_places(self):
        for arguments in (["info"], ["import", SMALL]):
            result = self.kyr(*arguments, program=self.program)
            self.assertFails(result, FAILED, f"[KYRHOST_F0005] The plug-in '{PLUGIN_NAME}' is missing")
            self.assertIn(str(self.folder / "bin" / PLUGIN_NAME), result.errors)
            self.assertIn(str(self.folder / "lib" / "kyr" / PLUGIN_NAME), result.errors)

    def test_what_the_plug_in_does_not_tell_needs_none(self):
        for arguments in (["inspect", SMALL], ["info", "--types"], ["--help"], ["--version"]):
            self.assertEqual(self.kyr(*arguments, program=self.program).code, DONE)

    def test_it_is_found_beside_the_library(self):
        path = self.put("lib/kyr")
        self.assertEqual(json.loads(self.kyr("info", "--json", program=self.program).output)["plugin"], str(path))

    def test_the_one_beside_the_program_comes_first(self):
        self.put("lib/kyr")
        path = self.put("bin")
        self.assertEqual(json.loads(self.kyr("info", "--json", program=self.program).output)["plugin"], str(path))

    def test_it_is_found_through_a_link_to_the_program(self):
        self.put("bin")
        link = self.folder / "link"
        os.symlink(self.program, link)
        self.assertEqual(self.kyr("info", program=link).code, DONE)

    def test_the_environment_does_not_lead_to_it(self):
        self.put("elsewhere")
        elsewhere = str(self.folder / "elsewhere")
        environment = dict(os.environ, LD_LIBRARY_PATH=elsewhere, PATH=elsewhere, KYR_PLUGIN=elsewhere)
        result = self.kyr("info", program=self.program, env=environment, cwd=elsewhere)
        self.assertFails(result, FAILED, "[KYRHOST_F0005] ")


class GivenPath(CommandTest):
    def test_a_path_names_the_plug_in(self):
        path = shutil.copy(plugin_path(), self.folder / "other.so")
        # The copy finds libkyr where the program has it.
        for name in (path, "other.so", "./other.so"):
            with self.subTest(name=name):
                result = self.kyr("info", "--json", "--plugin", name)
                self.assertEqual(result.code, DONE, result.errors)
                self.assertEqual(json.loads(result.output)["plugin"], str(name))
                self.assertEqual(self.kyr("import", SMALL, "--plugin", name, "--quiet").code, DONE)

    def test_what_is_no_plug_in_is_refused_with_the_reason(self):
        self.write("text.so", "not a library")
        os.mkfifo(self.folder / "pipe")
        cases = [
            ("missing.so", "[KYRHOST_F0006] The plug-in 'missing.so' is no file"),
            (".", "[KYRHOST_F0006] "),
            ("pipe", "[KYRHOST_F0006] "),
            ("text.so", "[KYRHOST_F0007] The plug-in 'text.so' cannot be loaded: "),
            (str(library_path()), "[KYRHOST_F0008] "),
        ]
        for name, message in cases:
            for arguments in (["info"], ["import", SMALL]):
                with self.subTest(name=name, arguments=arguments):
                    self.assertFails(self.kyr(*arguments, "--plugin", name), FAILED, message)
        self.assertEqual(self.names(), ["pipe", "text.so"])


@unittest.skipUnless("KYR_REFUSING_PLUGIN" in os.environ, "the plug-in is built for ctest")
class RefusingPlugin(CommandTest):
    def import_by(self, **environment):
        self.write("small.json", "old")
        result = self.kyr("import", SMALL, "-q", "-o", "small.json", "--plugin", os.environ["KYR_REFUSING_PLUGIN"],
                          env=dict(os.environ, **environment))
        self.assertEqual((self.folder / "small.json").read_text(), "old")
        return result

    def test_a_plug_in_without_the_option_of_the_file_is_told(self):
        self.assertFails(self.import_by(), FAILED, "[KYRHOST_F0009] ")

    def test_a_plug_in_that_just_says_no_is_a_failure(self):
        self.assertFails(self.import_by(KYR_REFUSING_OPTIONS="1"), FAILED, "[KYRHOST_F0010] ")


class Info(CommandTest):
    def setUp(self):
        super().setUp()
        self.info = json.loads(self.kyr("info", "--json").output)

    def test_the_version_is_a_number_and_a_time(self):
        pattern = r"10\.0\.1 - \d{4}-\d\d-\d\d \d\d:\d\d:\d\d P[SD]T"
        self.assertRegex(self.info["version"], "^" + pattern + "$")
        self.assertEqual(self.info["specification"]["buildVersion"], self.info["version"])
        self.assertFalse(self.info["specification"]["retired"])

    def test_the_options(self):
        options = {option["identifier"]: option for option in self.info["options"]}
        self.assertEqual(list(options), ["BP_FILE", "BP_ROOT_PACKAGE"])
        file, package = options.values()
        self.assertEqual((file["name"], file["type"], file["mandatory"]), ("File", "file", True))
        self.assertEqual(file["extensions"], ["xml", "xmi", "uml", "uml2"])
        self.assertEqual((package["name"], package["type"], package["mandatory"]), ("Top Package", "text", False))
        self.assertEqual((package["default"], package["extensions"]), ("", []))
        self.assertTrue(file["description"].startswith("This bridge imports an XML file"))

    def test_the_data_stores(self):
        self.assertEqual(self.info["dataStores"],
                         [{"name": "all", "dataStore": "OMG_UML_OMG_UML", "version": "1.0.0"},
                          {"name": "all", "dataStore": "OMG_UML_OMG_UML_SEA", "version": "1.0.0"}])

    def test_all_messages_with_code_level_and_text(self):
        messages = {message["code"]: message for message in self.info["messages"]}
        self.assertEqual(len(messages), 18)
        self.assertEqual(messages["KBI_UML2XMI_W0001"],
                         {"code": "KBI_UML2XMI_W0001", "level": "WARNING",
                          "text": "{0} : Skipping the unknown tag '{1}'"})
        levels = {"F": "FATAL", "W": "WARNING", "S": "STATUS"}
        for code, message in messages.items():
            self.assertEqual(message["level"], levels[re.fullmatch(r"KBI_UML2XMI_([FWS])\d{4}", code)[1]])

    def test_the_text_holds_what_the_json_holds(self):
        text = self.kyr("info").output
        self.assertIn(self.info["version"], text)
        self.assertIn(self.info["description"], text)
        self.assertIn("Mapping:      KYROmgUml2XmiImport\n", text)
        for option in self.info["options"]:
            self.assertIn(f"  {option['identifier']}  {option['name']}\n", text)
            self.assertIn(option["description"], text)
        for message in self.info["messages"]:
            self.assertIn(f"  {message['code']}  {message['level']}  {message['text']}\n", text)
        for store in self.info["dataStores"]:
            self.assertIn(f"  {store['dataStore']} {store['version']}  {store['name']}\n", text)


if __name__ == "__main__":
    unittest.main()
