// Untyped elements get the type that the reader would make them as.
#include "normalize/DeclaredTypeRule.h"

#include "tests/normalize/NormalizedFile.h"
#include "xmi/TagHandler.h"

namespace {

std::string property(const std::string& content, const std::string& id = "a") {
  return "<ownedAttribute xmi:type='uml:Property' xmi:id='" + id + "' name='" + id + "'>" + content +
         "</ownedAttribute>";
}

std::string classWith(const std::string& content) { return element("Class", "xmi:id='c' name='C'", content); }

TEST(DeclaredTypeRule, ElementsGetTheClassOfTheirRow) {
  expectCases<DeclaredTypeRule>(
      NormalizeRule::declaredType,
      {{"a property", classWith("<ownedAttribute xmi:id='a'/>"),
        classWith("<ownedAttribute xmi:type='uml:Property' xmi:id='a'/>")},
       {"what stands for another file", classWith(property("<type href='x#y'/>")),
        classWith(property("<type xmi:type='uml:Type' href='x#y'/>"))},
       {"an empty type", classWith("<ownedAttribute xmi:type='' xmi:id='a'/>"),
        classWith("<ownedAttribute xmi:type='uml:Property' xmi:id='a'/>")},
       {"an empty reference", classWith("<ownedAttribute xmi:idref='' xmi:id='a'/>"),
        classWith("<ownedAttribute xmi:type='uml:Property' xmi:idref='' xmi:id='a'/>")},
       {"the row of the most derived class",
        classWith("<ownedOperation xmi:type='uml:Operation' xmi:id='o'><ownedParameter "
                  "xmi:id='q'/></ownedOperation>"),
        classWith(
            "<ownedOperation xmi:type='uml:Operation' xmi:id='o'><ownedParameter xmi:type='uml:Parameter' "
            "xmi:id='q'/></ownedOperation>")},
       {"a reference", classWith(property("<type xmi:idref='d'/>")), ""},
       {"a typed element", classWith(property("")), ""},
       {"a tag without a row there", classWith("<packagedElement xmi:id='x'/>"), ""},
       {"a text", element("Comment", "xmi:id='k'", "<body>text</body>"), ""},
       {"in the data of a tool", classWith("<xmi:Extension><ownedAttribute/></xmi:Extension>"), ""}});
}

TEST(DeclaredTypeRule, NoRowIsPatchedByWhatStandsBesideTheModelEither) {
  const auto file = [](const std::string& attribute) {
    return "<xmi:XMI><uml:Model xmi:id='m'/><S:Block><base xmi:type='uml:Class' xmi:id='c'><" + attribute +
           " xmi:id='a'/></base></S:Block></xmi:XMI>";
  };
  DeclaredTypeRule rule;
  EXPECT_EQ(changedBy(rule, file("ownedAttribute")).text,
            plain(file("ownedAttribute xmi:type='uml:Property'")));
}

TEST(DeclaredTypeRule, EveryChildRowOfTheReaderIsServed) {
  for (const TagHandler& row : DispatchRows::get().context) {
    if (row.tag == nullptr || row.field != nullptr) continue;
    SCOPED_TRACE(row.tag);
    const std::string parent = ReaderVocabulary::typeOfKind(row.kind);
    DeclaredTypeRule rule;
    const Changed changed = changedBy(rule, xmi("<packagedElement xmi:type='" + parent + "' xmi:id='x'><" +
                                                row.tag + " xmi:id='y'/></packagedElement>"));
    if (parent == "uml:Model") continue;  // as a type it is passed over
    EXPECT_EQ(changed.report.of(NormalizeRule::declaredType).fired, 1U);
  }
}

TEST(DeclaredTypeRule, ItMattersWhereAReferenceFollowsUnderTheSameRow) {
  const auto matters = [](const std::string& content) {
    DeclaredTypeRule rule;
    return changedBy(rule, xmi(classWith(content))).report.of(NormalizeRule::declaredType).matters;
  };
  const std::string standIn = property("<type href='x#y'/>");
  const std::string reference = property("<type xmi:idref='c'/>", "b");
  EXPECT_TRUE(matters(standIn + reference));
  EXPECT_FALSE(matters(reference + standIn));
  EXPECT_FALSE(matters(standIn + standIn));
}

TEST(DeclaredTypeRule, WithoutReferencesTheImportedModelIsTheSame) {
  const std::string text = xmi(classWith(
      "<ownedAttribute xmi:id='a' name='a'><type href='x.xmi#String'/></ownedAttribute>"
      "<ownedOperation xmi:id='o' name='o'><ownedParameter xmi:id='q' name='q'/></ownedOperation>"));
  EXPECT_EQ(imported(normalized(text)), imported(text));
}

TEST(DeclaredTypeRule, ReferencesBehindAStandInLeaveTheModelWhole) {
  const std::string text = xmi(classWith(property("<type href='x.xmi#Other'/>") +
                                         property("<type xmi:idref='d'/>", "b") + property("", "e")) +
                               element("Class", "xmi:id='d' name='D'"));
  DispatchRows::resetForTests();
  EXPECT_FALSE(ImportedModel(text).has("e"));
  DispatchRows::resetForTests();
  EXPECT_TRUE(ImportedModel(normalized(text)).has("e"));
}

TEST(DeclaredTypeRule, TwoImportsInOneProcessAgree) {
  const std::string text =
      normalized(xmi(classWith(property("<type href='x.xmi#Other'/>") +
                               property("<type xmi:idref='d'/>", "b") + property("", "e")) +
                     element("Class", "xmi:id='d' name='D'")));
  DispatchRows::resetForTests();
  const auto count = [&] { return ImportedModel(text).all<KYRObject>().size(); };
  const std::size_t first = count();
  EXPECT_EQ(count(), first);
}

}  // namespace
