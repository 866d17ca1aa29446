// Every literal of the six kinds, in any case, and the texts that are none.
#include "uml/UMLKinds.h"

#include <gtest/gtest.h>

namespace {

struct Row {
  const char* text;
  int value;
};

template <class Kind>
void check(std::initializer_list<Row> rows) {
  for (const Row& row : rows) {
    EXPECT_EQ(Kind(row.text).getValue(), row.value) << row.text;
  }
}

TEST(UMLKinds, LiteralsHaveTheirNumbersInAnyCase) {
  check<UMLAggregationKind>({{"none", 0}, {"shared", 1}, {"composite", 2}, {"COMPOSITE", 2}, {"Shared", 1}});
  check<UMLCallConcurrencyKind>({{"sequential", 0}, {"guarded", 1}, {"concurrent", 2}, {"GUARDED", 1}});
  check<UMLMessageKind>({{"complete", 0}, {"lost", 1}, {"found", 2}, {"unknown", 3}, {"Unknown", 3}});
  check<UMLMessageSort>({{"synchCall", 0},
                         {"asynchCall", 1},
                         {"asynchcall", 1},
                         {"asynchSignal", 2},
                         {"createMessage", 3},
                         {"deleteMessage", 4},
                         {"reply", 5},
                         {"REPLY", 5}});
  check<UMLParameterDirectionKind>({{"in", 0}, {"inout", 1}, {"out", 2}, {"OUT", 2}, {"return", 3}});
  check<UMLVisibilityKind>({{"public", 0}, {"private", 1}, {"protected", 2}, {"package", 3}, {"Package", 3}});
}

TEST(UMLKinds, EveryOtherTextIsTheFirstLiteral) {
  check<UMLAggregationKind>({{"composite ", 0}, {" shared", 0}, {"sharedcomposite", 0}, {"2", 0}});
  check<UMLVisibilityKind>({{"privat", 0}, {"privates", 0}, {"", 0}});
}

}  // namespace
