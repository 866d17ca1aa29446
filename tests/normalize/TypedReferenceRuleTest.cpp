// A type beside a reference goes when the element can be nothing else than a reference.
#include "normalize/TypedReferenceRule.h"

#include "tests/normalize/NormalizedFile.h"

namespace {

TEST(TypedReferenceRule, TheTypeOfAReferenceGoes) {
  expectCases<TypedReferenceRule>(
      NormalizeRule::typedReference,
      {{"a reference", "<type xmi:type='uml:Class' xmi:idref='c'/>", "<type xmi:idref='c'/>"},
       {"an empty id", "<type xmi:type='uml:Class' xmi:id='' xmi:idref='c'/>",
        "<type xmi:id='' xmi:idref='c'/>"},
       {"an element with an id", "<type xmi:type='uml:Class' xmi:id='t' xmi:idref='c'/>", ""},
       {"no reference", "<type xmi:type='uml:Class'/>", ""},
       {"an empty reference", "<type xmi:type='uml:Class' xmi:idref=''/>", ""},
       {"a class as a tag", "<uml:Class xmi:type='uml:Class' xmi:idref='c'/>", ""},
       {"a tag of XMI", "<xmi:Something xmi:type='uml:Class' xmi:idref='c'/>", ""},
       {"inside an extension", "<xmi:Extension><a xmi:type='uml:Class' xmi:idref='c'/></xmi:Extension>",
        ""}});
}

TEST(TypedReferenceRule, TheImportedModelIsThatOfPlainReferences) {
  const auto model = [](const std::string& type) {
    return xmi(element("Class", "xmi:id='c' name='C'",
                       "<ownedAttribute xmi:type='uml:Property' xmi:id='a' name='a'><type " + type +
                           " xmi:idref='d'/></ownedAttribute>") +
               element("Class", "xmi:id='d' name='D'"));
  };
  EXPECT_NE(imported(model("xmi:type='uml:Class'")), imported(model("")));
  EXPECT_EQ(imported(normalized(model("xmi:type='uml:Class'"))), imported(model("")));
}

}  // namespace
