// Pictures of class diagrams, looked at as text: what is drawn, where, and that any content is valid XML.
#include "repository/drawing/ClassDiagramDrawing.h"

#include <gtest/gtest.h>

#include <limits>
#include <sstream>

#include "foundation/KYRDOM.h"
#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRDerivedType.h"
#include "repository/model/KYRGeneralization.h"
#include "repository/model/KYRGeneralizationRole.h"
#include "repository/model/KYROperation.h"
#include "repository/model/KYRProjection.h"
#include "repository/model/KYRRelationshipProjection.h"
#include "tests/support/RecordingLog.h"
#include "tests/support/TemporaryFile.h"

namespace {

constexpr int everything = 0x190001C;

class Drawing : public testing::Test {
 protected:
  template <class Shape = KYRProjection>
  Shape& show(KYRModelObject& subject) {
    auto* const shape = new Shape();
    shape->addDiagram(&diagram);
    shape->addSubjectModelObject(&subject);
    return *shape;
  }
  KYRProjection& box(KYRClass& subject, int x, int y, int width = 100, int height = 60) {
    auto& shape = show(subject);
    shape.x = x;
    shape.y = y;
    shape.width = width;
    shape.height = height;
    shape.displayFlags = everything;
    return shape;
  }
  KYRRelationshipProjection& line(KYRModelObject& subject, const char* points) {
    auto& shape = show<KYRRelationshipProjection>(subject);
    shape.linePoints = points;
    return shape;
  }
  KYRAssociationRole* addRole(const char* name, const char* multiplicity, KYRClass& end) {
    auto* const role = new KYRAssociationRole();
    association.addAssociationRole(role);
    role->setName(name);
    role->multiplicity = multiplicity;
    role->addAssociatedClass(&end);
    return role;
  }
  KYRAttribute& addAttribute(const char* name) {
    auto* const attribute = new KYRAttribute();
    attribute->setName(name);
    first.addFeatureUniqueName(attribute, '/');
    return *attribute;
  }

  // The elements of the picture, one a line, after the white ground. It must be well-formed.
  std::vector<std::string> draw() {
    const std::string svg = drawSvg(diagram);
    const TemporaryFile file(svg);
    RecordingLog log;
    KYRDOM dom(&log);
    const std::unique_ptr<KYRDOMElement> root(dom.parseFile(file.file()));
    EXPECT_EQ(root->getTagName(), KYRString("svg"));
    std::vector<std::string> lines;
    std::istringstream text(svg);
    for (std::string row; std::getline(text, row);) lines.push_back(row);
    return lines;
  }
  static std::size_t countOf(const std::vector<std::string>& lines, const std::string& part) {
    std::size_t count = 0;
    for (const std::string& row : lines) count += row.find(part) == std::string::npos ? 0 : 1;
    return count;
  }
  bool draws(const std::string& part) { return countOf(draw(), part) > 0; }

  KYRClass first;
  KYRClass second;
  KYRAssociation association;
  KYRGeneralization generalization;
  KYRClassDiagram diagram;  // goes before what it shows
};

}  // namespace

TEST_F(Drawing, AnEmptyDiagramIsAValidPicture) {
  diagram.setName("A & B");
  const auto lines = draw();
  EXPECT_EQ(countOf(lines, "<title>A &amp; B</title>"), 1U);
  EXPECT_EQ(countOf(lines, "viewBox=\"-10 -10 20 20\""), 1U);
}

TEST_F(Drawing, ABoxStandsAtItsPlaceInItsColors) {
  first.setName("Order");
  auto& shape = box(first, 150, 230);
  shape.backgroundColor = 0x99CCFF;
  shape.lineColor = 0x0000FF;
  shape.fontColor = 0x00FF00;
  shape.lineWidth = 2;
  shape.fontName = "Arial";
  shape.fontSize = 12;
  const auto lines = draw();
  EXPECT_EQ(countOf(lines,
                    "<rect x=\"100\" y=\"200\" width=\"100\" height=\"60\" fill=\"#ffcc99\""
                    " stroke=\"#ff0000\" stroke-width=\"2\"/>"),
            1U);
  EXPECT_EQ(countOf(lines,
                    "<text x=\"150\" y=\"216\" text-anchor=\"middle\" font-family=\"'Arial', sans-serif\""
                    " font-size=\"12\" fill=\"#00ff00\" font-weight=\"bold\">Order</text>"),
            1U);
  EXPECT_EQ(countOf(lines, "viewBox=\"90 190 120 80\""), 1U);
  EXPECT_EQ(countOf(lines, "<g clip-path=\"url(#clip1)\">"), 1U);
}

TEST_F(Drawing, ABoxIsALinkWhereItIsGivenAnAddress) {
  box(first, 150, 230);
  box(second, 350, 230);
  const std::string svg = drawSvg(diagram, [this](const KYRModelObject& subject) {
    return &subject == &first ? std::string("#a\"<b") : std::string();
  });
  const std::size_t link = svg.find("<a xlink:href=\"#a&quot;&lt;b\">\n<rect x=\"100\"");
  ASSERT_NE(link, std::string::npos);
  EXPECT_LT(svg.find("</a>", link), svg.find("<rect x=\"300\""));
  EXPECT_EQ(svg.find("<a ", link + 1), std::string::npos);
  EXPECT_NE(svg.find("xmlns:xlink=\"http://www.w3.org/1999/xlink\""), std::string::npos);
  EXPECT_EQ(drawSvg(diagram).find("xlink"), std::string::npos);
}

TEST_F(Drawing, FlagsTellWhichCompartmentsShow) {
  KYRDerivedType type;
  type.setName("String");
  KYRAttribute& attribute = addAttribute("number");
  attribute.visibility = KYRVisibilityType::private_;
  attribute.initialValue = "7";
  attribute.addType(&type);
  auto* const operation = new KYROperation();
  operation->setName("pay");
  first.addOperation(operation);
  auto& shape = box(first, 100, 100, 200, 100);
  EXPECT_TRUE(draws(">-number: String = 7</text>"));
  EXPECT_TRUE(draws(">+pay()</text>"));
  shape.displayFlags = everything & ~0x100000;
  EXPECT_TRUE(draws(">-number = 7</text>"));
  shape.displayFlags = 0x4;
  EXPECT_FALSE(draws("number"));
  EXPECT_TRUE(draws(">+pay()</text>"));
  shape.displayFlags = 0x18;
  EXPECT_TRUE(draws("number"));
  EXPECT_FALSE(draws("pay"));
}

TEST_F(Drawing, AnInterfaceHasItsWordAndAnAbstractClassASlantedName) {
  first.setName("Order");
  first.isAbstract = true;
  box(first, 100, 100).isBold = true;
  EXPECT_TRUE(draws(" font-weight=\"bold\" font-style=\"italic\">Order</text>"));
  EXPECT_FALSE(draws("interface"));
  first.classCategory = KYRClassCategoryType::interface_;
  EXPECT_TRUE(draws(">\xC2\xABinterface\xC2\xBB</text>"));
}

TEST_F(Drawing, StaticFeaturesAreUnderlined) {
  addAttribute("count").isStatic = true;
  box(first, 100, 100);
  EXPECT_TRUE(draws(" text-decoration=\"underline\">+count</text>"));
}

TEST_F(Drawing, WhatCannotBeSeenInABoxIsNotWritten) {
  for (int i = 0; i < 1000; ++i) addAttribute(("a" + std::to_string(i)).c_str());
  box(first, 100, 100);
  EXPECT_LT(countOf(draw(), "<text"), 8U);
  diagram.diagramElements[0]->height = std::numeric_limits<int>::max();
  EXPECT_LT(countOf(draw(), "<text"), 310U);
}

TEST_F(Drawing, ALongNameStartsAtTheLeftAndIsCutOff) {
  first.setName(std::string(5000, 'x').c_str());
  box(first, 100, 100);
  const auto lines = draw();
  EXPECT_EQ(countOf(lines, "text-anchor=\"start\""), 1U);
  for (const std::string& row : lines) EXPECT_LT(row.size(), 700U);
}

TEST_F(Drawing, TextsAreEscapedWhateverTheyHold) {
  const struct {
    const char* name;
    const char* written;
  } rows[] = {
      {"<b>&\"'", ">&lt;b&gt;&amp;&quot;'</text>"},
      {"a\tb\nc", ">a b c</text>"},
      {"a\x01z", ">a\xEF\xBF\xBDz</text>"},
      {"a\xFFz", ">a\xEF\xBF\xBDz</text>"},
      {"a\xEF\xBF\xBFz", ">a\xEF\xBF\xBDz</text>"},
      {"\xE6\xB3\xA8\xE6\x96\x87", ">\xE6\xB3\xA8\xE6\x96\x87</text>"},
  };
  box(first, 100, 100);
  for (const auto& row : rows) {
    first.setName(row.name);
    EXPECT_TRUE(draws(row.written)) << row.name;
  }
}

TEST_F(Drawing, AFontNameCannotLeaveItsPlace) {
  first.setName("x");
  box(first, 100, 100).fontName = "A'\"; } url(http://x) <b>";
  EXPECT_TRUE(draws("font-family=\"'A  urlhttpx b', sans-serif\""));
}

TEST_F(Drawing, AnAssociationIsALineForEachRoleWithTheirTexts) {
  addRole("left", "1", first);
  addRole("right", "0..*", second);
  association.setName("knows");
  box(first, 100, 100);
  box(second, 400, 100);
  auto& own = line(association, "");
  own.displayFlags = 0x2 | 0x28 | 0x50;
  own.lineColor = 0xFF;
  line(*association.roles[0], "250,100;150,100");
  line(*association.roles[1], "250,100;350,100");
  const auto lines = draw();
  EXPECT_EQ(countOf(lines, "<polyline points=\"250,100 150,100\" fill=\"none\" stroke=\"#ff0000\""), 1U);
  EXPECT_EQ(countOf(lines, "<polyline points=\"250,100 350,100\""), 1U);
  for (const char* label : {"left", "right", ">1<", "0..*", "knows"})
    EXPECT_EQ(countOf(lines, label), 1U) << label;
  own.displayFlags = 0x50;
  EXPECT_FALSE(draws("left"));
  EXPECT_TRUE(draws("right"));
  EXPECT_FALSE(draws("knows"));
  EXPECT_FALSE(draws("<polygon"));
}

TEST_F(Drawing, LabelsKeepAwayFromOtherBoxes) {
  KYRClass near;
  addRole("left", "", first);
  addRole("right", "", second);
  box(first, 100, 100);
  box(second, 400, 100);
  line(association, "").displayFlags = 0x50;
  line(*association.roles[0], "250,100;150,100");
  line(*association.roles[1], "250,100;350,100");
  EXPECT_TRUE(draws("<text x=\"346\" y=\"93.5\""));
  box(near, 330, 60, 100, 70);  // over the line's end
  EXPECT_TRUE(draws("<text x=\"346\" y=\"115.5\""));
}

TEST_F(Drawing, ALineThatDoesNotFitIsLeftOutButNotTheName) {
  first.setName("Order");
  addAttribute("fits");
  addAttribute("doesNot");
  auto& shape = box(first, 100, 100, 100, 50);
  EXPECT_TRUE(draws("fits"));
  EXPECT_FALSE(draws("doesNot"));
  shape.height = 8;
  EXPECT_TRUE(draws("Order"));
  EXPECT_FALSE(draws("fits"));
}

TEST_F(Drawing, TheWholeBearsTheDiamondFilledForAComposition) {
  addRole("", "", first);
  addRole("", "", second)->isAggregate = true;
  box(first, 100, 100);
  box(second, 400, 100);
  line(association, "");
  line(*association.roles[0], "250,100;150,100");
  line(*association.roles[1], "250,100;350,100");
  EXPECT_TRUE(draws("<polygon points=\"150,100 158,95.5 166,100 158,104.5\" fill=\"#ffffff\""));
  association.isComposite = true;
  EXPECT_TRUE(draws("<polygon points=\"150,100 158,95.5 166,100 158,104.5\" fill=\"#000000\""));
}

TEST_F(Drawing, AnAssociationClassHangsOnADashedLine) {
  KYRClass class_;
  class_.addAssociation(&association);
  addRole("", "", first);
  addRole("", "", second);
  box(first, 100, 100);
  box(second, 400, 100);
  box(class_, 250, 300);
  line(association, "");
  line(*association.roles[0], "250,100;150,100");
  line(*association.roles[1], "250,100;350,100");
  EXPECT_TRUE(
      draws("<polyline points=\"250,100 250,270\" fill=\"none\" stroke=\"#000000\" stroke-width=\"1\""
            " stroke-dasharray"));
}

TEST_F(Drawing, AGeneralizationHasItsTriangleAtTheSupertype) {
  KYRGeneralizationRole* const super = getSupertypeGeneralizationRole(&generalization, &first, true);
  KYRGeneralizationRole* const sub = getSubtypeGeneralizationRole(&generalization, &second, true);
  box(first, 100, 100);
  box(second, 100, 400);
  auto& superLine = line(*super, "100,130;100,250");
  auto& subLine = line(*sub, "100,250;100,370");
  show(generalization);
  EXPECT_TRUE(draws("<polygon points=\"100,130 107,144 93,144\" fill=\"#ffffff\""));
  EXPECT_TRUE(draws("<polyline points=\"100,250 100,144\""));
  EXPECT_TRUE(draws("<polyline points=\"100,250 100,370\""));
  EXPECT_EQ(countOf(draw(), "<rect"), 5U);  // the ground, two boxes and their clips: a marker is no box
  superLine.linePoints.empty();
  subLine.linePoints.empty();
  EXPECT_TRUE(draws("<polygon points=\"100,130 107,144 93,144\""));  // straight from box to box
}

TEST_F(Drawing, LinesEndAtTheBordersOfBoxes) {
  addRole("", "", first);
  addRole("", "", second);
  box(first, 100, 100);
  box(second, 400, 100);
  line(association, "");
  auto& role = line(*association.roles[0], "250,100;100,100");
  EXPECT_TRUE(draws("points=\"250,100 150,100\""));  // from inside back to the border
  role.linePoints = "250,100;155,100";
  EXPECT_TRUE(draws("points=\"250,100 150,100\""));  // a little short
  role.linePoints = "250,100;200,100";
  EXPECT_TRUE(draws("points=\"250,100 200,100 150,100\""));  // far off
  line(*association.roles[1], "");
  role.linePoints = "";
  EXPECT_TRUE(draws("points=\"250,100 150,100\""));  // from half way between the boxes
}

TEST_F(Drawing, OddModelsGiveValidPictures) {
  constexpr int largest = std::numeric_limits<int>::max();
  constexpr int smallest = std::numeric_limits<int>::min();
  addRole("", "", first);
  getSubtypeGeneralizationRole(&generalization, &first, true);
  box(first, largest, smallest, largest, largest).fontSize = largest;
  box(second, smallest, largest, smallest, smallest).lineWidth = largest;
  association.setName("name");
  association.roles[0]->setName("role");
  auto& own = line(association, "nonsense");
  own.displayFlags = -1;
  own.fontSize = largest;
  line(*association.roles[0], "2147483647,-2147483648");
  addRole("other", "*", second);
  line(*association.roles[1], "-2147483648,2147483647;-2147483648,2147483647;2147483647,2147483647");
  line(*generalization.subtypeRoles[0], "0,0;0,0;0,0");
  line(generalization, "1,1;2,2");
  auto* const loose = new KYRRelationshipProjection();
  loose->addDiagram(&diagram);
  (new KYRProjection())->addDiagram(&diagram);
  const auto lines = draw();
  EXPECT_EQ(countOf(lines, "nan"), 0U);
  EXPECT_EQ(countOf(lines, "inf"), 0U);
  EXPECT_EQ(countOf(lines, "width=\"16384\""), 1U);  // of a size that viewers take
}
