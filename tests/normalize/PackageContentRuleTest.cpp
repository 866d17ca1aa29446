// What belongs to a package is put where the conversion looks for it.
#include "normalize/PackageContentRule.h"

#include "tests/normalize/NormalizedFile.h"

namespace {

const std::string package = "<packagedElement xmi:type='uml:Package' xmi:id='p'/>";
const std::string association = " xmi:type='uml:Association' xmi:id='a'/>";

TEST(PackageContentRule, ModelsInTheModelArePackages) {
  expectCases<PackageContentRule>(
      NormalizeRule::packageContent,
      {{"as a tag", "<uml:Model xmi:id='n' name='N'/>",
        "<packagedElement xmi:type='uml:Package' xmi:id='n' name='N'/>"},
       {"as a type", "<packagedElement xmi:type='uml:Model' xmi:id='p'/>", package},
       {"as both", "<uml:Model xmi:type='uml:Model' xmi:id='p'/>", package},
       {"a stand-in for another file",
        "<packageImport xmi:type='uml:PackageImport' xmi:id='i'><importedPackage "
        "xmi:type='uml:Model' href='x#y'/></packageImport>",
        "<packageImport xmi:type='uml:PackageImport' xmi:id='i'><importedPackage xmi:type='uml:Package' "
        "href='x#y'/></packageImport>"},
       {"a package", package, ""},
       {"in the data of a tool", "<xmi:Extension><a xmi:type='uml:Model'/></xmi:Extension>", ""}});
}

TEST(PackageContentRule, ContentsGetTheTagOfContents) {
  expectCases<PackageContentRule>(
      NormalizeRule::packageContent,
      {{"a type", "<ownedType xmi:type='uml:Class' xmi:id='c'/>",
        "<packagedElement xmi:type='uml:Class' xmi:id='c'/>"},
       {"a type without a type", "<ownedType xmi:id='c'/>",
        "<packagedElement xmi:type='uml:Type' xmi:id='c'/>"},
       {"a package", "<nestedPackage xmi:id='p'/>", "<packagedElement xmi:type='uml:Package' xmi:id='p'/>"},
       {"a member beside contents", package + "<ownedMember xmi:type='uml:Class' xmi:id='c'/>",
        package + "<packagedElement xmi:type='uml:Class' xmi:id='c'/>"},
       {"members alone", "<ownedMember xmi:type='uml:Class' xmi:id='c'/>", ""},
       {"a member that is none of a package", package + "<ownedMember xmi:type='uml:Property' xmi:id='c'/>",
        ""},
       {"references", package + "<nestedPackage xmi:idref='p'/><ownedMember xmi:idref='p'/>", ""},
       {"members of a class",
        "<packagedElement xmi:type='uml:Class' xmi:id='c'><ownedMember xmi:type='uml:Class' "
        "xmi:id='d'/></packagedElement>",
        ""}});
}

TEST(PackageContentRule, AnAssociationInAClassMovesToThePackageAroundIt) {
  const std::string open = "<packagedElement xmi:type='uml:Class' xmi:id='c'>";
  const std::string close = "</packagedElement>";
  expectCases<PackageContentRule>(
      NormalizeRule::packageContent,
      {{"in a class", open + "<ownedMember" + association + close + package,
        open + close + package + "<packagedElement" + association},
       {"in a class in a class",
        open + "<nestedClassifier xmi:type='uml:Class' xmi:id='d'><ownedMember" + association +
            "</nestedClassifier>" + close,
        open + "<nestedClassifier xmi:type='uml:Class' xmi:id='d'></nestedClassifier>" + close +
            "<packagedElement" + association},
       {"in a package", "<packagedElement" + association, ""},
       {"a stand-in for another file",
        open +
            "<generalization xmi:type='uml:Generalization' xmi:id='g'><general xmi:type='uml:Association' "
            "href='x#y'/></generalization>" +
            close,
        ""},
       {"a class in a class", open + "<nestedClassifier xmi:type='uml:Class' xmi:id='d'/>" + close, ""}});
}

TEST(PackageContentRule, MembersStayVisibleWhenAnAssociationMovesInBesideThem) {
  const std::string open = "<ownedMember xmi:type='uml:Class' xmi:id='c'>";
  expectCases<PackageContentRule>(
      NormalizeRule::packageContent,
      {{"members alone before", open + "<ownedMember" + association + "</ownedMember>",
        "<packagedElement xmi:type='uml:Class' xmi:id='c'></packagedElement><packagedElement" +
            association}});
}

TEST(PackageContentRule, MembersComeBesideContentsWhenARootMovesIn) {
  const std::string text =
      "<xmi:XMI><uml:Model xmi:id='m'><ownedMember xmi:type='uml:Class' xmi:id='c' name='C'/></uml:Model>"
      "<uml:Package xmi:id='p' name='P'><ownedMember xmi:type='uml:Class' xmi:id='d' "
      "name='D'/></uml:Package></xmi:XMI>";
  DispatchRows::resetForTests();
  const ImportedModel model(normalized(text));
  EXPECT_TRUE(model.has("c"));
  EXPECT_TRUE(model.has("d"));
}

TEST(PackageContentRule, TheImportedModelIsThatOfPackages) {
  const auto model = [](const std::string& start, const std::string& end) {
    return xmi(start + element("Class", "xmi:id='c' name='C'") + end);
  };
  const std::string usual =
      model("<packagedElement xmi:type='uml:Package' xmi:id='p' name='P'>", "</packagedElement>");
  for (const char* start : {"<packagedElement xmi:type='uml:Model' xmi:id='p' name='P'>",
                            "<nestedPackage xmi:type='uml:Package' xmi:id='p' name='P'>"}) {
    SCOPED_TRACE(start);
    const std::string tag(start + 1, std::string_view(start).find(' ') - 1);
    EXPECT_NE(imported(model(start, "</" + tag + ">")), imported(usual));
    EXPECT_EQ(imported(normalized(model(start, "</" + tag + ">"))), imported(usual));
  }
}

}  // namespace
