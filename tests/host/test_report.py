"""`kyr report`: a saved model, and its page. What the page does in a browser is tested in tests/report."""

import json
import os
import pathlib
import shutil
import signal
import subprocess
import time
import unittest

from support import DONE, FAILED, KYR, SMALL, WRONG_USAGE, CommandTest, children_of


class Reporting(CommandTest):
    def save(self):
        self.assertEqual(self.kyr("import", SMALL, "-q", "-o", "shop.json").code, DONE)

    def model_in(self, name, element="model"):
        page = (self.folder / name).read_text(encoding="utf-8")
        start = f'<script type="application/json" id="{element}">'
        return json.loads(page.split(start)[1].split("</script>")[0])

    def test_the_page_stands_beside_the_model_and_holds_it(self):
        self.save()
        result = self.kyr("report", "shop.json")
        self.assertEqual((result.code, result.output, result.errors), (DONE, "Wrote 'shop.html'\n", ""))
        self.assertEqual(self.names(), ["shop.html", "shop.json"])
        saved = json.loads((self.folder / "shop.json").read_bytes())
        self.assertEqual(self.model_in("shop.html"), saved)

    def test_the_output_is_a_file_or_a_folder(self):
        self.save()
        (self.folder / "pages").mkdir()
        self.assertEqual(self.kyr("report", "shop.json", "-o", "pages").output, "Wrote 'pages/shop.html'\n")
        self.assertEqual(self.kyr("report", "shop.json", "-o", "other.htm").output, "Wrote 'other.htm'\n")

    def test_the_same_model_gives_the_same_page(self):
        self.save()
        self.kyr("report", "shop.json")
        before = (self.folder / "shop.html").read_bytes()
        self.assertEqual(self.kyr("report", "shop.json").code, DONE)
        self.assertEqual((self.folder / "shop.html").read_bytes(), before)

    def test_a_file_that_is_not_imported_yet_and_a_database_are_told_as_such(self):
        for name, text in (("shop.xmi", "\n <a/>"), ("bom.xmi", b"\xef\xbb\xbf<a/>"),
                           ("wide.xmi", "\ufeff<a/>".encode("utf-16-be"))):
            self.write(name, text)
            for command in (["report", name], ["diagram", name], ["diff", name, name]):
                with self.subTest(command=command):
                    result = self.kyr(*command)
                    self.assertEqual(result.errors, f"[KYRHOST_F0052] '{name}' is XML and no saved model; 'kyr import' "
                                                    "makes one of a model file\n")
                    self.assertEqual(result.code, 2 if command[0] == "diff" else FAILED)
        self.kyr("import", SMALL, "-o", "shop.sqlite")
        self.assertFails(self.kyr("report", "shop.sqlite"), FAILED, "[KYRHOST_F0053] 'shop.sqlite' is a database")
        for name in ("empty.json", "text.json"):
            self.write(name, "" if name == "empty.json" else "some words")
            self.assertFails(self.kyr("report", name), FAILED, "[KYRSTD_F0131] ")

    def test_messages_of_the_import_are_taken_from_its_log(self):
        for format_ in ("text", "json"):
            with self.subTest(format=format_):
                self.kyr("import", SMALL, "-q", "-o", "shop.json", "--log-file", "shop.log", "--log-format", format_)
                result = self.kyr("report", "shop.json", "--messages", "shop.log")
                self.assertEqual((result.code, result.errors), (DONE, ""))
                messages = self.model_in("shop.html", "messages")
                self.assertEqual(messages[0], ["STATUS", "KBI_UML2XMI_S0017", f"Parsing file '{SMALL}'"])
                self.assertIn("Skipping the unknown tag 'oddity'", [text.split(" : ")[-1] for _, _, text in messages])
        self.assertFails(self.kyr("report", "shop.json", "--messages", "gone.log"), FAILED, "gone.log")
        self.assertFails(self.kyr("report", "shop.json", "--messages", "shop.log", "-o", "shop.log"), WRONG_USAGE,
                         "[KYRHOST_F0051] ")

    def test_a_page_over_its_model_is_wrong_usage(self):
        self.save()
        before = (self.folder / "shop.json").read_bytes()
        self.assertFails(self.kyr("report", "shop.json", "-o", "shop.json"), WRONG_USAGE, "KYRHOST_F0050")
        self.assertEqual((self.folder / "shop.json").read_bytes(), before)
        self.assertEqual(self.kyr("report").code, WRONG_USAGE)
        self.assertEqual(self.kyr("report", "shop.json", "-o", "").code, WRONG_USAGE)

    def test_what_is_no_model_or_has_no_folder_is_a_failure_and_leaves_nothing(self):
        self.write("other.json", json.dumps({"format": "other"}))
        for name in ("other.json", "missing.json", "."):
            self.assertFails(self.kyr("report", name, "-o", "page.html"), FAILED, "KYRSTD_")
        self.save()
        self.assertFails(self.kyr("report", "shop.json", "-o", "missing/page.html"), FAILED, "missing/page.html")
        self.assertEqual(self.names(), ["other.json", "shop.json"])


def is_alive(number):
    try:
        return "Z" not in pathlib.Path(f"/proc/{number}/stat").read_text().rsplit(")", 1)[1].split()[0]
    except (FileNotFoundError, ProcessLookupError):
        return False


class LayingOut(CommandTest):
    """The pictures around classes, with a Graphviz that works, fails or is not there."""

    def setUp(self):
        super().setUp()
        self.assertEqual(self.kyr("import", SMALL, "-q", "-o", "shop.json").code, DONE)
        self.assertEqual(self.report("simple.html", "simple").errors, "")
        self.simple = (self.folder / "simple.html").read_bytes()

    def report(self, name, layout=None, path=None):
        options = ["--layout", layout] if layout else []
        environment = dict(os.environ) if path is None else dict(os.environ, PATH=path)
        return self.kyr("report", "shop.json", "-o", name, *options, env=environment)

    def program(self, script, mode=0o755):
        """The PATH with that program 'dot' before all others."""
        folder = self.folder / "bin"
        folder.mkdir(exist_ok=True)
        (folder / "dot").write_text(script, encoding="utf-8")
        (folder / "dot").chmod(mode)
        return f"{folder}:/usr/bin:/bin"

    def assertIsSimple(self, result, name, warning):
        self.assertEqual((result.code, result.output), (DONE, f"Wrote '{name}'\n"))
        self.assertEqual(result.errors, warning)
        self.assertEqual((self.folder / name).read_bytes(), self.simple)

    @unittest.skipUnless(shutil.which("dot"), "Graphviz is not installed")
    def test_graphviz_lays_out_the_pictures_where_it_is_installed(self):
        pages = []
        for layout in (None, "auto", "graphviz", "graphviz"):
            self.assertEqual(self.report("page.html", layout).errors, "")
            pages.append((self.folder / "page.html").read_bytes())
        self.assertEqual(set(pages), {pages[0]})
        self.assertNotEqual(pages[0], self.simple)
        text = pages[0].decode("utf-8")
        start = '<script type="application/json" id="pictures">'
        pictures = json.loads(text.split(start)[1].split("</script>")[0])
        self.assertGreater(len(pictures), 0)
        self.assertEqual(text.replace(start + text.split(start)[1].split("</script>")[0] + "</script>\n", ""),
                         self.simple.decode("utf-8"))

    def test_without_graphviz_the_page_is_the_simple_one(self):
        empty = self.folder / "empty"
        empty.mkdir()
        message = ("WARNING KYRHOST_W0054 Graphviz does not lay out the pictures around the classes, so the page "
                   "does: there is no program 'dot' on the PATH\n")
        for path in (str(empty), "", ".", self.program("#!/bin/sh\n", 0o644).split(":")[0]):
            with self.subTest(path=path):
                self.assertIsSimple(self.report("page.html", None, path), "page.html", "")
                self.assertIsSimple(self.report("page.html", "auto", path), "page.html", "")
                self.assertIsSimple(self.report("page.html", "graphviz", path), "page.html", message)
                self.assertIsSimple(self.report("page.html", "simple", path), "page.html", "")

    def test_a_graphviz_that_fails_is_told_and_the_page_is_the_simple_one(self):
        ended, odd = "'dot' has ended before it has answered", "'dot' answers what was not asked"
        for script, reason in (("#!/bin/sh\nexit 1\n", ended), ("#!/bin/sh\nkill -SEGV $$\n", ended),
                               ("\x7fELF", ended), ("#!/bin/sh\necho no >&2; cat >/dev/null\n", ended),
                               ("#!/bin/sh\nexec cat\n", odd), ("#!/bin/sh\nexec cat /dev/zero\n", odd)):
            with self.subTest(script=script):
                message = ("WARNING KYRHOST_W0054 Graphviz does not lay out the pictures around the classes, so the "
                           f"page does: {reason}\n")
                self.assertIsSimple(self.report("page.html", None, self.program(script)), "page.html", message)

    def test_simple_starts_no_program(self):
        path = self.program(f"#!/bin/sh\necho here > {self.folder}/trace\n")
        self.assertIsSimple(self.report("page.html", "simple", path), "page.html", "")
        self.assertNotIn("trace", self.names())

    def test_another_layout_is_wrong_usage(self):
        result = self.report("page.html", "pretty")
        self.assertFails(result, WRONG_USAGE, "--layout")

    def test_a_signal_leaves_no_program_and_no_page(self):
        environment = dict(os.environ, PATH=self.program(f"#!/bin/sh\nsleep 1000 &\necho $! > {self.folder}/pid\nwait\n"))
        trace = self.folder / "pid"
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP, signal.SIGKILL):
            with self.subTest(signal=number):
                process = subprocess.Popen([KYR, "report", "shop.json", "-o", "page.html"], cwd=self.folder, env=environment)
                while not (trace.exists() and trace.read_text().endswith("\n")):
                    self.assertIsNone(process.poll())
                    time.sleep(0.01)
                grandchild = int(trace.read_text())
                processes = children_of(process)
                self.assertEqual(len(processes), 1)
                # A process that is killed cannot end what its child has started.
                if number != signal.SIGKILL:
                    processes.append(grandchild)
                process.send_signal(number)
                self.assertEqual(process.wait(), -number)
                end = time.monotonic() + 30
                while any(map(is_alive, processes)) and time.monotonic() < end:
                    time.sleep(0.01)
                self.assertEqual([one for one in processes if is_alive(one)], [])
                if is_alive(grandchild):
                    os.kill(grandchild, signal.SIGKILL)
                trace.unlink()
                self.assertEqual(self.names(), ["bin", "shop.json", "simple.html"])


if __name__ == "__main__":
    unittest.main()
