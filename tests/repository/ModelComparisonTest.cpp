#include "repository/compare/ModelComparison.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>

#include "repository/bridgelib/KYRBridgeLib.h"
#include "repository/model/KYRAttribute.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRDerivedType.h"
#include "repository/model/KYRDesignPackage.h"
#include "repository/model/KYRMetadataOrigin.h"
#include "repository/model/KYRNote.h"
#include "tests/repository/FullModel.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string valueText(const ComparedValue& value) {
  switch (value.kind) {
    case ComparedValue::Kind::text:
      return value.text;
    case ComparedValue::Kind::number:
    case ComparedValue::Kind::flag:
      return std::to_string(value.number);
    case ComparedValue::Kind::objects: {
      std::string text;
      for (const KYRObject* object : value.objects) text += "@" + ModelComparison::pathOf(*object);
      return text;
    }
    case ComparedValue::Kind::none:
      break;
  }
  return "-";
}

// Every difference as one line.
std::vector<std::string> linesOf(const KYRStoreModel& before, const KYRStoreModel& after) {
  const ModelComparison comparison(before, after);
  std::vector<std::string> lines;
  const auto single = [&lines](const char* word, const ModelComparison::Single& entry) {
    lines.push_back(std::string(word) + std::string(ModelComparison::kindOf(*entry.object)) + " " +
                    ModelComparison::pathOf(*entry.object) + " " + std::to_string(entry.held));
  };
  for (const auto& entry : comparison.getRemoved()) single("- ", entry);
  for (const auto& entry : comparison.getAdded()) single("+ ", entry);
  for (const auto& pair : comparison.getRenamed()) {
    lines.push_back("renamed " + ModelComparison::pathOf(*pair.before) + " " +
                    ModelComparison::pathOf(*pair.after));
  }
  for (const auto& pair : comparison.getMoved()) {
    lines.push_back("moved " + ModelComparison::pathOf(*pair.before) + " " +
                    ModelComparison::pathOf(*pair.after));
  }
  for (const auto& change : comparison.getChanged()) {
    for (const auto& field : change.fields) {
      lines.push_back("changed " + ModelComparison::pathOf(*change.objects.after) + " " + field.name + " " +
                      valueText(field.before) + " " + valueText(field.after));
    }
  }
  EXPECT_EQ(comparison.isEqual(), lines.empty());
  return lines;
}

// A package of two classes with an attribute each, ids or not.
class Shop {
 public:
  explicit Shop(bool hasIds = true) : hasIds_(hasIds) {
    sales = addPackage("Sales");
    stock = addPackage("Stock");
    order = addClass(sales, "Order");
    item = addClass(sales, "Item");
    number = addAttribute(order, "number");
    price = addAttribute(item, "price");
  }
  KYRDesignPackage* addPackage(const char* name) {
    auto* made = make<KYRDesignPackage>(name);
    model->addDesignPackage(made);
    return made;
  }
  KYRClass* addClass(KYRDesignPackage* package, const char* name) {
    auto* made = make<KYRClass>(name);
    package->addNamespaceElementUniqueName(made, '/');
    return made;
  }
  KYRAttribute* addAttribute(KYRClass* owner, const char* name) {
    auto* made = make<KYRAttribute>(name);
    owner->addFeatureUniqueName(made, '/');
    return made;
  }
  KYRNote* addNote(KYRClass* owner, const char* text) {
    auto* made = new KYRNote();
    made->noteText = text;
    owner->addNote(made);
    return made;
  }

  std::unique_ptr<KYRStoreModel> model = std::make_unique<KYRStoreModel>();
  KYRDesignPackage* sales;
  KYRDesignPackage* stock;
  KYRClass* order;
  KYRClass* item;
  KYRAttribute* number;
  KYRAttribute* price;

 private:
  template <class T>
  T* make(const char* name) {
    auto* made = new T();
    made->setName(name);
    if (hasIds_) made->sourceId = KYRString("id_") + name;
    return made;
  }
  bool hasIds_;
};

TEST(ModelComparison, ModelsOfTheSameContentAreEqual) {
  const auto first = makeFullModel();
  const auto second = makeFullModel();
  second->modificationTime = "2030-01-01T00:00:00Z";
  second->metadataOrigin->filePath = "elsewhere";
  EXPECT_THAT(linesOf(*first, *second), IsEmpty());
  EXPECT_THAT(linesOf(*first, *first), IsEmpty());
}

TEST(ModelComparison, ARenamedObjectIsKnownByItsIdAndWhatItHoldsStays) {
  const Shop before;
  const Shop after;
  after.order->setName("Purchase");
  after.sales->setName("Selling");
  EXPECT_THAT(linesOf(*before.model, *after.model),
              ElementsAre("renamed Sales Selling", "renamed Sales/Order Selling/Purchase"));
}

TEST(ModelComparison, WithoutIdsNamesAreWhatObjectsAreKnownBy) {
  const Shop before(false);
  const Shop after(false);
  after.order->setName("Purchase");
  EXPECT_THAT(linesOf(*before.model, *after.model),
              ElementsAre("- class Sales/Order 1", "+ class Sales/Purchase 1"));
}

TEST(ModelComparison, NewIdsUnderTheSameNamesAreChanges) {
  const Shop before;
  Shop after;
  after.order->sourceId = "other";
  EXPECT_THAT(linesOf(*before.model, *after.model),
              ElementsAre("changed Sales/Order sourceId id_Order other"));
}

TEST(ModelComparison, AnObjectWithAnotherOwnerHasMoved) {
  const Shop before;
  const Shop after;
  after.stock->addNamespaceElementUniqueName(after.item, '/');
  EXPECT_THAT(linesOf(*before.model, *after.model), ElementsAre("moved Sales/Item Stock/Item"));
}

TEST(ModelComparison, OnlyTheTopmostOfWhatIsNewOrGoneIsTold) {
  const Shop before;
  Shop after;
  after.addAttribute(after.addClass(after.addPackage("Billing"), "Invoice"), "total");
  after.item->recursiveDelete();
  EXPECT_THAT(linesOf(*before.model, *after.model),
              ElementsAre("- class Sales/Item 1", "+ package Billing 2"));
}

TEST(ModelComparison, ValuesAreToldBeforeAndAfter) {
  const Shop before;
  const Shop after;
  before.number->initialValue = "1";
  after.number->initialValue = "2";
  after.number->isOptional = true;
  after.number->position = 3;
  after.order->description = "An order";
  after.model->storeType = 3;
  EXPECT_THAT(
      linesOf(*before.model, *after.model),
      ElementsAre("changed  storeType 0 3", "changed Sales/Order description - An order",
                  "changed Sales/Order/number position 0 3", "changed Sales/Order/number isOptional 0 1",
                  "changed Sales/Order/number initialValue 1 2"));
}

TEST(ModelComparison, AReferenceIsEqualWhenItsTargetsArePartners) {
  const auto withType = [](const Shop& shop, const char* id, const char* name) {
    auto* type = new KYRDerivedType();
    type->sourceId = id;
    type->setName(name);
    shop.model->addType(type);
    shop.price->addType(type);
  };
  const Shop before;
  const Shop renamed;
  const Shop other;
  withType(before, "t", "Money");
  withType(renamed, "t", "Amount");
  withType(other, "u", "Number");
  EXPECT_THAT(linesOf(*before.model, *renamed.model), ElementsAre("renamed Money Amount"));
  EXPECT_THAT(linesOf(*before.model, *other.model),
              ElementsAre("- derived type Money 0", "+ derived type Number 0",
                          "changed Sales/Item/price type @Money @Number"));
}

TEST(ModelComparison, ObjectsWithoutNamesAreKnownByWhatTheyHold) {
  Shop before;
  Shop after;
  before.addNote(before.order, "first");
  before.addNote(before.order, "second");
  after.addNote(after.order, "new");
  after.addNote(after.order, "first");
  after.addNote(after.order, "second");
  EXPECT_THAT(linesOf(*before.model, *after.model), ElementsAre("+ note Sales/Order/(note) 0"));
  after.addNote(after.item, "x");
  before.addNote(before.item, "y");
  EXPECT_THAT(linesOf(*before.model, *after.model),
              ElementsAre("+ note Sales/Order/(note) 0", "changed Sales/Item/(note) noteText y x"));
}

TEST(ModelComparison, UserPropertiesAreComparedByTheirType) {
  const auto setAuthor = [](const Shop& shop, const char* value) {
    KYRPropertyType* type =
        fetchPropertyType(shop.model.get(), KYRElementType::class_, "author", 1, "", "", "", true);
    setPropertyValue(type, value, shop.order);
    setPropertyValue(type, value, shop.item);
  };
  const Shop before;
  const Shop after;
  const Shop none;
  setAuthor(before, "Ann");
  setAuthor(after, "Bob");
  EXPECT_THAT(linesOf(*before.model, *after.model),
              ElementsAre("changed Sales/Order author Ann Bob", "changed Sales/Item author Ann Bob"));
  EXPECT_THAT(linesOf(*before.model, *none.model),
              ElementsAre("- property type author 0", "changed Sales/Order author Ann -",
                          "changed Sales/Item author Ann -"));
  EXPECT_THAT(linesOf(*none.model, *after.model),
              ElementsAre("+ property type author 0", "changed Sales/Order author - Bob",
                          "changed Sales/Item author - Bob"));
}

TEST(ModelComparison, TwoObjectsOfOneIdStayWithTheirOwners) {
  const auto make = [](bool isInFirst) {
    auto shop = std::make_unique<Shop>();
    if (isInFirst) shop->addClass(shop->sales, "Twin")->sourceId = "twin";
    shop->addClass(shop->stock, "Twin")->sourceId = "twin";
    return shop;
  };
  EXPECT_THAT(linesOf(*make(true)->model, *make(false)->model), ElementsAre("- class Sales/Twin 0"));
}

// Objects of one id, of one name and without a name are the hard cases: many candidates for each.
TEST(ModelComparison, TheStepsGrowWithTheModels) {
  const auto stepsFor = [](int count) {
    const auto fill = [count](Shop& shop) {
      for (int i = 0; i < count; ++i) {
        shop.addClass(shop.sales, "")->sourceId = "same";
        shop.addClass(shop.stock, "");
        shop.addNote(shop.order, i % 2 == 0 ? "a" : "b");
      }
    };
    Shop before;
    Shop after;
    fill(before);
    fill(after);
    return ModelComparison(*before.model, *after.model).getSteps();
  };
  EXPECT_LE(stepsFor(4000), 4 * stepsFor(1000) + 100);
  EXPECT_LE(stepsFor(1000), 20000U);
}

}  // namespace
