// Display properties as shapes have them: found by class and name, present or absent, with and without a
// value.
#include "diagram/ShapeProperties.h"

#include <gtest/gtest.h>

#include <limits>

#include "repository/model/KYRProjection.h"
#include "tests/diagram/DrawnModel.h"

namespace {

using Bridge = KYROmgUml2XmiImportBridge;

// A shape that stands alone in a file.
class ParsedShape {
 public:
  explicit ParsedShape(const std::string& content) : file_("<mdElement>" + content + "</mdElement>") {
    KYRDOM dom(&log_);
    root_.reset(dom.parseFile(file_.file()));
  }
  const KYRDOMElement* operator*() const { return root_.get(); }

 private:
  TemporaryFile file_;
  RecordingLog log_;
  std::unique_ptr<KYRDOMElement> root_;
};

int flagsOf(const std::string& content) { return Bridge::readDisplayFlags(*ParsedShape(content)); }

KYRProjection& penned(KYRProjection& target, const std::string& content) {
  readPen(*ParsedShape(properties(content)), target);
  return target;
}

}  // namespace

TEST(ShapeProperties, AreFoundByClassAndNameWithoutRegardToCase) {
  const ParsedShape found(properties(color("OTHER", "1") + flag("fill_color") +
                                     property("COLORproperty", "Fill_Color", valued("value", "2")) +
                                     color("FILL_COLOR", "3")));
  const KYRDOMElement* const first = Bridge::findProperty("FILL_COLOR", "ColorProperty", *found);
  ASSERT_NE(first, nullptr);
  EXPECT_EQ(text(first->getFirstElement("value")->getAttribute("xmi:value")), "2");
  EXPECT_EQ(Bridge::findProperty("PEN_COLOR", "ColorProperty", *found), nullptr);
  EXPECT_EQ(Bridge::findProperty("FILL_COLOR", "NumberProperty", *found), nullptr);
}

TEST(ShapeProperties, WithoutANameAPropertyIsNoneOfThem) {
  const ParsedShape shape(properties("<mdElement elementClass='ColorProperty'/>"));
  EXPECT_EQ(Bridge::findProperty("FILL_COLOR", "ColorProperty", *shape), nullptr);
  EXPECT_EQ(Bridge::findProperty("FILL_COLOR", "ColorProperty", *ParsedShape("")), nullptr);
  EXPECT_EQ(Bridge::findProperty("FILL_COLOR", "ColorProperty", *ParsedShape(color("FILL_COLOR", "1"))),
            nullptr);
}

TEST(ShapeProperties, DisplayFlagsTellWhatIsNotSuppressed) {
  const std::string attributes = flag("SUPPRESS_CLASS_ATTRIBUTES");
  const std::string types = flag("SHOW_ATTRIBUTES_TYPE");
  const std::string stereotypes = flag("SHOW_ATTRIBUTES_STEREOTYPE");
  EXPECT_EQ(flagsOf(""), 0x190001C);
  EXPECT_EQ(flagsOf(properties("")), 0x190001C);
  EXPECT_EQ(flagsOf(properties(attributes)), 0x1900004);
  EXPECT_EQ(flagsOf(properties(types)), 0x180001C);
  EXPECT_EQ(flagsOf(properties(stereotypes)), 0x10001C);
  EXPECT_EQ(flagsOf(properties(attributes + types + stereotypes)), 0x4);
  EXPECT_EQ(flagsOf(properties(property("ColorProperty", "SUPPRESS_CLASS_ATTRIBUTES"))), 0x190001C);
}

TEST(ShapeProperties, ColorsSwapRedAndBlueAndLoseTheirTopByte) {
  EXPECT_EQ(Bridge::swapColor(0xFF0000), 0xFF);
  EXPECT_EQ(Bridge::swapColor(0x123456), 0x563412);
  EXPECT_EQ(Bridge::swapColor(0x7F123456), 0x563412);
  EXPECT_EQ(Bridge::swapColor(-1), 0xFFFFFF);
  EXPECT_EQ(Bridge::swapColor(0), 0);
}

TEST(ShapeProperties, AColorWithoutAValueLeavesTheFieldButCountsAsPresent) {
  const auto read = [](const std::string& content, int& value) {
    return readColor(*ParsedShape(properties(content)), "PEN_COLOR", value);
  };
  int value = 7;
  EXPECT_FALSE(read("", value));
  EXPECT_TRUE(read(color("PEN_COLOR", ""), value));
  EXPECT_TRUE(read(property("ColorProperty", "PEN_COLOR"), value));
  EXPECT_EQ(value, 7);
  EXPECT_TRUE(read(color("PEN_COLOR", "red"), value));
  EXPECT_EQ(value, 0);
  EXPECT_TRUE(read(color("PEN_COLOR", "16711680"), value));
  EXPECT_EQ(value, 0xFF);
  EXPECT_TRUE(read(color("PEN_COLOR", "99999999999"), value));
  EXPECT_EQ(value, 0xFFFFFF);
}

TEST(ShapeProperties, APenHasColorAndWidthOnlyWhereTheyAreTold) {
  KYRProjection target;
  penned(target, color("PEN_COLOR", "255") + lineWidth("3"));
  EXPECT_EQ(target.lineColor, 0xFF0000);
  EXPECT_EQ(target.lineWidth, 3);
  penned(target, color("PEN_COLOR", "") + lineWidth(""));
  penned(target, "");
  EXPECT_EQ(target.lineColor, 0xFF0000);
  EXPECT_EQ(target.lineWidth, 3);
  penned(target, lineWidth("-99999999999"));
  EXPECT_EQ(target.lineWidth, std::numeric_limits<int>::min());
}

TEST(ShapeProperties, TheFontIsArialElevenUnlessTheShapeHasOne) {
  KYRProjection target;
  readFont(*ParsedShape(""), target);
  EXPECT_EQ(text(target.fontName), "Arial");
  EXPECT_EQ(target.fontSize, 11);
  EXPECT_FALSE(target.isBold);
  EXPECT_FALSE(target.isItalic);
  KYRProjection other;
  readFont(*ParsedShape(properties(property("FontProperty", "FONT"))), other);
  EXPECT_TRUE(other.fontName.isEmpty());
  EXPECT_EQ(other.fontSize, 0);
}

TEST(ShapeProperties, TheStyleOfAFontIsItsNumberAsAText) {
  const struct {
    const char* style;
    bool isBold;
    bool isItalic;
  } rows[] = {{"0", false, false}, {"1", true, false}, {"2", false, true},  {"3", true, true},
              {"4", false, false}, {"", false, false}, {" 1", false, false}};
  for (const auto& row : rows) {
    KYRProjection target;
    const std::string font =
        property("FontProperty", "FONT",
                 "<fontName>Courier</fontName>" + valued("size", "9") + valued("style", row.style));
    readFont(*ParsedShape(properties(font)), target);
    EXPECT_EQ(target.isBold, row.isBold) << row.style;
    EXPECT_EQ(target.isItalic, row.isItalic) << row.style;
    EXPECT_EQ(text(target.fontName), "Courier");
    EXPECT_EQ(target.fontSize, 9);
  }
}

TEST(ShapeProperties, TheSizeOfAFontIsReadAsFarAsItGoes) {
  const struct {
    const char* size;
    int expected;
  } rows[] = {{"9", 9},   {"", 7},      {"x", 0},
              {"-3", -3}, {"12pt", 12}, {"99999999999", std::numeric_limits<int>::max()}};
  for (const auto& row : rows) {
    KYRProjection target;
    target.fontSize = 7;
    readFont(*ParsedShape(properties(property("FontProperty", "FONT", valued("size", row.size)))), target);
    EXPECT_EQ(target.fontSize, row.expected) << row.size;
  }
}
