// What is around a class: a box for each class, a line for each tie, and how much of it when there is much.
#include "report/Neighbourhood.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/report/TiedModel.h"

namespace {

using Tie = Neighbourhood::Tie;

// The lines as (kind, name of the first class, name of the second).
using Drawn = std::tuple<Tie, std::string, std::string>;

class NeighbourhoodTest : public testing::Test {
 protected:
  Neighbourhood around(const KYRClass& class_) {
    numbers_ = std::make_unique<StoredNumbers>(model.get(), StoredNumbers::Use::shared);
    return makeNeighbourhood(class_, *numbers_);
  }
  std::vector<Drawn> linesAround(const KYRClass& class_) {
    const Neighbourhood neighbourhood = around(class_);
    std::vector<Drawn> lines;
    for (const Neighbourhood::Line& line : neighbourhood.lines) {
      lines.emplace_back(line.tie, nameOf(neighbourhood.boxes[line.first]),
                         nameOf(neighbourhood.boxes[line.second]));
    }
    return lines;
  }
  std::string nameOf(const Neighbourhood::Box& box) const {
    return std::string(dynamic_cast<const KYRClass&>(*numbers_->at(box.id)).getName().view());
  }

  TiedModel model;

 private:
  std::unique_ptr<StoredNumbers> numbers_;
};

}  // namespace

TEST_F(NeighbourhoodTest, AClassWithoutTiesHasNone) {
  EXPECT_TRUE(around(model.addClass("Order")).boxes.empty());
}

TEST_F(NeighbourhoodTest, LinesLeadFromWhatStandsBefore) {
  KYRClass& own = model.addClass("Order");
  KYRClass& other = model.addClass("Other");
  model.inherit(other, own);
  model.inherit(own, other);
  model.realize(other, own);
  model.realize(own, other);
  model.associate(own, other);
  model.associate(other, own);
  model.depend(own, other);
  model.depend(other, own);
  EXPECT_THAT(linesAround(own),
              testing::ElementsAre(
                  Drawn(Tie::generalization, "Other", "Order"), Drawn(Tie::generalization, "Order", "Other"),
                  Drawn(Tie::realization, "Other", "Order"), Drawn(Tie::realization, "Order", "Other"),
                  Drawn(Tie::association, "Order", "Other"), Drawn(Tie::association, "Other", "Order"),
                  Drawn(Tie::dependency, "Order", "Other"), Drawn(Tie::dependency, "Other", "Order")));
  EXPECT_EQ(around(own).boxes.size(), 2U);
}

TEST_F(NeighbourhoodTest, AClassThatIsTiedToItselfHasOneBoxAndEachAssociationOnce) {
  KYRClass& own = model.addClass("Employee");
  model.associate(own, own, "boss", "reports");
  EXPECT_THAT(linesAround(own), testing::ElementsAre(Drawn(Tie::association, "Employee", "Employee")));
  EXPECT_EQ(around(own).boxes.size(), 1U);
}

TEST_F(NeighbourhoodTest, RolesAreThoseOfTheEndsOfTheLine) {
  KYRClass& own = model.addClass("Order");
  KYRClass& other = model.addClass("Line");
  const KYRAssociation& association = model.associate(own, other, "order", "lines");
  for (const KYRClass* const class_ : {&own, &other}) {
    const StoredNumbers numbers(model.get(), StoredNumbers::Use::shared);
    const Neighbourhood neighbourhood = makeNeighbourhood(*class_, numbers);
    ASSERT_EQ(neighbourhood.lines.size(), 1U);
    const Neighbourhood::Line& line = neighbourhood.lines.front();
    EXPECT_EQ(numbers.at(line.firstRole), association.roles[0]);
    EXPECT_EQ(numbers.at(line.secondRole), association.roles[1]);
    EXPECT_EQ(neighbourhood.boxes[line.first].id, numbers.get(&own));
    EXPECT_GT(line.textWidth, 0);
  }
}

TEST_F(NeighbourhoodTest, AnAssociationOfManyEndsIsALineToEachOther) {
  KYRClass& own = model.addClass("A");
  KYRClass& second = model.addClass("B");
  KYRClass& third = model.addClass("C");
  TiedModel::addRole(model.associate(own, second), third, "");
  EXPECT_THAT(linesAround(third),
              testing::ElementsAre(Drawn(Tie::association, "A", "C"), Drawn(Tie::association, "B", "C")));
  EXPECT_EQ(linesAround(own).size(), 2U);
}

TEST_F(NeighbourhoodTest, EndsWithoutAClassAreNoLines) {
  KYRClass& own = model.addClass("A");
  KYRAssociation& association = model.associate(own, own);
  association.addAssociationRole(new KYRAssociationRole());
  auto elsewhere = std::make_unique<KYRClass>();  // not in the model
  TiedModel::addRole(association, *elsewhere, "");
  EXPECT_EQ(linesAround(own).size(), 1U);
}

TEST_F(NeighbourhoodTest, OfManyNeighboursTheFirstOfEachKindAreShown) {
  KYRClass& own = model.addClass("Hub");
  for (int i = 0; i < 30; ++i) {
    KYRClass& other = model.addClass("C" + std::to_string(i));
    model.inherit(own, other);
    model.inherit(other, own);
    model.associate(own, other);
    KYRClass& further = model.addClass("D" + std::to_string(i));
    model.associate(further, own);
  }
  const Neighbourhood neighbourhood = around(own);
  EXPECT_EQ(neighbourhood.boxes.size(), 1 + 3 * Neighbourhood::mostBoxesOfSide);
  EXPECT_LE(neighbourhood.lines.size(), Neighbourhood::mostLines);
}

TEST_F(NeighbourhoodTest, OfManyTiesToOneClassTheFirstAreShown) {
  KYRClass& own = model.addClass("A");
  KYRClass& other = model.addClass("B");
  for (int i = 0; i < 100; ++i) model.associate(own, other);
  EXPECT_EQ(around(own).lines.size(), Neighbourhood::mostLines);
}

// Half a model tied together by one association would otherwise cost its square.
TEST_F(NeighbourhoodTest, NotAllOfAVeryLargeAssociationIsLookedAt) {
  KYRClass& own = model.addClass("Own");
  KYRClass& seen = model.addClass("Seen");
  KYRAssociation& association = model.associate(own, own);
  for (unsigned int i = 0; i < Neighbourhood::mostLookedAt; ++i) {
    association.addAssociationRole(new KYRAssociationRole());
  }
  TiedModel::addRole(association, seen, "");
  EXPECT_EQ(around(own).boxes.size(), 1U);
}

TEST_F(NeighbourhoodTest, BoxesAreAsLargeAsTheirTextsUpToALimit) {
  KYRClass& own = model.addClass("Order");
  KYRClass& small = model.addClass("X");
  KYRClass& large = model.addClass(std::string(1000000, 'W'));
  KYRClass& foreign =
      model.addClass("\xE6\x97\xA5\xE6\x9C\xAC\xE8\xAA\x9E\xE3\x81\xAE\xE5\x90\x8D\xE5\x89\x8D");
  for (KYRClass* const other : {&small, &large, &foreign}) model.depend(own, *other);
  const int bare = around(own).boxes[0].height;
  for (int i = 0; i < 20; ++i) {
    auto* const attribute = new KYRAttribute();
    attribute->setName(KYRString(std::string(static_cast<std::size_t>(i) * 100, 'a')));
    own.addAttribute(attribute);
  }
  const Neighbourhood neighbourhood = around(own);
  ASSERT_EQ(neighbourhood.boxes.size(), 4U);
  EXPECT_EQ(neighbourhood.boxes[0].width, 271);
  EXPECT_EQ(neighbourhood.boxes[0].height, bare + 9 * 16 + 8);
  EXPECT_EQ(neighbourhood.boxes[1].width, 70);
  EXPECT_EQ(neighbourhood.boxes[2].width, 237);
  EXPECT_EQ(neighbourhood.boxes[3].width, 6 * 12.5 + 17);
}

TEST_F(NeighbourhoodTest, WhereARowWouldBeTooWideItStandsAtTheSide) {
  KYRClass& own = model.addClass("A");
  for (int i = 0; i < 8; ++i) model.inherit(own, model.addClass("B" + std::to_string(i)));
  EXPECT_TRUE(around(own).isUpright);
  KYRClass& wide = model.addClass("C");
  for (int i = 0; i < 8; ++i) model.inherit(wide, model.addClass("ALongNameOfAClass" + std::to_string(i)));
  EXPECT_FALSE(around(wide).isUpright);
}

TEST_F(NeighbourhoodTest, APictureOfInheritanceStandsUpright) {
  KYRClass& own = model.addClass("A");
  KYRClass& other = model.addClass("B");
  model.inherit(own, other);
  EXPECT_TRUE(around(own).isUpright);
  model.associate(own, other);
  EXPECT_FALSE(around(own).isUpright);
  model.realize(other, own);
  EXPECT_TRUE(around(own).isUpright);
}
