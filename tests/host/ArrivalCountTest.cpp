// What is counted without an import is what an import makes.
#include "host/ArrivalCount.h"

#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClass.h"
#include "tests/convert/ImportedModel.h"
#include "xmi/DispatchRows.h"
#include "xmi/XMIParser.h"

namespace {

void expectSameCounts(const std::string& text, const std::string& rootPackage = "") {
  DispatchRows::resetForTests();
  const ImportedModel model(text, rootPackage);
  DispatchRows::resetForTests();
  const TemporaryFile file(text);
  RecordingLog log;
  XMIParser parser(&log);
  const ArrivalCount count(*parser.parse(file.file()), !rootPackage.empty());
  EXPECT_EQ(count.classes, model.all<KYRClass>().size());
  EXPECT_EQ(count.attributes, model.all<KYRAttribute>().size());
  EXPECT_EQ(count.associations, model.all<KYRAssociation>().size());
}

std::string ends(const std::string& first, const std::string& second) {
  return "<memberEnd xmi:idref='e'/><memberEnd xmi:idref='f'/><ownedEnd xmi:type='uml:Property' xmi:id='e' "
         "type='" +
         first + "'/><ownedEnd xmi:type='uml:Property' xmi:id='f' type='" + second + "'/>";
}

TEST(ArrivalCount, AgreesWithTheImport) {
  const std::string attribute =
      "<ownedAttribute xmi:type='uml:Property' xmi:id='a' name='a'/>"
      "<ownedAttribute xmi:type='uml:Property' xmi:id='n'/>";
  const std::string c = element("Class", "xmi:id='c' name='C'", attribute);
  const std::string d = element("Interface", "xmi:id='d' name='D'",
                                "<ownedAttribute xmi:type='uml:Property' xmi:id='b' name='b'/>");
  const struct {
    const char* what;
    std::string elements;
  } cases[] = {
      {"nothing", ""},
      {"classes in a package", element("Package", "xmi:id='p' name='P'", c + d)},
      {"an interface alone at the top", d},
      {"an interface beside a class", c + d},
      {"classes without a name", element("Class", "xmi:id='c'", attribute)},
      {"an association", c + d + element("Association", "xmi:id='x'", ends("c", "d"))},
      {"an association of something else",
       c + element("DataType", "xmi:id='t' name='T'") + element("Association", "xmi:id='x'", ends("c", "t"))},
      {"an association of owned ends",
       c + d + element("Association", "xmi:id='x'", ends("c", "d").substr(56))},
      {"an attribute that is an end",
       element("Class", "xmi:id='c' name='C'",
               "<ownedAttribute xmi:type='uml:Property' xmi:id='e' name='e' association='x' type='c'/>") +
           element("Association", "xmi:id='x'",
                   "<ownedEnd xmi:type='uml:Property' xmi:id='f' type='c' association='x'/>")},
      {"an association class",
       c + d + element("AssociationClass", "xmi:id='x' name='X'", attribute.substr(0, 61) + ends("c", "d"))},
      {"an association class without a name",
       c + d + element("AssociationClass", "xmi:id='x'", ends("c", "d"))},
      {"an association class without name and ends", c + element("AssociationClass", "xmi:id='x'")},
      {"members",
       element("Package", "xmi:id='p' name='P'", "<ownedMember xmi:type='uml:Class' xmi:id='c' name='C'/>")},
      {"members beside contents", element("Package", "xmi:id='p' name='P'",
                                          c + "<ownedMember xmi:type='uml:Class' xmi:id='g' name='G'/>")},
      {"a class in a class", element("Class", "xmi:id='c' name='C'",
                                     "<nestedClassifier xmi:type='uml:Class' xmi:id='g' name='G'/>")},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.what);
    expectSameCounts(xmi(each.elements));
  }
  expectSameCounts(xmi(d), "Root");
}

TEST(ArrivalCount, EndsWithPackagesInARing) {
  const std::string text =
      xmi(element("Package", "xmi:id='p' name='P'",
                  "<packagedElement xmi:idref='q'/>" + element("Class", "xmi:id='c' name='C'")) +
          element("Package", "xmi:id='q' name='Q'", "<packagedElement xmi:idref='p'/>"));
  const TemporaryFile file(text);
  RecordingLog log;
  XMIParser parser(&log);
  EXPECT_EQ(ArrivalCount(*parser.parse(file.file()), false).classes, 1U);
}

}  // namespace
