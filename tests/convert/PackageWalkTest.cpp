// The walk over packages: order, what it passes over, and files that are made to keep it busy.
#include <gtest/gtest.h>

#include "foundation/KYRException.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRDesignPackage.h"
#include "tests/convert/ImportedModel.h"
#include "uml/UMLNamespaces.h"

namespace {

std::vector<std::string> namesIn(const KYRNamespace& space) {
  std::vector<std::string> names;
  for (const KYRNamespaceElement* object : space.elements) names.push_back(text(object->getName()));
  return names;
}

using Names = std::vector<std::string>;

// A reference to an element that stands elsewhere.
std::string listed(const std::string& id) { return "<packagedElement xmi:idref='" + id + "'/>"; }

}  // namespace

TEST(PackageWalk, ASubtreeOfPackagesIsFinishedBeforeTheClassesOfItsLevel) {
  const ImportedModel imported(xmi(element(
      "Package", "xmi:id='p' name='P'",
      element("Class", "xmi:id='c1' name='C1'") +
          element("Package", "xmi:id='q' name='Q'",
                  element("Class", "xmi:id='c2' name='C2'") +
                      element("Package", "xmi:id='r' name='R'", element("Class", "xmi:id='c3' name='C3'"))) +
          element("Interface", "xmi:id='i' name='I'") +
          element("Package", "xmi:id='s' name='S'", element("Class", "xmi:id='c4' name='C4'")))));
  EXPECT_EQ(namesIn(imported.get<KYRDesignPackage>("p")), (Names{"Q", "S", "C1", "I"}));
  EXPECT_EQ(namesIn(imported.get<KYRDesignPackage>("q")), (Names{"R", "C2"}));
  EXPECT_EQ(imported.pathOf("c3"), "P/Q/R/C3");
}

TEST(PackageWalk, ObjectsAreEnteredFromTheOuterPackageInwards) {
  RecordingLog log;
  KYRStoreModel model;
  KYROmgUml2XmiImportBridge bridge(&log);
  bridge.storeModel = &model;
  UMLPackage outer("outer", "");
  UMLPackage inner("inner", "");
  outer.addPackagedElement(&inner);
  const auto package = bridge.convertPackage(&outer);
  EXPECT_EQ(bridge.objects.at(0), package.get());
  EXPECT_EQ(bridge.objects.at(1), inner.repositoryObject);
  EXPECT_EQ(package->umlElement, static_cast<UMLElement*>(&outer));
  EXPECT_TRUE(package->isModelPackage);
  EXPECT_EQ(package->elements[0], inner.repositoryObject);
}

TEST(PackageWalk, WithoutPackagedElementsTheOwnedMembersAreWalked) {
  const ImportedModel imported(
      xmi("<ownedMember xmi:type='uml:Package' xmi:id='p' name='P'>"
          "<ownedMember xmi:type='uml:Class' xmi:id='c' name='C'/></ownedMember>"));
  EXPECT_EQ(imported.pathOf("c"), "P/C");
}

TEST(PackageWalk, PackagedElementsHideOwnedMembers) {
  const ImportedModel imported(xmi(element(
      "Package", "xmi:id='p' name='P'",
      element("Class", "xmi:id='c' name='C'") + "<ownedMember xmi:type='uml:Class' xmi:id='d' name='D'/>")));
  EXPECT_TRUE(imported.has("c"));
  EXPECT_FALSE(imported.has("d"));
}

TEST(PackageWalk, NamelessClassesAndInterfacesAreSkippedAndNamelessPackagesAreNot) {
  const auto nameless = [](const std::string& number) {
    return element("Class", "xmi:id='c" + number + "'") + element("Interface", "xmi:id='i" + number + "'");
  };
  const ImportedModel imported(
      xmi(nameless("1") +
          element("Package", "xmi:id='p'", nameless("2") + element("Class", "xmi:id='k' name='K'"))));
  for (const char* const id : {"c1", "i1", "c2", "i2"}) EXPECT_FALSE(imported.has(id)) << id;
  EXPECT_EQ(imported.pathOf("k"), "Logical View//K");
}

TEST(PackageWalk, ElementsOfOneNameInAPackageAreToldApart) {
  const ImportedModel imported(xmi(
      element("Package", "xmi:id='p' name='P'",
              element("Package", "xmi:id='q' name='X'", element("Class", "xmi:id='y' name='Y'")) +
                  element("Class", "xmi:id='c1' name='X'") + element("Interface", "xmi:id='i' name='X'"))));
  EXPECT_EQ(namesIn(imported.get<KYRDesignPackage>("p")), (Names{"X", "X/1", "X/2"}));
}

TEST(PackageWalk, WhatHasNoCounterpartIsPassedOverInSilence) {
  std::string others;
  for (const char* type : {"Actor", "UseCase", "DataType", "Signal", "InstanceSpecification", "Activity",
                           "Usage", "Abstraction", "Realization", "Substitution", "Constraint"}) {
    others += element(type, std::string("xmi:id='") + type + "' name='" + type + "' client='c' supplier='c'");
  }
  const std::string all = others + element("Class", "xmi:id='c' name='C'");
  const ImportedModel imported(xmi(element("Package", "xmi:id='p' name='P'", all) + others));
  EXPECT_EQ(namesIn(imported.get<KYRDesignPackage>("p")), Names{"C"});
  EXPECT_EQ(imported.model.designPackages.count(), 1U);
  EXPECT_EQ(imported.log.countOf("KBI_UML2XMI_W"), 0U);
}

TEST(PackageWalk, AnElementListedByTwoPackagesIsConvertedTwice) {
  const ImportedModel imported(
      xmi(element("Package", "xmi:id='p' name='P'", element("Class", "xmi:id='c' name='C'")) +
          element("Package", "xmi:id='q' name='Q'", element("Class", "xmi:id='d' name='D'") + listed("c"))));
  EXPECT_EQ(imported.countOf("c"), 2U);
  EXPECT_EQ(namesIn(imported.get<KYRDesignPackage>("q")).size(), 2U);
}

TEST(PackageWalk, PackagesThatHoldEachOtherArePassedOverWhenMetAgain) {
  const ImportedModel imported(
      xmi(element("Package", "xmi:id='p' name='P'",
                  element("Class", "xmi:id='c' name='C'") + listed("q") + listed("p")) +
          element("Package", "xmi:id='q' name='Q'", element("Class", "xmi:id='d' name='D'") + listed("p"))));
  // P holds Q, which would hold P again; and the other way round.
  EXPECT_EQ(imported.countOf("p"), 2U);
  EXPECT_EQ(imported.countOf("q"), 2U);
  ASSERT_EQ(imported.model.designPackages.count(), 2U);
  EXPECT_EQ(namesIn(*imported.model.designPackages[0]), (Names{"Q", "C"}));
  EXPECT_EQ(namesIn(*imported.model.designPackages[1]), (Names{"P", "D"}));
}

TEST(PackageWalk, PackagesThatListOneAnotherOverAndOverEndTheImport) {
  // Each level lists both packages of the next one: 2 to the power of 40 ways down.
  constexpr std::size_t levels = 40;
  std::vector<std::unique_ptr<UMLPackage>> packages;
  for (std::size_t i = 0; i < 2 * levels; ++i) packages.push_back(std::make_unique<UMLPackage>("", ""));
  for (std::size_t i = 0; i + 2 < 2 * levels; ++i) {
    const std::size_t next = i / 2 * 2 + 2;
    packages[i]->addPackagedElement(packages[next].get());
    packages[i]->addPackagedElement(packages[next + 1].get());
  }
  RecordingLog log;
  KYRStoreModel model;
  KYROmgUml2XmiImportBridge bridge(&log);
  bridge.storeModel = &model;
  bridge.file = KYRString("a.xmi");
  bridge.stepLimit = 10000;
  try {
    bridge.convertPackage(packages[0].get());
    FAIL();
  } catch (const KYRException& exception) {
    EXPECT_EQ(
        text(exception.getMessage()),
        "[KYRSTD_F0147] The packages of the file 'a.xmi' list the same elements over and over: the limit "
        "of 10000 conversion steps is exceeded");
  }
}

TEST(PackageWalk, PackagesNestAsDeepAsReferencesMakeThem) {
  constexpr unsigned int depth = 100000;
  RecordingLog log;
  KYRStoreModel model;
  std::vector<std::unique_ptr<UMLPackage>> chain;
  for (unsigned int i = 0; i < depth; ++i) {
    chain.push_back(std::make_unique<UMLPackage>(KYRString(std::to_string(i)), KYRString()));
    if (i > 0) chain[i - 1]->addPackagedElement(chain[i].get());
  }
  KYROmgUml2XmiImportBridge bridge(&log);
  bridge.storeModel = &model;
  const auto outer = bridge.convertPackage(chain.front().get());
  EXPECT_EQ(bridge.objects.getCount(), depth);
  EXPECT_LE(bridge.stepCount, 3U * depth);
  unsigned int levels = 1;
  for (const KYRNamespace* package = outer.get(); !package->elements.isEmpty(); ++levels) {
    package = dynamic_cast<const KYRNamespace*>(package->elements[0]);
  }
  EXPECT_EQ(levels, depth);
}

TEST(PackageWalk, ManyClassesOfOneNameInAPackageCostLinearTime) {
  std::vector<std::uint64_t> steps;
  for (const int count : {2000, 20000}) {
    std::string classes;
    for (int i = 0; i < count; ++i) {
      classes += element("Class", "xmi:id='c" + std::to_string(i) + "' name='Same'");
    }
    const ImportedModel imported(xmi(element("Package", "xmi:id='p' name='P'", classes)));
    const KYRDesignPackage& package = imported.get<KYRDesignPackage>("p");
    EXPECT_EQ(package.elements.count(), static_cast<unsigned int>(count));
    EXPECT_EQ(text(package.elements[1999]->getName()), "Same/1999");
    EXPECT_LE(package.elements.getCollection()->getComparisonCount(), 10U * static_cast<unsigned int>(count));
    steps.push_back(imported.steps);
  }
  EXPECT_LE(steps[1], 11 * steps[0]);
}
