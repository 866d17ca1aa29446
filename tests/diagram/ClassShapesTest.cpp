// Boxes of classes: their place, colours, font and flags.
#include <gtest/gtest.h>

#include <limits>

#include "repository/model/KYRDesignPackage.h"
#include "tests/diagram/DrawnModel.h"

namespace {

// The box of class "a" with these parts.
class DrawnBox {
 public:
  explicit DrawnBox(const std::string& content) : model_(shape("Class", "A", "a", content)) {}
  KYRProjection* operator->() const { return &model_.box("a"); }

 private:
  DrawnModel model_;
};

std::string placeOf(const std::string& numbers) {
  const DrawnBox box(geometry(numbers));
  return std::to_string(box->x) + "," + std::to_string(box->y) + " " + std::to_string(box->width) + "x" +
         std::to_string(box->height);
}

std::int32_t fillOf(const std::string& content) { return DrawnBox(properties(content))->backgroundColor; }

}  // namespace

TEST(ClassShapes, WithoutPropertiesABoxHasTheDefaults) {
  const DrawnBox box(geometry("100, 100, 50, 40"));
  EXPECT_EQ(box->displayFlags, 0x190001C);
  EXPECT_EQ(box->backgroundColor, 0x99CCFF);
  EXPECT_EQ(box->lineColor, 0x5C7999);
  EXPECT_EQ(box->fontColor, 0);
  EXPECT_EQ(text(box->fontName), "Arial");
  EXPECT_EQ(box->fontSize, 11);
  EXPECT_FALSE(box->isBold);
  EXPECT_FALSE(box->isItalic);
  EXPECT_FALSE(box->autoSize);
  EXPECT_EQ(box->lineWidth, 0);
}

TEST(ClassShapes, ThePropertiesOfABoxAreReadButNotTheWidthOfItsPen) {
  const DrawnBox box(
      properties(color("FILL_COLOR", "16711680") + color("TEXT_COLOR", "255") + color("PEN_COLOR", "65280") +
                 lineWidth("4") + flag("SUPPRESS_CLASS_ATTRIBUTES") +
                 property("BooleanProperty", "AUTOSIZE", valued("value", "TRUE")) +
                 property("FontProperty", "FONT", valued("size", "14") + valued("style", "3"))));
  EXPECT_EQ(box->backgroundColor, 0xFF);
  EXPECT_EQ(box->fontColor, 0xFF0000);
  EXPECT_EQ(box->lineColor, 0xFF00);
  EXPECT_EQ(box->lineWidth, 0);
  EXPECT_EQ(box->displayFlags, 0x1900004);
  EXPECT_TRUE(box->autoSize);
  EXPECT_TRUE(box->isBold);
  EXPECT_TRUE(box->isItalic);
  EXPECT_EQ(box->fontSize, 14);
  EXPECT_TRUE(box->fontName.isEmpty());
}

TEST(ClassShapes, TheFillIsWhiteWhereverTheSwitchStands) {
  const std::string fill = color("FILL_COLOR", "16711680");
  EXPECT_EQ(fillOf(fill), 0xFF);
  EXPECT_EQ(fillOf(fill + flag("USE_FILL_COLOR")), 0xFFFFFF);
  EXPECT_EQ(fillOf(property("BooleanProperty", "USE_FILL_COLOR", valued("value", "true")) + fill), 0xFFFFFF);
  EXPECT_EQ(fillOf(property("BooleanProperty", "USE_FILL_COLOR", valued("value", "false"))), 0xFFFFFF);
}

TEST(ClassShapes, AnEmptyColorLeavesTheFieldUnset) {
  const DrawnBox box(properties(color("FILL_COLOR", "") + color("PEN_COLOR", "") + color("TEXT_COLOR", "")));
  EXPECT_EQ(box->backgroundColor, 0);
  EXPECT_EQ(box->lineColor, 0);
  EXPECT_EQ(box->fontColor, 0);
  EXPECT_EQ(fillOf(""), 0x99CCFF);
}

TEST(ClassShapes, ANegativeColorIsWhite) { EXPECT_EQ(fillOf(color("FILL_COLOR", "-1")), 0xFFFFFF); }

TEST(ClassShapes, OnlyTrueMakesABoxSizeItself) {
  const auto autoSize = [](const std::string& value) {
    return DrawnBox(properties(property("BooleanProperty", "AUTOSIZE", value)))->autoSize;
  };
  EXPECT_TRUE(autoSize(valued("value", "true")));
  EXPECT_FALSE(autoSize(valued("value", "false")));
  EXPECT_FALSE(autoSize(valued("value", "")));
  EXPECT_FALSE(autoSize(""));
}

TEST(ClassShapes, APlaceIsTheScaledCentre) {
  EXPECT_EQ(placeOf("100, 100, 50, 40"), "162,138 65x46");
  EXPECT_EQ(placeOf("101, 100, 51, 41"), "163,138 66x47");  // halves are whole numbers of the file
  EXPECT_EQ(placeOf("-100, -100, 10, 10"), "0,0 13x11");
  EXPECT_EQ(placeOf("10, 10, -5, -5"), "10,9 -6x-5");  // -5 / 2 is -2
  EXPECT_EQ(placeOf("1, 2, 3"), "0,0 0x0");
  EXPECT_EQ(placeOf("2147483647, 99999999999, 2147483647, 99999999999"),
            "2147483647,2147483647 2147483647x2147483647");
  EXPECT_EQ(placeOf("-99999999999, -2147483648, -99999999999, -2147483648"), "0,0 -2147483648x-2147483648");
}

TEST(ClassShapes, WithoutAGeometryABoxHasNoPlace) {
  const DrawnBox box("");
  EXPECT_EQ(box->x, 0);
  EXPECT_EQ(box->height, 0);
}

TEST(ClassShapes, AnInterfaceAndASecondBoxOfAClassAreDrawnAndListedOnce) {
  const DrawnModel model(shape("interface", "I", "i") + shape("CLASS", "A", "a") + shape("Class", "A2", "a"));
  EXPECT_EQ(model.drawn<KYRProjection>("i").size(), 1U);
  EXPECT_EQ(model.drawn<KYRProjection>("a").size(), 2U);
  EXPECT_EQ(model.diagram().modelElements.count(), 2U);
  EXPECT_EQ(model.box("i").getDiagram(), &model.diagram());
}

TEST(ClassShapes, ABoxOfSomethingElseIsDroppedUnlessADiagramCanListIt) {
  const DrawnModel model(shape("Class", "E", "ea") + shape("Class", "P", "p") + shape("Class", "M", "model") +
                         shape("Class", "R", "ab"));
  EXPECT_EQ(model.drawn<KYRProjection>("ea").size(), 1U);  // the role of an association that is listed
  EXPECT_TRUE(model.drawn<KYRProjection>("p").empty());
  EXPECT_EQ(model.drawingCount(), 2U);
  EXPECT_EQ(model.drawn<KYRProjection>("ab").size(), 1U);
  EXPECT_EQ(model.diagram().modelElements.count(), 1U);
}
