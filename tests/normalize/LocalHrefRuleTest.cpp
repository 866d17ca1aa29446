// A reference into the file itself is a reference by id.
#include "normalize/LocalHrefRule.h"

#include "tests/normalize/NormalizedFile.h"

namespace {

TEST(LocalHrefRule, OnlyReferencesToElementsOfTheModelChange) {
  const std::string target = element("Class", "xmi:id='c' name='C'");
  const std::string toolData = "<xmi:Extension><a xmi:id='x'/></xmi:Extension>";
  expectCases<LocalHrefRule>(
      NormalizeRule::localHref,
      {{"an element of the model", target + "<type href='#c'/>", target + "<type xmi:idref='c'/>"},
       {"with a type", target + "<type xmi:type='uml:Class' href='#c'/>", target + "<type xmi:idref='c'/>"},
       {"further down", "<type href='#c'/>" + target, "<type xmi:idref='c'/>" + target},
       {"an unknown id", target + "<type href='#d'/>", ""},
       {"an id of the tool alone", toolData + "<type href='#x'/>", ""},
       {"another file", target + "<type href='other.xmi#c'/>", ""},
       {"nothing behind the sign", target + "<type href='#'/>", ""},
       {"an element with an id", target + "<type xmi:id='t' href='#c'/>", ""},
       {"a reference besides", target + "<type xmi:idref='d' href='#c'/>", ""},
       {"inside the data of a tool", target + "<xmi:Extension><a href='#c'/></xmi:Extension>", ""}});
}

TEST(LocalHrefRule, TheImportedModelIsThatOfReferencesById) {
  const auto model = [](const std::string& reference) {
    return xmi(element("Class", "xmi:id='c' name='C'",
                       "<ownedAttribute xmi:type='uml:Property' xmi:id='a' name='a'><type " + reference +
                           "/></ownedAttribute>") +
               element("Class", "xmi:id='d' name='D'"));
  };
  EXPECT_EQ(imported(normalized(model("href='#d'"))), imported(model("xmi:idref='d'")));
}

}  // namespace
