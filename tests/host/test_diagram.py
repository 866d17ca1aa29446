"""`kyr diagram`: a saved model, and the pictures of its diagrams."""

import json
import unittest
import xml.etree.ElementTree as ElementTree

from support import DONE, FAILED, WRONG_USAGE, CommandTest

DIAGRAM = """<ownedDiagram xmi:type="uml:Diagram" xmi:id="{id}" name="{name}"><xmi:Extension>
<diagramRepresentation><diagram:DiagramRepresentationObject umlType="Class Diagram"/>
</diagramRepresentation></xmi:Extension></ownedDiagram>"""

FRAME = """<xmi:Extension><filePart><mdOwnedViews>
<mdElement elementClass="DiagramFrame" xmi:id="f{id}"><elementID xmi:idref="{id}"/></mdElement>
<mdElement elementClass="Class" xmi:id="s{id}"><elementID xmi:idref="c"/><geometry>10, 10, 90, 60</geometry>
</mdElement></mdOwnedViews></filePart></xmi:Extension>"""


def model_file(names):
    ids = [f"d{i}" for i in range(len(names))]
    diagrams = "".join(DIAGRAM.format(id=id_, name=name) for id_, name in zip(ids, names))
    frames = "".join(FRAME.format(id=id_) for id_ in ids)
    return (
        '<xmi:XMI xmlns:xmi="http://schema.omg.org/spec/XMI/2.1" '
        'xmlns:uml="http://schema.omg.org/spec/UML/2.1">'
        '<xmi:Documentation exporter="MagicDraw UML" exporterVersion="17.0"/>'
        '<uml:Model xmi:type="uml:Model" xmi:id="m" name="Shop">'
        '<packagedElement xmi:type="uml:Package" xmi:id="p" name="P">'
        '<packagedElement xmi:type="uml:Class" xmi:id="c" name="Order &lt;1&gt;"/>'
        f"{diagrams}</packagedElement></uml:Model>{frames}</xmi:XMI>"
    )


class Drawing(CommandTest):
    def save(self, *names):
        self.write("shop.xmi", model_file(names))
        self.assertEqual(self.kyr("import", "shop.xmi", "-q").code, DONE)

    def pictures(self, folder="."):
        return sorted(path.name for path in (self.folder / folder).glob("*.svg"))

    def test_each_diagram_becomes_a_file_of_its_name(self):
        self.save("Orders", "a/b", "orders", "../x")
        result = self.kyr("diagram", "shop.json")
        self.assertEqual((result.code, result.errors), (DONE, ""))
        self.assertEqual(self.pictures(), ["Orders.svg", "_._x.svg", "a_b.svg", "orders-2.svg"])
        self.assertEqual(result.output.splitlines()[1], "Wrote 'a_b.svg'")
        root = ElementTree.parse(self.folder / "Orders.svg").getroot()
        texts = [element.text for element in root.iter("{http://www.w3.org/2000/svg}text")]
        self.assertEqual(texts, ["Order <1>"])

    def test_a_name_chooses_and_a_folder_takes(self):
        self.save("One", "Two")
        (self.folder / "out").mkdir()
        result = self.kyr("diagram", "shop.json", "--name", "Two", "-o", "out")
        self.assertEqual((result.code, result.output), (DONE, "Wrote 'out/Two.svg'\n"))
        self.assertEqual(self.pictures("out"), ["Two.svg"])
        self.assertEqual(self.pictures(), [])

    def test_the_same_model_gives_the_same_picture(self):
        self.save("One")
        self.kyr("diagram", "shop.json")
        before = (self.folder / "One.svg").read_bytes()
        self.assertEqual(self.kyr("diagram", "shop.json").code, DONE)
        self.assertEqual((self.folder / "One.svg").read_bytes(), before)

    def test_a_model_without_such_diagrams_is_a_failure(self):
        self.save()
        self.assertIn("KYRHOST_F0016", self.kyr("diagram", "shop.json").errors)
        self.save("One")
        result = self.kyr("diagram", "shop.json", "--name", "one")
        self.assertEqual(result.code, FAILED)
        self.assertIn("[KYRHOST_F0017] The model in 'shop.json' has no class diagram named 'one'", result.errors)

    def test_what_is_no_model_or_no_folder_is_a_failure(self):
        self.write("other.json", json.dumps({"format": "other"}))
        for arguments in (["other.json"], ["missing.json"], ["."]):
            result = self.kyr("diagram", *arguments)
            self.assertEqual(result.code, FAILED)
            self.assertIn("KYRSTD_", result.errors)
        self.save("One")
        self.assertEqual(self.kyr("diagram", "shop.json", "-o", "missing").code, FAILED)
        self.assertEqual(self.kyr("diagram").code, WRONG_USAGE)
        self.assertEqual(self.pictures(), [])


if __name__ == "__main__":
    unittest.main()
