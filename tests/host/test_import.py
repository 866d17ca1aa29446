"""`kyr import`: where the model goes, what is said of it, and what stays untouched after a failure."""

import json
import os
import pathlib
import re
import resource
import signal
import stat
import subprocess
import unittest

from support import (BROKEN, COUNTS_COVERAGE, DONE, FAILED, KYR, NO_MODEL, SAMPLES, SMALL, WRONG_USAGE, CommandTest,
                     model_text, saved_objects)

TIME = "2026-01-01T00:00:00Z"
SUMMARY = re.compile(
    r"Wrote '(?P<output>.*)' in \d+\.\d\d s\n"
    r"packages (?P<packages>\d+), classes (?P<classes>\d+), interfaces (?P<interfaces>\d+), "
    r"attributes (?P<attributes>\d+), operations (?P<operations>\d+), arguments (?P<arguments>\d+), "
    r"diagrams (?P<diagrams>\d+)\n"
    r"(?:lost for the way .*\n)?")
INTERFACE = 9


def counts_of(path):
    """What the summary has to say of a saved model, found by another road."""
    names = [item["class"] for item in saved_objects(path)]
    interfaces = sum(item["class"] == "KYRClass" and item.get("classCategory") == INTERFACE
                     for item in saved_objects(path))
    return {
        "packages": names.count("KYRDesignPackage"),
        "classes": names.count("KYRClass") - interfaces,
        "interfaces": interfaces,
        "attributes": names.count("KYRAttribute"),
        "operations": names.count("KYROperation"),
        "arguments": names.count("KYRArgument"),
        "diagrams": names.count("KYRClassDiagram"),
    }


class Output(CommandTest):
    def test_without_o_the_model_stands_in_the_current_folder_under_the_name_of_the_file(self):
        inputs = self.folder / "in"
        inputs.mkdir()
        work = self.folder / "work"
        work.mkdir()
        cases = {"shop.xmi": "shop.json", "shop.v2.uml": "shop.v2.json", "plain": "plain.json",
                 ".hidden": ".hidden.json"}
        for name, expected in cases.items():
            with self.subTest(name=name):
                (inputs / name).write_bytes(SMALL.read_bytes())
                self.assertEqual(self.kyr("import", inputs / name, cwd=work).code, DONE)
                self.assertEqual(os.listdir(work), [expected])
                (work / expected).unlink()

    def test_o_names_a_file_or_a_folder(self):
        (self.folder / "models").mkdir()
        for output, expected in (("any.name", "any.name"), ("models", "models/small.json"),
                                 ("models/", "models/small.json")):
            with self.subTest(output=output):
                result = self.kyr("import", SMALL, "-o", output)
                self.assertEqual(result.code, DONE)
                self.assertIn(f"Wrote '{expected}'", result.output)
                (self.folder / expected).unlink()

    def test_o_with_a_dash_is_the_standard_output(self):
        for format_ in ("json", "sql"):
            with self.subTest(format=format_):
                options = [SMALL, "--format", format_, "--modification-time", "2026-01-01"]
                self.assertEqual(self.kyr("import", *options, "-o", "file").code, DONE)
                before = self.names()
                result = self.kyr("import", *options, "-o", "-")
                self.assertEqual(result.code, DONE)
                self.assertEqual(result.output, (self.folder / "file").read_text(encoding="utf-8"))
                self.assertRegex(result.errors, r"\nWrote '-' in [0-9.]+ s\npackages 1, classes 2,")
                self.assertEqual(self.kyr("import", *options, "-o", "-", "-q").output, result.output)
                self.assertEqual(self.names(), before)
        self.assertFails(self.kyr("import", "missing.xmi", "-o", "-"), FAILED, "missing.xmi")
        self.assertFails(self.kyr("import", SMALL, "--format", "sqlite", "-o", "-"), WRONG_USAGE, "[KYRHOST_F0038] ")
        self.assertFails(self.kyr("import", SMALL, "--append", "-o", "-"), WRONG_USAGE, "[KYRHOST_F0038] ")
        self.assertFails(self.kyr("import", SMALL, "file", "-o", "-"), WRONG_USAGE, "[KYRHOST_F0032] ")
        summary = self.kyr("import", SMALL, "-o", "-", "--log-format", "json")
        self.assertEqual(json.loads(summary.output)["format"], "kyr-store-model")
        self.assertEqual(json.loads(summary.error_lines[-1])["output"], "-")

    def test_a_name_that_begins_with_a_dash_follows_two_dashes(self):
        self.write("-shop.xmi", SMALL.read_bytes())
        self.assertEqual(self.kyr("import", "--", "-shop.xmi").code, DONE)
        self.assertIn("-shop.json", self.names())

    def test_a_link_as_output_leads_to_its_file(self):
        (self.folder / "real.json").write_text("old")
        os.symlink("real.json", self.folder / "link.json")
        self.assertEqual(self.kyr("import", SMALL, "-o", "link.json").code, DONE)
        self.assertTrue((self.folder / "link.json").is_symlink())
        self.assertEqual(json.loads((self.folder / "real.json").read_bytes())["format"], "kyr-store-model")

    def test_what_is_no_regular_file_is_never_replaced(self):
        os.mkfifo(self.folder / "pipe")
        for output in (self.folder / "pipe", "/dev/null"):
            with self.subTest(output=output):
                kind = stat.S_IFMT(os.stat(output).st_mode)
                result = self.kyr("import", SMALL, "-o", output)
                self.assertFails(result, FAILED, str(output))
                self.assertEqual(stat.S_IFMT(os.stat(output).st_mode), kind)

    def test_a_folder_that_is_not_there_is_an_error_that_names_it(self):
        for output in ("missing/shop.json", "missing/"):
            with self.subTest(output=output):
                self.assertFails(self.kyr("import", SMALL, "-o", output), FAILED,
                                 f"[KYRHOST_F0030] The model cannot be written to '{output}': "
                                 "there is no folder 'missing/'")
        self.assertEqual(self.names(), [])

    @unittest.skipIf(COUNTS_COVERAGE, "gcov writes files and messages of its own")
    def test_a_full_disk_leaves_nothing(self):
        def limit_file_size():
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (100, 100))

        old = self.write("out.json", "old")
        result = self.kyr("import", SMALL, "-o", "out.json", "--quiet", preexec_fn=limit_file_size)
        self.assertFails(result, FAILED, "out.json")
        self.assertEqual(old.read_text(), "old")
        self.assertEqual(self.names(), ["out.json"])


class Saving(CommandTest):
    def test_the_same_file_gives_the_same_bytes_when_the_time_is_fixed(self):
        for name in ("first", "second"):
            self.assertEqual(
                self.kyr("import", SMALL, "-o", name, "--modification-time", TIME).code, DONE)
        first = (self.folder / "first").read_bytes()
        self.assertEqual(first, (self.folder / "second").read_bytes())
        self.assertEqual(json.loads(first)["modificationTime"], TIME)

    def test_the_time_may_have_an_offset_or_be_a_day(self):
        for time, saved in (("2026-01-01T02:00:00+02:00", TIME), ("2026-01-01", TIME)):
            with self.subTest(time=time):
                self.kyr("import", SMALL, "-o", "out", "--modification-time", time)
                self.assertEqual(json.loads((self.folder / "out").read_bytes())["modificationTime"], saved)

    def test_a_root_package_takes_what_stands_in_no_package(self):
        content = '<packagedElement xmi:type="uml:Class" xmi:id="c" name="Order"/>'
        self.write("shop.xmi", model_text(content=content))
        self.assertEqual(self.kyr("import", "shop.xmi", "--root-package", "Loose").code, DONE)
        packages = [item for item in saved_objects(self.folder / "shop.json")
                    if item["class"] == "KYRDesignPackage"]
        self.assertEqual([item["name"] for item in packages], ["Loose"])
        self.assertEqual([item["name"] for item in packages[0]["elements"]], ["Order"])

    def test_samples_of_all_tools_are_imported(self):
        samples = [path for path in SAMPLES.iterdir() if path.suffix in (".xmi", ".xml", ".uml", ".emx")]
        self.assertGreaterEqual(len(samples), 4)
        for sample in samples:
            with self.subTest(sample=sample.name):
                result = self.kyr("import", sample, "-o", "out.json")
                self.assertEqual(result.code, DONE, result.errors)
                summary = SUMMARY.fullmatch(result.output)
                counts = counts_of(self.folder / "out.json")
                self.assertEqual({key: int(summary[key]) for key in counts}, counts)
                self.assertGreater(counts["classes"], 0)


class Failure(CommandTest):
    def test_a_file_without_a_model_fails_with_the_message_of_the_exception(self):
        self.write("shop.xmi", NO_MODEL)
        result = self.kyr("import", "shop.xmi")
        self.assertEqual(result.code, FAILED)
        self.assertEqual(result.error_lines[-1],
                         "[KBI_UML2XMI_F0008] This file may not be a valid UML2 file.")
        self.assertEqual((result.output, self.names()), ("", ["shop.xmi"]))

    def test_a_malformed_file_fails_with_its_position(self):
        self.write("shop.xmi", BROKEN)
        self.assertFails(self.kyr("import", "shop.xmi"), FAILED, "line 3, column ")
        self.assertEqual(self.names(), ["shop.xmi"])

    def test_an_old_output_stays_as_it_is(self):
        old = self.write("out.json", "old")
        before = os.stat(old)
        for text in (NO_MODEL, BROKEN):
            self.write("shop.xmi", text)
            self.assertEqual(self.kyr("import", "shop.xmi", "-o", "out.json").code, FAILED)
        after = os.stat(old)
        self.assertEqual(old.read_text(), "old")
        self.assertEqual((before.st_ino, before.st_mtime_ns), (after.st_ino, after.st_mtime_ns))
        self.assertEqual(self.names(), ["out.json", "shop.xmi"])

    def test_what_is_no_readable_file_is_refused_by_name_and_at_once(self):
        os.mkfifo(self.folder / "pipe")
        (self.folder / "folder").mkdir()
        for name, reason in (("missing.xmi", "No such file"), ("folder", "directory"), ("pipe", "FIFO"),
                             ("/dev/zero", "device"), ("", "No such file")):
            with self.subTest(name=name):
                result = self.kyr("import", name)
                self.assertFails(result, FAILED, reason)
                self.assertIn(f"'{name}'", result.error_lines[-1])

    def test_as_json_the_failure_is_one_line_with_its_code_apart(self):
        self.write("shop.xmi", NO_MODEL)
        result = self.kyr("import", "shop.xmi", "--log-format", "json")
        self.assertEqual(json.loads(result.error_lines[-1]),
                         {"level": "FATAL", "code": "KBI_UML2XMI_F0008",
                          "text": "This file may not be a valid UML2 file."})


@unittest.skipIf(COUNTS_COVERAGE, "gcov does not do without memory")
class Memory(CommandTest):
    def test_too_little_of_it_is_an_error_like_others(self):
        if b"__asan_init" in pathlib.Path(KYR).read_bytes():
            self.skipTest("a sanitizer needs all the address space there is")
        megabyte = 1024 * 1024
        content = f'<packagedElement xmi:type="uml:Class" xmi:id="c" name="{"n" * 40 * megabyte}"/>'
        self.write("shop.xmi", model_text(content=content))
        # The libraries alone take some 50 of it, most for tables of ICU that nobody reads.
        for command in ("import", "inspect"):
            result = self.kyr(command, "shop.xmi", preexec_fn=lambda: resource.setrlimit(
                resource.RLIMIT_AS, (80 * megabyte, 80 * megabyte)))
            self.assertFails(result, FAILED, "[KYRHOST_F0014] There is not enough memory")
        self.assertEqual(self.names(), ["shop.xmi"])


class Encoding(CommandTest):
    def setUp(self):
        super().setUp()
        # A byte of windows-1252 in a file that says UTF-8.
        text = model_text(content='<packagedElement xmi:type="uml:Class" xmi:id="c" name="Caf\xe9"/>')
        self.write("shop.xmi", text.encode("windows-1252"))

    def test_wrong_bytes_fail_and_the_message_names_the_option(self):
        self.assertFails(self.kyr("import", "shop.xmi"), FAILED, "--encoding windows-1252")

    def test_the_option_reads_them(self):
        self.assertEqual(self.kyr("import", "shop.xmi", "--encoding", "windows-1252").code, DONE)
        names = {item.get("name") for item in saved_objects(self.folder / "shop.json")}
        self.assertIn("Café", names)

    def test_an_unknown_encoding_is_named(self):
        self.assertFails(self.kyr("import", "shop.xmi", "--encoding", "klingon-1"), FAILED, "klingon-1")


class Log(CommandTest):
    def test_text_lines_have_level_code_and_text(self):
        result = self.kyr("import", SMALL)
        self.assertEqual(result.error_lines[0], f"STATUS KBI_UML2XMI_S0017 Parsing file '{SMALL}'")
        self.assertIn("WARNING KBI_UML2XMI_W0001 line 24, column 7 : Skipping the unknown tag 'oddity'",
                      result.error_lines)
        for line in result.error_lines:
            self.assertRegex(line, r"^(STATUS KBI_UML2XMI_S|WARNING KBI_UML2XMI_W)\d{4} \S")

    def test_json_lines_hold_the_same(self):
        texts = self.kyr("import", SMALL).error_lines
        result = self.kyr("import", SMALL, "--log-format", "json")
        lines = [json.loads(line) for line in result.error_lines]
        self.assertEqual([f"{line['level']} {line['code']} {line['text']}" for line in lines], texts)
        self.assertTrue(all(list(line) == ["level", "code", "text"] for line in lines))

    def test_the_summary_is_json_with_the_log(self):
        result = self.kyr("import", SMALL, "--log-format", "json", "-o", "out.json")
        summary = json.loads(result.output)
        self.assertEqual(summary.pop("output"), "out.json")
        self.assertGreaterEqual(summary.pop("seconds"), 0)
        self.assertEqual(summary.pop("lost")["classes"], 1)  # the class without an id
        self.assertEqual(summary, counts_of(self.folder / "out.json"))
        self.assertEqual(summary, {"packages": 1, "classes": 2, "interfaces": 0, "attributes": 1,
                                   "operations": 1, "arguments": 1, "diagrams": 0})

    def test_timing_tells_the_phases_in_text_and_json(self):
        phases = ["tokenise", "normalise", "objects", "link", "extension", "convert", "finish", "save", "release"]
        lines = self.kyr("import", SMALL, "--timing").output.splitlines()[-9:]
        self.assertEqual([line.split()[-1] for line in lines], phases)
        for line in lines:
            self.assertRegex(line, r"^ *\d+\.\d{3} s  [a-z]+$")
        summary = json.loads(self.kyr("import", SMALL, "--timing", "--log-format", "json").output)
        self.assertEqual(list(summary["phases"]), phases)
        self.assertTrue(all(seconds >= 0 for seconds in summary["phases"].values()))
        self.assertNotIn("phases", json.loads(self.kyr("import", SMALL, "--log-format", "json").output))

    def test_quiet_leaves_the_warnings(self):
        for flag in ("-q", "--quiet"):
            result = self.kyr("import", SMALL, flag)
            self.assertEqual((result.code, result.output), (DONE, ""))
            self.assertEqual(result.error_lines,
                             ["WARNING KBI_UML2XMI_W0001 line 24, column 7 : Skipping the unknown tag 'oddity'"])

    def test_the_log_file_gets_every_line_also_when_quiet(self):
        loud = self.kyr("import", SMALL, "--log-file", "loud.log")
        self.kyr("import", SMALL, "--log-file", "quiet.log", "--quiet")
        self.assertEqual((self.folder / "loud.log").read_text(), loud.errors)
        self.assertEqual((self.folder / "quiet.log").read_text(), loud.errors)

    def test_the_log_file_starts_anew_and_has_the_failure_too(self):
        self.write("import.log", "old\n" * 100)
        self.write("shop.xmi", NO_MODEL)
        result = self.kyr("import", "shop.xmi", "--log-file", "import.log")
        self.assertEqual((self.folder / "import.log").read_text(), result.errors)
        self.assertIn("KBI_UML2XMI_F0008", result.errors)

    def test_a_log_file_that_cannot_be_opened_stops_the_import(self):
        result = self.kyr("import", SMALL, "--log-file", "missing/import.log")
        self.assertFails(result, FAILED, "[KYRHOST_F0011] The log file 'missing/import.log' cannot be opened: No such")
        self.assertEqual(self.names(), [])

    def test_a_log_file_on_a_full_disk_does_not_stop_the_import(self):
        result = self.kyr("import", SMALL, "--log-file", "/dev/full", "--quiet")
        self.assertEqual(result.code, DONE)
        self.assertIn("WARNING KYRHOST_W0012 The log file '/dev/full' is not complete: No space left on device",
                      result.error_lines)

    def test_control_characters_of_a_file_are_escaped(self):
        # The tool's name holds characters that terminals obey: a control sequence introducer, a mark
        # that turns the direction of writing around, and a newline.
        documentation = '<xmi:Documentation exporter="&#x9b;2J&#x202e;&#10;kyr: all is well" exporterVersion="1"/>'
        text = model_text().replace("<uml:Model", documentation + "<uml:Model")
        self.write("a\x1b[31m.xmi", text)
        result = self.kyr("import", "a\x1b[31m.xmi")
        self.assertEqual(result.code, DONE, result.errors)
        self.assertIn("Parsing file 'a\\x1b[31m.xmi'", result.errors)
        self.assertIn("follows \\u009b2J\\u202e\\nkyr: all is well '1'", result.errors)
        for stream in (result.output, result.errors):
            self.assertIsNone(re.search("[\x00-\x09\x0b-\x1f\x7f-\x9f\u202e]", stream))
        lines = self.kyr("import", "a\x1b[31m.xmi", "--log-format", "json")
        self.assertIsNone(re.search("[\x00-\x09\x0b-\x1f\x7f-\x9f\u202e]", lines.errors))
        texts = [json.loads(line)["text"] for line in lines.error_lines]
        self.assertTrue(any("\x9b2J\u202e\nkyr: all is well" in text for text in texts))

    def test_a_path_that_is_no_utf_8_still_gives_valid_json(self):
        name = os.fsdecode(b"shop\xff.xmi")
        self.write(name, SMALL.read_bytes())
        result = self.kyr("import", name, "--log-format", "json")
        self.assertEqual(result.code, DONE)
        self.assertIn("shop\ufffd.xmi", json.loads(result.error_lines[0])["text"])
        self.assertEqual(json.loads(result.output)["output"], "shop\ufffd.json")


class Streams(CommandTest):
    def test_a_reader_that_went_away_is_passed_over_in_silence(self):
        for arguments in (["import", SMALL], ["info"], ["inspect", SMALL, "--objects"], ["--help"]):
            with self.subTest(arguments=arguments):
                reading, writing = os.pipe()
                os.close(reading)
                result = self.kyr(*arguments, stdout=writing)
                os.close(writing)
                self.assertEqual(result.code, DONE)
                self.assertNotIn("KYRHOST", result.errors)

    def test_lost_log_lines_do_not_stop_an_import(self):
        process = subprocess.Popen([KYR, "import", str(SMALL)], cwd=self.folder,
                                   stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        process.stderr.close()
        process.stdout.read()
        process.stdout.close()
        self.assertEqual(process.wait(), DONE)
        self.assertEqual(self.names(), ["small.json"])

    def test_closed_standard_files_do_not_end_up_in_the_model(self):
        command = '"$0" import "$1" -o out.json 0<&- 1>&- 2>&-'
        code = subprocess.run(["sh", "-c", command, KYR, str(SMALL)], cwd=self.folder,
                              check=False).returncode
        self.assertEqual(code, DONE)
        self.assertEqual(json.loads((self.folder / "out.json").read_bytes())["model"]["name"], "Shop")

    def test_a_full_standard_output_fails_where_it_is_the_result(self):
        with open("/dev/full", "wb") as full:
            for arguments in (["info"], ["inspect", SMALL], ["inspect", SMALL, "--objects"]):
                result = self.kyr(*arguments, stdout=full)
                self.assertEqual(result.code, FAILED)
                self.assertIn("[KYRHOST_F0013] The standard output cannot be written to: No space left",
                              result.errors)
            self.assertEqual(self.kyr("import", SMALL, stdout=full).code, DONE)
            result = self.kyr("import", SMALL, "-q", "-o", "-", stdout=full)
            self.assertEqual(result.code, FAILED)
            self.assertIn("[KYRHOST_F0013] ", result.errors)


class Trace(CommandTest):
    def trace(self, *arguments):
        result = self.kyr("import", *arguments, "--trace", "t.jsonl")
        lines = (self.folder / "t.jsonl").read_text(encoding="utf-8").splitlines()
        return result, [json.loads(line) for line in lines]

    def test_lines_stand_as_in_the_file_and_the_last_is_the_sum(self):
        content = "\n".join(("", "<packagedElement xmi:type='uml:Class' xmi:id='c'/>",
                             "<packagedElement xmi:type='uml:Actor' xmi:id='a' name='A'/>"))
        result, lines = self.trace(self.write("small.xmi", model_text(content=content)))
        self.assertEqual(result.code, DONE)
        self.assertEqual([(line["reason"], line["id"], line["line"]) for line in lines[:-1]],
                         [("no-name", "c", 4), ("kind-not-converted", "a", 5)])
        self.assertEqual(lines[-1], {"elements": 3, "converted": 1, "absorbed": 0, "lost": 2})
        self.assertIn("elements 3: converted 1, absorbed 0, lost 2; 't.jsonl' tells of each\n  1  kind-not",
                      result.output)

    def test_the_summary_as_json_has_it_too(self):
        result, lines = self.trace(SAMPLES / "plain.xmi", "--log-format", "json", "-o", "m.json")
        trace = json.loads(result.output)["trace"]
        self.assertEqual({key: trace[key] for key in lines[-1]}, lines[-1])
        self.assertEqual(sum(trace["reasons"].values()),
                         sum(line.get("count", 1) for line in lines[:-1]))

    def test_a_failed_import_leaves_the_file_as_it_was(self):
        self.write("t.jsonl", "before")
        result = self.kyr("import", self.write("none.xmi", NO_MODEL), "--trace", "t.jsonl")
        self.assertEqual(result.code, FAILED)
        self.assertEqual((self.folder / "t.jsonl").read_text(), "before")

    def test_it_is_none_of_the_other_files(self):
        small = self.write("small.xmi", model_text())
        for trace in ("small.xmi", "small.json", "log"):
            with self.subTest(trace=trace):
                result = self.kyr("import", small, "--log-file", "log", "--trace", trace)
                self.assertEqual(result.code, WRONG_USAGE)
                self.assertIn("KYRHOST_F0060", result.errors)

    def test_it_is_of_one_file(self):
        files = [self.write(name, model_text()) for name in ("a.xmi", "b.xmi")]
        result = self.kyr("import", *files, "--trace", "t.jsonl")
        self.assertEqual(result.code, WRONG_USAGE)
        self.assertIn("KYRHOST_F0061", result.errors)

    def test_a_folder_that_is_not_there_is_an_error_before_the_import(self):
        result = self.kyr("import", self.write("small.xmi", model_text()), "--trace", "no/t.jsonl")
        self.assertEqual(result.code, FAILED)
        self.assertFalse((self.folder / "small.json").exists())


if __name__ == "__main__":
    unittest.main()
