// No attribute is hidden by the value of another one.
#include "normalize/AttributeOrderRule.h"

#include "tests/normalize/NormalizedFile.h"
#include "xmi/AttributeScan.h"
#include "xmi/ReaderNames.h"

namespace {

std::string one(const std::string& attributes) { return "<packagedElement " + attributes + "/>"; }

TEST(AttributeOrderRule, AnAttributeComesBeforeOnesOfItsNameAsAValue) {
  expectCases<AttributeOrderRule>(
      NormalizeRule::attributeOrder,
      {{"a name that is the name of another attribute",
        one("xmi:type='uml:Class' name='visibility' xmi:id='c' visibility='public'"),
        one("xmi:type='uml:Class' visibility='public' name='visibility' xmi:id='c'")},
       {"in other letters", one("xmi:type='uml:Class' name='XMI:ID' xmi:id='c'"),
        one("xmi:type='uml:Class' xmi:id='c' name='XMI:ID'")},
       {"a chain", one("name='isAbstract' isLeaf='name' isAbstract='true' xmi:type='uml:Class' xmi:id='c'"),
        one("isAbstract='true' name='isAbstract' isLeaf='name' xmi:type='uml:Class' xmi:id='c'")},
       {"a hidden type", one("xmi:id='c' name='xmi:type' xmi:type='uml:Class'"),
        one("xmi:id='c' xmi:type='uml:Class' name='xmi:type'")},
       {"in order already", one("xmi:type='uml:Class' visibility='public' name='visibility' xmi:id='c'"), ""},
       {"its own name", one("xmi:type='uml:Class' name='name' xmi:id='c'"), ""},
       {"nothing to hide", one("xmi:type='uml:Class' name='visibility' xmi:id='c'"), ""},
       {"a name that nobody asks for", one("xmi:type='uml:Class' name='colour' colour='red'"), ""},
       {"in the data of a tool", "<xmi:Extension><a name='visibility' visibility='x'/></xmi:Extension>",
        ""}});
}

TEST(AttributeOrderRule, ARingStaysAndIsReported) {
  const std::string text = xmi(one("xmi:type='uml:Class' name='visibility' visibility='name' xmi:id='c'"));
  AttributeOrderRule rule;
  const Changed changed = changedBy(rule, text);
  EXPECT_EQ(changed.text, plain(text));
  EXPECT_EQ(changed.report.attributeRings, 1U);
  EXPECT_FALSE(changed.report.hasFired());
}

// The scan that readers do finds every attribute in the element behind the rule.
TEST(AttributeOrderRule, TheScanOfTheReaderFindsEveryAttribute) {
  const std::vector<std::string> names = {"xmi:id", "xmi:type", "name", "visibility", "type", "upper"};
  for (unsigned int mixed = 0; mixed < 4096; mixed += 5) {
    std::string attributes;
    for (std::size_t i = 0, rest = mixed; i < 4; ++i, rest /= 8) {
      const std::string value = rest % 8 < names.size() ? names[rest % 8] : "v" + std::to_string(i);
      attributes += names[i + 2] + "='" + value + "' ";
    }
    AttributeOrderRule rule;
    const Changed changed =
        changedBy(rule, xmi("<ownedComment xmi:id='c' xmi:type='uml:Comment' " + attributes + "/>"));
    if (changed.report.attributeRings != 0) continue;
    const std::shared_ptr<const XmlDocument> document = documentOf(changed.text);
    const XmlDocument::Node node = document->getNodeCount() - 1;
    KYRStringArray pairs;
    for (std::uint32_t index = 0; index < document->getAttributeCount(node); ++index) {
      pairs.addBorrowed(document->getNameText(document->getAttributeName(node, index)));
      pairs.addBorrowed(document->getAttributeValue(node, index));
    }
    AttributeScan scan;
    scan.scan(pairs);
    for (const std::string& name : names) {
      const KYRString* const value = document->findAttribute(node, document->findName(KYRString(name)));
      ASSERT_NE(value, nullptr);
      ASSERT_EQ(scan.get(ReaderNames::get().find(name)), *value) << attributes << " asked for " << name;
    }
  }
}

TEST(AttributeOrderRule, AnAttributeThatWasHiddenArrives) {
  const auto model = [](const std::string& attributes) {
    return xmi(element("Class", "xmi:id='c' name='C'",
                       "<ownedAttribute xmi:type='uml:Property' xmi:id='a' " + attributes + "/>") +
               element("Class", "xmi:id='d' name='D'"));
  };
  EXPECT_NE(imported(model("name='type' type='d'")), imported(model("type='d' name='type'")));
  EXPECT_EQ(imported(normalized(model("name='type' type='d'"))), imported(model("type='d' name='type'")));
}

}  // namespace
