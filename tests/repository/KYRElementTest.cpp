#include "repository/model/KYRElement.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "foundation/KYRException.h"
#include "repository/model/KYRClass.h"
#include "repository/model/KYRNote.h"
#include "repository/model/KYRPropertyType.h"
#include "repository/model/KYRPropertyValue.h"

namespace {

std::string valuesOf(const KYRElement& element) {
  std::string text;
  for (const auto* value = element.getFirstPropertyValue(); value != nullptr; value = value->getNext()) {
    text += value->value.getCharacters();
    text += ' ';
  }
  return text;
}

TEST(KYRElement, OwnsItsNotes) {
  KYRClass element;
  for (const char* text : {"first", "second"}) {
    auto* note = new KYRNote();
    note->noteText = text;
    element.addNote(note);
    EXPECT_EQ(note->getParent(), &element);
  }
  EXPECT_EQ(element.notes.count(), 2U);
  EXPECT_EQ(element.notes[1]->noteText, "second");
  EXPECT_THROW(element.addNote(nullptr), KYRException);
}

TEST(KYRElement, TheLaterValueOfAPropertyStays) {
  KYRPropertyType type(KYRElementType::class_);
  KYRClass element;
  KYRPropertyValue* first = element.setPropertyValue(&type, "one");
  EXPECT_EQ(element.setPropertyValue(&type, "two"), first);
  EXPECT_EQ(valuesOf(element), "two ");
  EXPECT_EQ(type.getValueCount(), 1U);
  EXPECT_EQ(first->getPropertyType(), &type);
  EXPECT_EQ(first->getElement(), &element);
}

TEST(KYRElement, ValuesComeInOrderOfMaking) {
  KYRPropertyType a(KYRElementType::class_);
  KYRPropertyType b(KYRElementType::class_);
  KYRPropertyType c(KYRElementType::class_);
  KYRClass element;
  element.setPropertyValue(&b, "b");
  element.setPropertyValue(&a, "a");
  element.setPropertyValue(&c, "c");
  element.setPropertyValue(&b, "B");
  EXPECT_EQ(valuesOf(element), "B a c ");
  EXPECT_EQ(element.getPropertyValue(&a)->value, "a");
  EXPECT_EQ(element.getPropertyValue(nullptr), nullptr);
}

TEST(KYRElement, ValuesAndTypesGoInEitherOrder) {
  KYRPropertyType outer(KYRElementType::class_);
  KYRClass element;
  {
    KYRPropertyType type(KYRElementType::class_);
    element.setPropertyValue(&type, "x");
    element.setPropertyValue(&outer, "y");
    KYRClass shorter;
    shorter.setPropertyValue(&type, "z");
    EXPECT_EQ(type.getValueCount(), 2U);
  }
  EXPECT_EQ(element.getFirstPropertyValue()->getPropertyType(), nullptr);
  EXPECT_EQ(valuesOf(element), "x y ");
  EXPECT_EQ(outer.getValueCount(), 1U);
}

// An object with very many properties, and a property of very many objects.
TEST(KYRElement, ManyValuesAreFoundAtOnce) {
  constexpr int count = 50000;
  std::vector<std::unique_ptr<KYRPropertyType>> types;
  for (int i = 0; i < count; ++i) {
    types.push_back(std::make_unique<KYRPropertyType>(KYRElementType::class_));
  }
  KYRClass element;
  for (const auto& type : types) element.setPropertyValue(type.get(), "first");
  for (const auto& type : types) element.setPropertyValue(type.get(), "second");
  EXPECT_EQ(element.getPropertyValue(types[count - 1].get())->value, "second");
  EXPECT_EQ(types[count / 2]->getValueCount(), 1U);
  std::vector<std::unique_ptr<KYRClass>> elements;
  for (int i = 0; i < count; ++i) {
    elements.push_back(std::make_unique<KYRClass>());
    elements.back()->setPropertyValue(types[0].get(), "x");
  }
  EXPECT_EQ(types[0]->getValue(elements[7].get())->getElement(), elements[7].get());
  elements.erase(elements.begin() + 7);
  EXPECT_EQ(types[0]->getValueCount(), static_cast<unsigned int>(count));
  EXPECT_EQ(types[0]->getValue(elements[count - 2].get())->getElement(), elements[count - 2].get());
}

}  // namespace
