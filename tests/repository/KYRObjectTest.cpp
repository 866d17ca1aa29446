#include "repository/model/KYRObject.h"

#include <gtest/gtest.h>

#include <memory>

#include "repository/model/KYRAssociation.h"
#include "repository/model/KYRAssociationRole.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRClassDiagram.h"
#include "repository/model/KYRConcreteType.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRNote.h"
#include "repository/model/KYROperation.h"
#include "repository/model/KYRProjection.h"
#include "repository/model/KYRStoreModel.h"
#include "repository/model/KYRTraversalOperation.h"

namespace {

template <class T>
std::unique_ptr<T> named(const char* name) {
  auto object = std::make_unique<T>();
  object->setName(name);
  return object;
}

KYRDesignPackage* addPackage(KYRStoreModel& model, const char* name) {
  KYRDesignPackage* package = named<KYRDesignPackage>(name).release();
  model.addDesignPackage(package);
  return package;
}

KYRClass* addClass(KYRDesignPackage* package, const char* name) {
  KYRClass* added = named<KYRClass>(name).release();
  package->addNamespaceElementUniqueName(added, '/');
  return added;
}

TEST(KYRObject, FieldsStartEmpty) {
  const KYRClass object;
  EXPECT_TRUE(object.getName().isEmpty());
  EXPECT_TRUE(object.description.isEmpty());
  EXPECT_TRUE(object.sourceId.isEmpty());
  EXPECT_EQ(object.umlElement, nullptr);
  EXPECT_EQ(object.getParent(), nullptr);
}

TEST(KYRObject, IsInstanceOfAnswersForTheClassAndItsBases) {
  const KYRAttribute attribute;
  for (const int type :
       {KYRElementType::attribute, KYRElementType::structuralFeature, KYRElementType::feature,
        KYRElementType::modelObject, KYRElementType::element, KYRElementType::object}) {
    EXPECT_TRUE(attribute.isInstanceOf(type)) << type;
  }
  for (const int type : {KYRElementType::class_, KYRElementType::namespaceElement, 40, 0, -1, 100000}) {
    EXPECT_FALSE(attribute.isInstanceOf(type)) << type;
  }
}

TEST(KYRObject, PathGoesFromBelowTheModelDown) {
  KYRStoreModel model;
  model.setName("M");
  KYRDesignPackage* package = addPackage(model, "P");
  KYRClass* owner = addClass(package, "C");
  auto* attribute = named<KYRAttribute>("a").release();
  owner->addFeatureUniqueName(attribute, '/');
  EXPECT_EQ(attribute->getPath(true), "P/C/a");
  EXPECT_EQ(attribute->getPath(false), "M/P/C/a");
  EXPECT_EQ(model.getPath(true), "");
  EXPECT_EQ(named<KYRClass>("alone")->getPath(true), "alone");
}

TEST(KYRObject, AnObjectAddedElsewhereMoves) {
  KYRStoreModel model;
  KYRDesignPackage* first = addPackage(model, "first");
  KYRDesignPackage* second = addPackage(model, "second");
  KYRClass* moved = addClass(first, "C");
  second->addNamespaceElementUniqueName(moved, '/');
  EXPECT_EQ(moved->getParent(), second);
  EXPECT_TRUE(first->elements.isEmpty());
  EXPECT_EQ(second->elements.count(), 1U);
}

TEST(KYRObject, DeletingAnObjectTakesItOutOfItsOwner) {
  KYRStoreModel model;
  KYRDesignPackage* package = addPackage(model, "P");
  KYRClass* first = addClass(package, "A");
  KYRClass* second = addClass(package, "B");
  KYRClass* third = addClass(package, "C");
  delete second;
  ASSERT_EQ(package->elements.count(), 2U);
  EXPECT_EQ(package->elements[0], first);
  EXPECT_EQ(package->elements[1], third);
  EXPECT_EQ(package->elements.get("B"), nullptr);
}

TEST(KYRObject, AnObjectThatWasNeverAddedBelongsToItsMaker) {
  const auto made = named<KYRClass>("C");
  made->addFeatureUniqueName(named<KYRAttribute>("a").release(), '/');
  made->addOperation(named<KYROperation>("o").release());
  EXPECT_EQ(made->getParent(), nullptr);
}

// Writes down the names as they come.
class Names : public KYRTraversalOperation {
 public:
  void visit(KYRObject& object) override {
    text += object.getName().getCharacters();
    text += ' ';
  }
  std::string text;
};

TEST(KYRObject, TraversalHandsOutAnObjectBeforeWhatItHoldsInOrderOfAdding) {
  KYRStoreModel model;
  model.setName("model");
  KYRDesignPackage* package = addPackage(model, "P");
  KYRDesignPackage* inner = named<KYRDesignPackage>("I").release();
  package->addNamespaceElementUniqueName(inner, '/');
  KYRClass* deep = addClass(inner, "D");
  KYRClass* second = addClass(package, "C");
  second->addFeatureUniqueName(named<KYRAttribute>("a1").release(), '/');
  second->addFeatureUniqueName(named<KYRAttribute>("a2").release(), '/');
  deep->addFeatureUniqueName(named<KYRAttribute>("a3").release(), '/');
  addPackage(model, "Q");
  Names names;
  model.depthTraversal(names);
  EXPECT_EQ(names.text, "model P I D a3 C a1 a2 Q ");
  Names below;
  second->depthTraversal(below);
  EXPECT_EQ(below.text, "C a1 a2 ");
}

TEST(KYRObject, TraversalOfADeepTreeNeedsNoStack) {
  KYRStoreModel model;
  KYRDesignPackage* package = addPackage(model, "");
  constexpr int depth = 200000;
  for (int i = 1; i < depth; ++i) {
    auto* inner = new KYRDesignPackage();
    package->addNamespaceElementUniqueName(inner, '/');
    package = inner;
  }
  class Counter : public KYRTraversalOperation {
   public:
    void visit(KYRObject&) override { ++count; }
    int count = 0;
  } counter;
  model.depthTraversal(counter);
  EXPECT_EQ(counter.count, depth + 1);
  EXPECT_EQ(package->getPath(true).getLength(), static_cast<unsigned int>(depth - 1));
}

TEST(KYRObject, DeepTreesBuiltFromBelowGoWithTheirTop) {
  auto* package = new KYRDesignPackage();
  for (int i = 0; i < 200000; ++i) {
    auto* outer = new KYRDesignPackage();
    outer->addNamespaceElementUniqueName(package, '/');
    package = outer;
  }
  delete package;
}

TEST(KYRObject, RecursiveDeleteTakesFeaturesAndShapesAndLeavesRelations) {
  KYRStoreModel model;
  KYRDesignPackage* package = addPackage(model, "P");
  KYRClass* gone = addClass(package, "gone");
  KYRClass* stays = addClass(package, "stays");
  auto* attribute = named<KYRAttribute>("a").release();
  gone->addFeatureUniqueName(attribute, '/');
  auto* association = named<KYRAssociation>("between").release();
  package->addNamespaceElementUniqueName(association, '/');
  for (KYRClass* end : {gone, stays}) {
    auto* role = new KYRAssociationRole();
    association->addAssociationRole(role);
    role->addAssociatedClass(end);
  }
  auto* diagram = named<KYRClassDiagram>("D").release();
  package->addDiagramUniqueName(diagram, '/');
  for (KYRModelObject* subject : {static_cast<KYRModelObject*>(gone), static_cast<KYRModelObject*>(attribute),
                                  static_cast<KYRModelObject*>(stays)}) {
    for (int i = 0; i < 2; ++i) {
      auto* shape = new KYRProjection();
      shape->addDiagram(diagram);
      shape->addSubjectModelObject(subject);
    }
  }
  diagram->addModelElement(gone);
  gone->recursiveDelete();
  EXPECT_EQ(diagram->diagramElements.count(), 2U);
  EXPECT_EQ(diagram->diagramElements[0]->subject, stays);
  EXPECT_TRUE(diagram->modelElements.isEmpty());
  EXPECT_EQ(association->roles.count(), 2U);
  EXPECT_EQ(association->roles[0]->associatedClass, nullptr);
  EXPECT_EQ(association->roles[1]->associatedClass, stays);
}

TEST(KYRObject, RecursiveDeleteOfAPackageTakesTheDiagramsInIt) {
  KYRStoreModel model;
  KYRDesignPackage* package = addPackage(model, "P");
  KYRDesignPackage* other = addPackage(model, "Q");
  KYRClass* shown = addClass(package, "C");
  auto* inside = named<KYRClassDiagram>("in").release();
  package->addDiagramUniqueName(inside, '/');
  auto* outside = named<KYRClassDiagram>("out").release();
  other->addDiagramUniqueName(outside, '/');
  for (KYRDiagram* diagram : {inside, outside}) {
    auto* shape = new KYRProjection();
    shape->addDiagram(diagram);
    shape->addSubjectModelObject(shown);
  }
  package->recursiveDelete();
  EXPECT_EQ(model.designPackages.count(), 1U);
  EXPECT_TRUE(outside->diagramElements.isEmpty());
}

TEST(KYRObject, RenamingKeepsLookupsRightInShortAndLongLists) {
  for (const int count : {3, 100}) {
    KYRStoreModel model;
    KYRDesignPackage* package = addPackage(model, "P");
    for (int i = 0; i < count; ++i) addClass(package, (KYRString("C") + KYRString(i)).getCharacters());
    auto* first = dynamic_cast<KYRClass*>(package->elements.get("C1"));
    ASSERT_NE(first, nullptr);
    first->setName("renamed");
    EXPECT_EQ(package->elements.get("C1"), nullptr) << count;
    EXPECT_EQ(package->elements.get("renamed"), first) << count;
    KYRClass* reused = addClass(package, "C1");
    EXPECT_EQ(reused->getName(), "C1") << count;
    // Of two with one name the one added first counts, whenever it took the name.
    first->setName("C2");
    EXPECT_EQ(package->elements.get("C2"), first) << count;
    reused->setName("C0");
    EXPECT_EQ(package->elements.get("C0"), package->elements[0]) << count;
  }
}

}  // namespace
