// The row patch: a context row that once made an object pops the element stack at every later end
// tag, that of mere references included, and in later imports of the process too.
#include "tests/xmi/Reading.h"

namespace {

const std::string inlineThenReference = inModel(
    "<packagedElement xmi:type='uml:Class' xmi:id='c'>"
    "<ownedAttribute xmi:id='a'/>"     // untyped: made by the child row, which is patched
    "<ownedAttribute xmi:idref='b'/>"  // a reference: nothing pushed, but the class is popped
    "<ownedAttribute xmi:type='uml:Property' xmi:id='d'/>"  // so this lands in the model
    "</packagedElement>"
    "<packagedElement xmi:type='uml:Class' xmi:id='e'/>");

const std::string referenceOnly = inModel(
    "<packagedElement xmi:type='uml:Class' xmi:id='c'>"
    "<ownedAttribute xmi:idref='b'/><ownedAttribute xmi:type='uml:Property' xmi:id='d'/>"
    "</packagedElement>");

TEST(RowPatch, ThePatchedRowPopsForReferencesToo) {
  const Reading reading(inlineThenReference);
  EXPECT_EQ(reading.find("a")->owner, reading.find("c"));
  EXPECT_EQ(reading.find("d")->owner, reading.model);
  // The end of the class popped the model, so nothing is open any more.
  EXPECT_EQ(reading.find("e")->owner, nullptr);
}

TEST(RowPatch, AFreshRowDoesNotPopForAReference) {
  const Reading reading(referenceOnly);
  EXPECT_EQ(reading.find("d")->owner, reading.find("c"));
}

TEST(RowPatch, ALaterImportInTheProcessSeesThePatchedRow) {
  { const Reading patches(inlineThenReference); }
  const Reading later(referenceOnly, Reading::Rows::asLeft);
  EXPECT_EQ(later.find("d")->owner, later.model);
}

TEST(RowPatch, TheRowOfAnotherClassIsNotTouched) {
  { const Reading patches(inlineThenReference); }
  const Reading later(
      inModel("<packagedElement xmi:type='uml:Interface' xmi:id='i'><ownedAttribute xmi:idref='b'/>"
              "<ownedAttribute xmi:type='uml:Property' xmi:id='d'/></packagedElement>"),
      Reading::Rows::asLeft);
  EXPECT_EQ(later.find("d")->owner, later.find("i"));
}

TEST(RowPatch, AnEmptyStackStaysEmpty) {
  const Reading reading(
      inModel("<packagedElement xmi:type='uml:Class' xmi:id='c'><ownedAttribute xmi:id='a'/>"
              "<ownedAttribute xmi:idref='a'/><ownedAttribute xmi:idref='a'/><ownedAttribute xmi:idref='a'/>"
              "</packagedElement>"));
  EXPECT_NE(reading.find("a"), nullptr);
}

}  // namespace
