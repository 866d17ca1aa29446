// The release step by itself: records, dropped attributes and objects that nobody took.
#include <gtest/gtest.h>

#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRCandidateKey.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRClassDiagram.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRProjection.h"
#include "tests/convert/ImportedModel.h"
#include "uml/UMLFeatures.h"

namespace {

struct Release : testing::Test {
  Release() {
    bridge.storeModel = &model;
    package = new KYRDesignPackage();
    package->setName("P");
    model.addDesignPackage(package);
    owner = new KYRClass();
    owner->setName("C");
    package->addNamespaceElementUniqueName(owner, '/');
  }

  RecordingLog log;
  KYRStoreModel model;
  KYROmgUml2XmiImportBridge bridge{&log};
  KYRDesignPackage* package;
  KYRClass* owner;
};

int recordsAlive = 0;

struct CountedOwner : KYROmgUml2XmiImportBridge::Owner {
  explicit CountedOwner(const char* key) : Owner(key, "schema") { ++recordsAlive; }
  ~CountedOwner() override { --recordsAlive; }
};

struct CountedDiagram : KYROmgUml2XmiImportBridge::MD {
  CountedDiagram() { ++recordsAlive; }
  ~CountedDiagram() override { --recordsAlive; }
};

}  // namespace

TEST_F(Release, RecordsOfOwnersAndDiagramsAreFreed) {
  bridge.owners.addRecord(new CountedOwner("a"));
  bridge.owners.addRecord(new CountedOwner("a"));  // equal keys are all kept
  bridge.owners.addRecord(new CountedOwner(""));   // one that is never found
  bridge.mdObjects.addRecord(new CountedDiagram());
  EXPECT_EQ(text(bridge.owners.find("a")->name), "schema");
  EXPECT_EQ(bridge.owners.find("A"), nullptr);
  EXPECT_EQ(bridge.owners.find(""), nullptr);
  EXPECT_EQ(recordsAlive, 4);
  bridge.release();
  EXPECT_EQ(recordsAlive, 0);
  EXPECT_EQ(bridge.owners.getCount(), 0U);
  EXPECT_EQ(bridge.mdObjects.getCount(), 0U);
}

TEST_F(Release, ADroppedAttributeLeavesItsClassItsKeysAndItsDiagrams) {
  auto* const kept = new KYRAttribute();
  auto* const dropped = new KYRAttribute();
  kept->setName("kept");
  dropped->setName("dropped");
  kept->position = 0;
  dropped->position = 1;
  owner->addFeatureUniqueName(dropped, '/');
  owner->addFeatureUniqueName(kept, '/');
  auto* const key = new KYRCandidateKey();
  owner->addPrimaryCandidateKey(key);
  key->addAttribute(dropped);
  key->addAttribute(kept);
  auto* const diagram = new KYRClassDiagram();
  package->addDiagramUniqueName(diagram, '/');
  for (int i = 0; i < 2; ++i) {
    auto* const shape = new KYRProjection();
    shape->addDiagram(diagram);
    shape->addSubjectModelObject(dropped);
  }
  UMLProperty element("id", "dropped");
  dropped->umlElement = &element;
  bridge.droppedAttributes.add(dropped, true, nullptr);
  bridge.release();
  EXPECT_EQ(owner->getAttributeCount(), 1);
  EXPECT_EQ(owner->getAttribute("dropped"), nullptr);
  ASSERT_EQ(key->attributes.count(), 1U);
  EXPECT_EQ(key->attributes[0], kept);
  EXPECT_EQ(bridge.droppedAttributes.getCount(), 0U);
}

TEST_F(Release, ADroppedAttributeWithoutAClassIsDeletedToo) {
  bridge.droppedAttributes.add(new KYRAttribute(), true, nullptr);
  bridge.droppedAttributes.add(new KYRAttribute(), true, nullptr);
  bridge.release();
  EXPECT_EQ(bridge.droppedAttributes.getCount(), 0U);  // the leak check holds the rest
}

TEST_F(Release, AnUnplacedClassGoesWithItsShapesAndItsRoleStaysWithoutAClass) {
  auto* const loose = new KYRClass();
  auto* const association = new KYRAssociation();
  auto* const role = new KYRAssociationRole();
  association->addAssociationRole(role);
  role->addAssociatedClass(loose);
  package->addNamespaceElementUniqueName(association, '/');
  auto* const diagram = new KYRClassDiagram();
  package->addDiagramUniqueName(diagram, '/');
  auto* const shape = new KYRProjection();
  shape->addDiagram(diagram);
  shape->addSubjectModelObject(loose);
  bridge.unplacedObjects.add(static_cast<KYRObject*>(loose), true, nullptr);
  bridge.release();
  EXPECT_EQ(association->roles.count(), 1U);
  EXPECT_EQ(role->associatedClass, nullptr);
  EXPECT_TRUE(diagram->presentationElements.isEmpty());
}

TEST_F(Release, AnObjectThatWasPlacedAfterAllIsLeftAlone) {
  auto placed = std::make_unique<KYRClass>();
  KYRClass* const object = placed.get();
  object->setName("Late");
  bridge.place(std::move(placed), nullptr);
  EXPECT_EQ(bridge.unplacedObjects.getCount(), 1U);
  package->addNamespaceElementUniqueName(object, '/');
  bridge.release();
  EXPECT_TRUE(package->elements.contains(object));
}

TEST_F(Release, EmptyPackagesArePruned) {
  auto* const empty = new KYRDesignPackage();
  empty->setName("Empty");
  model.addDesignPackage(empty);
  bridge.release();
  EXPECT_EQ(model.designPackages.count(), 1U);
  EXPECT_EQ(model.designPackages[0], package);
}

TEST_F(Release, WithoutAModelThereIsNothingToPrune) {
  bridge.storeModel = nullptr;
  bridge.release();
  EXPECT_EQ(model.designPackages.count(), 1U);
}
