"""`kyr report`: a saved model, and its page. What the page does in a browser is tested in tests/report."""

import json
import unittest

from support import DONE, FAILED, SMALL, WRONG_USAGE, CommandTest


class Reporting(CommandTest):
    def save(self):
        self.assertEqual(self.kyr("import", SMALL, "-q", "-o", "shop.json").code, DONE)

    def model_in(self, name):
        page = (self.folder / name).read_text(encoding="utf-8")
        start = '<script type="application/json" id="model">'
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
