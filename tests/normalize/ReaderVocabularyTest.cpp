// The vocabulary says what the reader does, by the reader's own tables.
#include "normalize/ReaderVocabulary.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/support/MadeElement.h"
#include "uml/UMLClasses.h"
#include "uml/UMLMetamodel.h"
#include "uml/read/ClassPlan.h"
#include "xmi/DispatchRows.h"
#include "xmi/ReaderNames.h"

namespace {

const ReaderVocabulary& vocabulary = ReaderVocabulary::get();

TEST(ReaderVocabulary, KnowsEveryType) {
  for (int kind = 0; kind < UMLLineage::kindCount; ++kind) {
    EXPECT_EQ(vocabulary.kindOfType(ReaderVocabulary::typeOfKind(kind)), kind);
    EXPECT_EQ(vocabulary.find(ReaderVocabulary::typeOfKind(kind)).kindOfTag, kind);
  }
  EXPECT_EQ(vocabulary.kindOfType("uml:Port"), ReaderVocabulary::none);
  EXPECT_EQ(vocabulary.kindOfType("Class"), ReaderVocabulary::none);
}

// The answer of the reader's own table, asked with an object of the kind.
TEST(ReaderVocabulary, FindsTheRowThatTheReaderTakes) {
  TagHandlerHashtable table(256);
  for (TagHandler& row : DispatchRows::get().context) {
    if (row.tag != nullptr) table.add(&row, false, nullptr);
  }
  for (int kind = 0; kind < UMLLineage::kindCount; ++kind) {
    const std::unique_ptr<UMLElement> object = madeElement(kind);
    for (const TagHandler& row : DispatchRows::get().context) {
      if (row.tag == nullptr) continue;
      ASSERT_EQ(ReaderVocabulary::findRow(vocabulary.find(row.tag), kind),
                table.findInContext(row.tag, *object))
          << row.tag << " in " << ReaderVocabulary::typeOfKind(kind);
    }
  }
}

TEST(ReaderVocabulary, KnowsTheScalarsAndReferencesOfEachClass) {
  for (int kind = 0; kind < UMLLineage::kindCount; ++kind) {
    const ClassPlan& plan = ClassPlan::of(kind);
    for (int name = 0; name < ReaderNames::get().getCount(); ++name) {
      bool isScalar = false;
      bool isReference = false;
      for (const auto& scalar : plan.scalars) isScalar = isScalar || scalar.attribute == name;
      for (const auto& reference : plan.references) isReference = isReference || reference.attribute == name;
      ASSERT_EQ(vocabulary.hasScalar(kind, name), isScalar);
      ASSERT_EQ(vocabulary.hasReference(kind, name), isReference);
    }
  }
  EXPECT_FALSE(vocabulary.hasScalar(UMLClass::kind, ReaderVocabulary::none));
}

TEST(ReaderVocabulary, KnowsWhatIsPassedOver) {
  for (const char* tag : {"eAnnotations", "uml:Profile", "xmi:Extension", "profileApplication"}) {
    EXPECT_TRUE(vocabulary.find(tag).isSkipped) << tag;
  }
  for (const char* tag : {"packagedElement", "type", "oddity"})
    EXPECT_FALSE(vocabulary.find(tag).isSkipped) << tag;
}

TEST(ReaderVocabulary, NamesAreAskedForWithoutRegardToCase) {
  EXPECT_NE(ReaderVocabulary::findAskedFor("XMI:Type"), ReaderVocabulary::none);
  EXPECT_EQ(ReaderVocabulary::findAskedFor("colour"), ReaderVocabulary::none);
  EXPECT_EQ(vocabulary.find("Name").readerName, ReaderVocabulary::none);
}

}  // namespace
