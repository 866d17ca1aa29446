// Documentation, comments and tagged values of an element.
#include <gtest/gtest.h>

#include "repository/model/KYRClass.h"
#include "repository/model/KYRPropertyType.h"
#include "repository/model/KYRPropertyValue.h"
#include "tests/convert/ImportedModel.h"
#include "uml/UMLClassifiers.h"

namespace {

struct ElementMetadata : testing::Test {
  ElementMetadata() { bridge.storeModel = &model; }

  UMLComment& comment(const char* body) {
    comments.push_back(std::make_unique<UMLComment>("k", ""));
    comments.back()->body = body;
    element.addOwnedComment(comments.back().get());
    return *comments.back();
  }
  void tag(const char* name, const char* value) {
    tags.push_back(std::make_unique<UMLTaggedValue>(name, value));
    element.taggedValues.add(tags.back().get(), false);
  }
  void apply() { bridge.applyElementMetadata(&object, &element); }

  RecordingLog log;
  KYRStoreModel model;
  KYROmgUml2XmiImportBridge bridge{&log};
  UMLClass element{"Id", ""};
  UMLClass other{"other", ""};
  KYRClass object;
  std::vector<std::unique_ptr<UMLComment>> comments;
  std::vector<std::unique_ptr<UMLTaggedValue>> tags;
};

using Texts = std::vector<std::string>;

}  // namespace

TEST_F(ElementMetadata, DocumentationIsTheDescription) {
  element.documentation = "Told by the tool";
  apply();
  EXPECT_EQ(text(object.description), "Told by the tool");
  EXPECT_TRUE(object.notes.isEmpty());
}

TEST_F(ElementMetadata, OneCommentIsTheDescriptionOfAnElementWithoutOne) {
  comment("One").addAnnotatedElement(&element);
  apply();
  EXPECT_EQ(text(object.description), "One");
  EXPECT_TRUE(object.notes.isEmpty());
}

TEST_F(ElementMetadata, OneCommentBesideDocumentationIsANote) {
  element.documentation = "Documented";
  comment("One");
  apply();
  EXPECT_EQ(text(object.description), "Documented");
  EXPECT_EQ(notesOf(object), Texts{"One"});
}

TEST_F(ElementMetadata, TwoCommentsAreTwoNotesAndNoDescription) {
  comment("One");
  comment("Two").addAnnotatedElement(&element);
  apply();
  EXPECT_EQ(text(object.description), "");
  EXPECT_EQ(notesOf(object), (Texts{"One", "Two"}));
}

TEST_F(ElementMetadata, ACommentOnOthersIsIgnoredForItsOwner) {
  comment("About another").addAnnotatedElement(&other);
  comment("About this");
  apply();
  EXPECT_EQ(text(object.description), "About this");
  EXPECT_TRUE(object.notes.isEmpty());
}

TEST_F(ElementMetadata, AnnotatedIdsAreComparedWithoutRegardToCase) {
  UMLClass sameId("iD", "");
  UMLComment& both = comment("Said once");
  both.addAnnotatedElement(&sameId);
  both.addAnnotatedElement(&element);
  apply();
  EXPECT_EQ(text(object.description), "Said once");
}

TEST_F(ElementMetadata, TaggedValuesBecomeValuesOfUserProperties) {
  tag("author", "Ada");
  tag("status", "");
  tag("author", "Grace");
  apply();
  ASSERT_EQ(model.propertyTypes.count(), 2U);
  const KYRPropertyType& author = *model.propertyTypes[0];
  EXPECT_EQ(text(author.getName()), "author");
  EXPECT_EQ(author.elementType, KYRElementType::class_);
  EXPECT_EQ(author.designLevel, 0);
  EXPECT_EQ(text(author.usage), "USER");
  EXPECT_EQ(text(author.initialValue), "");
  EXPECT_EQ(text(author.dataType), "SQL_VARCHAR");
  EXPECT_EQ(text(object.getPropertyValue(&author)->value), "Grace");  // the later one stays
  EXPECT_EQ(text(object.getPropertyValue(model.propertyTypes[1])->value), "");
}

TEST_F(ElementMetadata, ManyCommentsOnOneElementCostLinearTime) {
  constexpr unsigned int count = 100000;
  for (unsigned int i = 0; i < count; ++i) comment("Said").addAnnotatedElement(&element);
  apply();
  EXPECT_EQ(object.notes.count(), count);
  EXPECT_EQ(bridge.stepCount, count);
}

TEST(ElementMetadataOfFiles, CommentsReachWhatTheyAnnotate) {
  const ImportedModel imported(
      xmi(element("Package", "xmi:id='p' name='P'",
                  element("Class", "xmi:id='c' name='C'",
                          "<ownedAttribute xmi:type='uml:Property' xmi:id='a' name='A'/>") +
                      "<ownedComment xmi:type='uml:Comment' xmi:id='k1' annotatedElement='a' body='Of A'/>"
                      "<ownedComment xmi:type='uml:Comment' xmi:id='k2'><annotatedElement xmi:idref='c'/>"
                      "<body>Of C &lt;1&gt;</body></ownedComment>")));
  EXPECT_EQ(text(imported.get<KYRObject>("a").description), "Of A");
  EXPECT_EQ(text(imported.get<KYRObject>("c").description), "Of C <1>");
  EXPECT_EQ(text(imported.get<KYRObject>("p").description), "");
}
