"""`kyr import` of several files: order, results, and what signals leave behind."""

import json
import os
import pathlib
import signal
import subprocess
import time
import unittest

from support import BROKEN, DONE, FAILED, KYR, NO_MODEL, SMALL, WRONG_USAGE, CommandTest, children_of, model_text

ODD = '<oddity/>'
# Enough work to be met in the middle of it.
LARGE_CLASSES = 8000


def class_text(name, content=""):
    return f'<packagedElement xmi:type="uml:Class" xmi:id="{name}" name="{name}">{content}</packagedElement>'


def large_text():
    attributes = "".join(f'<ownedAttribute xmi:type="uml:Property" xmi:id="%s{n}" name="a{n}"/>' for n in range(4))
    return model_text("Large", "".join(class_text(f"C{n}", attributes.replace("%s", f"C{n}_"))
                                       for n in range(LARGE_CLASSES)))


class Batch(CommandTest):
    def test_a_trace_is_of_one_file(self):
        result = self.kyr("import", SMALL, SMALL, "--trace", "t.jsonl")
        self.assertFails(result, WRONG_USAGE, "[KYRHOST_F0061] ")
        self.assertEqual(self.names(), ["a.xmi", "b.xmi", "c.xmi"])

    def setUp(self):
        super().setUp()
        for name in "abc":
            self.write(f"{name}.xmi", model_text(name.upper(), class_text("C") + ODD))

    def test_each_file_becomes_a_model_told_in_order(self):
        result = self.kyr("import", "c.xmi", "a.xmi", "b.xmi", "-j", "3")
        self.assertEqual(result.code, DONE, result.errors)
        lines = result.output.splitlines()
        self.assertEqual([line.split("'")[1] for line in lines[:3]], ["c.json", "a.json", "b.json"])
        self.assertEqual(lines[3].split(), ["Result", "Seconds", "Packages", "Classes", "Interfaces", "Attributes",
                                            "Operations", "Arguments", "File"])
        self.assertEqual([line.split()[-1] for line in lines[4:7]], ["c.xmi", "a.xmi", "b.xmi"])
        self.assertEqual([line.split()[3] for line in lines[4:7]], ["1"] * 3)
        self.assertEqual(lines[7].split()[1:], ["3", "3", "0", "0", "0", "0", "files:", "3,", "failed:", "0"])
        parsed = [line.split("'")[1] for line in result.error_lines if "Parsing file" in line]
        self.assertEqual(parsed, ["c.xmi", "a.xmi", "b.xmi"])
        for name in "abc":
            self.assertEqual(json.loads((self.folder / f"{name}.json").read_bytes())["model"]["name"], name.upper())

    def test_a_model_is_the_same_as_alone(self):
        time_option = ["--modification-time", "2026-01-01"]
        (self.folder / "out").mkdir()
        self.kyr("import", "a.xmi", SMALL, "b.xmi", "-o", "out", *time_option)
        for name in ("a.xmi", "b.xmi"):
            self.kyr("import", name, "-o", "alone.json", *time_option)
            self.assertEqual((self.folder / "out" / name).with_suffix(".json").read_bytes(),
                             (self.folder / "alone.json").read_bytes())

    def test_one_failure_fails_the_whole_and_the_others_are_imported(self):
        self.write("bad.xmi", BROKEN)
        self.write("none.xmi", NO_MODEL)
        result = self.kyr("import", "a.xmi", "bad.xmi", "b.xmi", "none.xmi", "-j1")
        self.assertEqual(result.code, FAILED)
        self.assertEqual([line for line in result.output.splitlines() if line.startswith("Failed")],
                         ["Failed 'bad.xmi'", "Failed 'none.xmi'"])
        self.assertIn("[KYRHOST_F0034] 'bad.xmi' was not imported", result.error_lines)
        self.assertIn("line 3, column ", result.errors)
        self.assertEqual(result.output.splitlines()[-1].split()[-4:], ["files:", "4,", "failed:", "2"])
        self.assertEqual([name for name in self.names() if name.endswith(".json")], ["a.json", "b.json"])

    def test_json_has_a_line_for_each_and_a_closing_one(self):
        self.write("bad.xmi", BROKEN)
        result = self.kyr("import", "a.xmi", "bad.xmi", "--log-format", "json")
        first, second, last = map(json.loads, result.output.splitlines())
        self.assertEqual((first["file"], first["output"], first["classes"]), ("a.xmi", "a.json", 1))
        self.assertEqual(second, {"file": "bad.xmi", "failed": True})
        self.assertEqual((last["files"], last["failed"]), (2, 1))
        codes = [json.loads(line)["code"] for line in result.error_lines]
        self.assertEqual(codes[-2:], ["KYRSTD_F0007", "KYRHOST_F0034"])

    def test_quiet_names_the_file_of_warnings(self):
        result = self.kyr("import", "a.xmi", SMALL, "-q", "--log-file", "all.log")
        self.assertEqual((result.code, result.output), (DONE, ""))
        self.assertRegex(result.error_lines[0], "^WARNING KBI_UML2XMI_W0001 .*'oddity'$")
        self.assertEqual(result.error_lines[1],
                         "WARNING KYRHOST_W0037 'a.xmi' was imported, with the warnings before this one")
        log = (self.folder / "all.log").read_text().splitlines()
        self.assertEqual([line.split("'")[1] for line in log if "Parsing file" in line], ["a.xmi", str(SMALL)])

    def test_all_can_go_into_one_database(self):
        result = self.kyr("import", "a.xmi", "b.xmi", "c.xmi", "--append", "-o", "all.sqlite")
        self.assertEqual(result.code, DONE, result.errors)
        self.assertEqual(result.output.count("Wrote 'all.sqlite'"), 3)
        self.assertEqual([name for name in self.names() if not name.endswith(".xmi")], ["all.sqlite"])

    def test_outputs_that_would_meet_are_wrong_usage(self):
        (self.folder / "in").mkdir()
        self.write("in/a.xmi", model_text())
        self.write("x.json", model_text())
        cases = [(["a.xmi", "b.xmi", "-o", "none"], "[KYRHOST_F0032] "),
                 (["a.xmi", "b.xmi", "-o", "c.xmi"], "[KYRHOST_F0032] "),
                 (["a.xmi", "in/a.xmi"], "[KYRHOST_F0033] The models of 'a.xmi' and 'in/a.xmi' would be written"),
                 (["a.xmi", "./a.xmi"], "[KYRHOST_F0033] "),
                 (["a.xmi", "x.json"], "[KYRHOST_F0002] ")]
        before = self.names()
        for arguments, message in cases:
            with self.subTest(arguments=arguments):
                self.assertFails(self.kyr("import", *arguments), WRONG_USAGE, message)
        self.assertEqual(self.names(), before)

    def test_the_encoding_holds_for_all(self):
        text = model_text(content=class_text("Caf\u00e9")).encode("windows-1252")
        for name in ("x.xmi", "y.xmi"):
            self.write(name, text)
        self.assertEqual(self.kyr("import", "x.xmi", "y.xmi").code, FAILED)
        self.assertEqual(self.kyr("import", "x.xmi", "y.xmi", "--encoding", "windows-1252").code, DONE)

    def test_a_reader_that_went_away_is_passed_over_in_silence(self):
        reading, writing = os.pipe()
        os.close(reading)
        result = self.kyr("import", "a.xmi", "b.xmi", stdout=writing)
        os.close(writing)
        self.assertEqual(result.code, DONE)
        self.assertNotIn("KYRHOST", result.errors)
        self.assertLessEqual({"a.json", "b.json"}, set(self.names()))

    def test_progress_is_for_terminals(self):
        self.assertNotIn("files done", self.kyr("import", "a.xmi", "b.xmi").errors)


def is_alive(number):
    try:
        return "Z" not in pathlib.Path(f"/proc/{number}/stat").read_text().rsplit(")", 1)[1].split()[0]
    except (FileNotFoundError, ProcessLookupError):
        return False


class Signals(CommandTest):
    def setUp(self):
        super().setUp()
        self.large = self.write("large.xmi", large_text())
        (self.folder / "out").mkdir()

    def start(self, *arguments, **options):
        return subprocess.Popen([KYR, "import", *map(str, arguments)], cwd=self.folder, stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL, **options)

    def wait_for(self, condition, process):
        while process.poll() is None:
            if found := condition():
                return found
            time.sleep(0.001)
        return None

    def start_and_meet(self, condition, *arguments, **options):
        """A process that is met in the middle of its work. A machine that is too fast is asked again."""
        for _ in range(20):
            process = self.start(*arguments, **options)
            if self.wait_for(condition, process):
                return process
            process.wait()
        self.fail("no import was met while it saved")

    def temporary_files(self):
        return [name for name in os.listdir(self.folder / "out") if name.startswith(".kyr-save")]

    def test_a_signal_in_the_middle_of_saving_leaves_nothing(self):
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            for name in ("large.json", "large.sqlite"):
                with self.subTest(signal=number, name=name):
                    process = self.start_and_meet(self.temporary_files, "large.xmi", "-o", f"out/{name}", "-q")
                    process.send_signal(number)
                    # It may have come to its end in between: the model is whole then.
                    left = [] if process.wait() == -number else [name]
                    self.assertEqual(os.listdir(self.folder / "out"), left)
                    for name in left:
                        (self.folder / "out" / name).unlink()

    def test_a_signal_during_an_append_leaves_a_whole_database(self):
        self.kyr("import", SMALL, "-o", "out/all.sqlite")
        journal = self.folder / "out" / "all.sqlite-journal"
        process = self.start_and_meet(journal.exists, "large.xmi", "-o", "out/all.sqlite", "--append", "-q")
        process.send_signal(signal.SIGTERM)
        # The signal waits for the end of a transaction that cannot be taken back any more.
        models = 1 if process.wait() == -signal.SIGTERM else 2
        self.assertEqual(os.listdir(self.folder / "out"), ["all.sqlite"])
        count = subprocess.run(["sqlite3", "out/all.sqlite", "SELECT count(*) FROM models; PRAGMA integrity_check"],
                               cwd=self.folder, check=True, capture_output=True).stdout
        self.assertIn(count, (f"{models}\nok\n".encode(), b"2\nok\n"))

    def test_ending_the_parent_ends_the_children_and_leaves_nothing(self):
        for name in ("second.xmi", "third.xmi"):
            self.write(name, self.large.read_bytes())
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGKILL):
            with self.subTest(signal=number):
                process = self.start_and_meet(self.temporary_files, "large.xmi", "second.xmi", "third.xmi", "-o", "out",
                                              "-q", "-j", "2")
                children = children_of(process)
                process.send_signal(number)
                self.assertEqual(process.wait(), -number)
                deadline = time.monotonic() + 20
                # A parent that was killed can wait for nobody: its children are told by the kernel.
                while any(map(is_alive, children)) and time.monotonic() < deadline:
                    self.assertEqual(number, signal.SIGKILL)
                    time.sleep(0.01)
                self.assertFalse(any(map(is_alive, children)))
                self.assertEqual(self.temporary_files(), [])

    def test_a_child_that_is_killed_is_a_failure_of_its_file(self):
        process = subprocess.Popen([KYR, "import", "large.xmi", str(SMALL), "-o", "out", "-j", "2"], cwd=self.folder,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.PIPE)
        os.kill(self.wait_for(lambda: children_of(process), process)[0], signal.SIGKILL)
        errors = process.communicate()[1].decode()
        self.assertEqual(process.returncode, FAILED)
        self.assertIn("[KYRHOST_F0035] 'large.xmi' was not imported: the signal 9 ended the process that was at it",
                      errors)
        self.assertEqual(os.listdir(self.folder / "out"), ["small.json"])

    def test_a_signal_that_is_ignored_stays_ignored(self):
        def ignore():
            signal.signal(signal.SIGINT, signal.SIG_IGN)

        for files in (["large.xmi"], ["large.xmi", SMALL]):
            process = self.start_and_meet(self.temporary_files, *files, "-o", "out", "-q", preexec_fn=ignore)
            process.send_signal(signal.SIGINT)
            self.assertEqual(process.wait(), DONE)
            self.assertIn("large.json", os.listdir(self.folder / "out"))


if __name__ == "__main__":
    unittest.main()
