"""`kyr report`: a saved model, and its page. What the page does in a browser is tested in tests/report."""

import json
import unittest

from support import DONE, FAILED, SMALL, WRONG_USAGE, CommandTest


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


if __name__ == "__main__":
    unittest.main()
