"""Files that mean harm: names that page, picture, statements, JSON and terminal must not obey, and references that
would reach for something outside."""

import html.parser
import json
import re
import socket
import sqlite3
import unittest
import xml.etree.ElementTree as ElementTree
from xml.sax.saxutils import quoteattr

from support import DONE, FAILED, CommandTest, model_text, saved_objects
from test_diagram import model_file

# A name that breaks out of a form must be kept in every form.
NAMES = [
    "</script><script>alert(1)</script>",
    "<!--<script>",
    "]]></text><script>alert(2)</script>",
    "\" onload=\"alert(3)\" '",
    "'); DROP TABLE objects; --",
    "\\'; \\x27 \\",
    "$$; SELECT 17; $$",
    "\"},{\"class\":\"KYRClass\"",
    "\x9b2J\x9d0;title\x9c\x85\u2028",  # controls of terminals, and line ends of scripts
    "user\u202etxt.exe\u2066\u200f",  # marks that turn the direction of writing
    "\ufffd\U0001f600\U0010fffd",
    "a\tb\nc\rd",
    "L" + "o" * (1 << 20) + "ng",
]
OBEYED = re.compile("[\x00-\x09\x0b-\x1f\x7f-\x9f\u200e\u200f\u202a-\u202e\u2066-\u2069]")


def attribute(text):
    """As an attribute of XML that comes back as it is."""
    return quoteattr(text, {character: f"&#{ord(character)};" for character in "\t\n\r\x85\u2028\x9b\x9c\x9d"})


class Page(html.parser.HTMLParser):
    """The elements of a page and what its scripts hold."""

    def __init__(self, text):
        super().__init__()
        self.tags, self.scripts, self.open = [], [], False
        self.feed(text)

    def handle_starttag(self, tag, attrs):
        self.tags.append(tag)
        self.open = tag == "script"
        if self.open:
            self.scripts.append([dict(attrs), ""])
        assert not any(name.startswith("on") for name, _ in attrs), attrs

    def handle_data(self, data):
        if self.open:
            self.scripts[-1][1] += data

    def handle_endtag(self, tag):
        self.open = False


class Names(CommandTest):
    def setUp(self):
        super().setUp()
        self.write("shop.xmi", model_text("Shop", "".join(
            f'<packagedElement xmi:type="uml:Class" xmi:id="c{i}" name={attribute(name)}/>'
            for i, name in enumerate(NAMES))))
        self.assertEqual(self.kyr("import", "shop.xmi", "-q").code, DONE)

    def test_json_has_them_as_they_are(self):
        names = {item["name"] for item in saved_objects(self.folder / "shop.json") if item["class"] == "KYRClass"}
        self.assertEqual(names, set(NAMES))

    def test_a_database_has_them_as_they_are(self):
        self.assertEqual(self.kyr("import", "shop.xmi", "-q", "-o", "shop.sqlite").code, DONE)
        connection = sqlite3.connect(self.folder / "shop.sqlite")
        try:
            names = {name for (name,) in connection.execute("SELECT name FROM classes")}
        finally:
            connection.close()
        self.assertEqual(names, set(NAMES))

    def test_statements_have_them_inside_of_quotes(self):
        self.assertEqual(self.kyr("import", "shop.xmi", "-q", "-o", "shop.sql").code, DONE)
        text = (self.folder / "shop.sql").read_bytes().decode("utf-8")
        literals = re.findall(r"'((?:[^']|'')*)'", text)
        self.assertLessEqual(set(NAMES), {literal.replace("''", "'") for literal in literals})
        rest = re.sub(r"'(?:[^']|'')*'", "''", text)
        self.assertIsNone(re.search(r"DROP|alert|SELECT 17|title|\x9b|\\|KYRClass\"", rest))

    def test_a_page_gains_no_element_by_them(self):
        self.assertEqual(self.kyr("report", "shop.json").code, DONE)
        page = Page((self.folder / "shop.html").read_bytes().decode("utf-8"))
        self.write("plain.xmi", model_text())
        self.kyr("import", "plain.xmi", "-q")
        self.kyr("report", "plain.json")
        self.assertEqual(page.tags, Page((self.folder / "plain.html").read_text(encoding="utf-8")).tags)
        self.assertIn("meta", page.tags)
        model = next(text for attributes, text in page.scripts if attributes.get("id") == "model")
        self.assertEqual(json.loads(model), json.loads((self.folder / "shop.json").read_bytes()))

    def test_a_picture_has_them_as_texts(self):
        text = model_file(["Orders"]).replace('name="Order &lt;1&gt;"', f"name={attribute(' '.join(NAMES))}")
        self.write("drawn.xmi", text)
        self.assertEqual(self.kyr("import", "drawn.xmi", "-q").code, DONE)
        self.assertEqual(self.kyr("diagram", "drawn.json").code, DONE)
        root = ElementTree.parse(self.folder / "Orders.svg").getroot()
        self.assertIn("alert(1)", "".join(root.itertext()))
        self.assertFalse(list(root.iter("{http://www.w3.org/2000/svg}script")))
        self.assertFalse([key for item in root.iter() for key in item.attrib if key.startswith("on")])

    def test_a_terminal_gets_nothing_that_it_would_obey(self):
        content = json.loads((self.folder / "shop.json").read_bytes())
        content["model"]["name"] = "Other"
        objects = [item for item in self.objects_of(content) if item.get("class") == "KYRClass"]
        for item in objects:
            item["description"] = item["name"]
        self.write("other.json", json.dumps(content))
        for arguments in (["diff", "shop.json", "other.json"], ["inspect", "shop.xmi"],
                          ["inspect", "shop.xmi", "--objects"], ["diagram", "shop.json", "--name", NAMES[8]],
                          ["import", "shop.xmi", "--root-package", NAMES[8]]):
            with self.subTest(arguments=arguments[:3]):
                result = self.kyr(*arguments)
                for stream in (result.output, result.errors):
                    self.assertIsNone(OBEYED.search(stream))

    def objects_of(self, value):
        if isinstance(value, dict):
            yield value
        for inner in value.values() if isinstance(value, dict) else value if isinstance(value, list) else ():
            yield from self.objects_of(inner)


class BrokenTexts(CommandTest):
    """What no XML file can hold, but a saved model can."""

    def test_half_a_surrogate_and_zero_bytes_do_no_harm(self):
        self.write("shop.xmi", model_file(["Orders"]))
        self.kyr("import", "shop.xmi", "-q")
        saved = (self.folder / "shop.json").read_text(encoding="utf-8")
        for text in ("\\ud800", "\\udc00\\ud800", "a\\u0000b", "\\u001b[2J", "\\ufffe\\uffff"):
            with self.subTest(text=text):
                self.write("odd.json", saved.replace('"Order <1>"', f'"{text}"'))
                for command in ("diagram", "report"):
                    result = self.kyr(command, "odd.json", "-o", ".")
                    self.assertIn(result.code, (DONE, FAILED))
                    if result.code == FAILED:
                        self.assertRegex(result.errors, r"\[KYRSTD_F0\d+\] .*odd\.json")
                    elif command == "diagram":
                        ElementTree.parse(self.folder / "Orders.svg")
                    else:
                        Page((self.folder / "odd.html").read_bytes().decode("utf-8"))
                for other in ("shop.json", "odd.json"):
                    self.assertIsNone(OBEYED.search(self.kyr("diff", "shop.json", other).output))


class Reaching(CommandTest):
    """References to what is outside of the file: nobody is called, and nothing that is there is taken in."""

    def setUp(self):
        super().setUp()
        self.listener = socket.create_server(("127.0.0.1", 0))
        self.addCleanup(self.listener.close)
        self.url = f"http://127.0.0.1:{self.listener.getsockname()[1]}/types.xml"
        self.write("secret.txt", "SECRET")

    def assertNobodyCalled(self):
        self.listener.settimeout(0.05)
        with self.assertRaises(TimeoutError):
            self.listener.accept()

    def test_entities_and_document_types_are_never_fetched(self):
        secret = (self.folder / "secret.txt").as_uri()
        body = model_text(content='<packagedElement xmi:type="uml:Class" xmi:id="c" name="C">&e;</packagedElement>')
        head, rest = body.split("\n", 1)
        for doctype in (f'<!DOCTYPE x SYSTEM "{self.url}">',
                        f'<!DOCTYPE x PUBLIC "-//A//B" "{secret}">',
                        '<!DOCTYPE x [<!ENTITY e SYSTEM "secret.txt">]>',
                        f'<!DOCTYPE x [<!ENTITY e SYSTEM "{secret}">]>',
                        f'<!DOCTYPE x [<!ENTITY e SYSTEM "{self.url}">]>',
                        f'<!DOCTYPE x [<!ENTITY % p SYSTEM "{self.url}"> %p;]>',
                        '<!DOCTYPE x [<!ENTITY % p SYSTEM "/dev/zero"> %p;]>'):
            with self.subTest(doctype=doctype):
                self.write("shop.xmi", f"{head}\n{doctype}\n{rest if 'ENTITY e' in doctype else rest.replace('&e;', '')}")
                result = self.kyr("import", "shop.xmi", "-o", "shop.json")
                self.assertIn(result.code, (DONE, FAILED))
                self.assertNotIn("SECRET", result.errors + result.output)
                if result.code == DONE:
                    self.assertNotIn(b"SECRET", (self.folder / "shop.json").read_bytes())
        self.assertNobodyCalled()

    def test_references_lead_to_no_address_and_no_device(self):
        for reference in (self.url, f"//{self.url[7:]}", (self.folder / "secret.txt").as_uri(), "/dev/zero"):
            with self.subTest(reference=reference):
                self.write("shop.xmi", model_text(content=(
                    '<packagedElement xmi:type="uml:Class" xmi:id="c" name="C"><ownedAttribute '
                    'xmi:type="uml:Property" xmi:id="a" name="a"><type href="' + reference + '#t"/></ownedAttribute>'
                    '</packagedElement>')))
                result = self.kyr("import", "shop.xmi", "-o", "shop.json")
                self.assertEqual(result.code, DONE, result.errors)
                self.assertNotIn("SECRET", result.errors + result.output)
                self.assertNotIn(b"SECRET", (self.folder / "shop.json").read_bytes())
        self.assertNobodyCalled()


if __name__ == "__main__":
    unittest.main()
