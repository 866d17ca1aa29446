// The question: numbers, and nothing that a model says.
#include "report/GraphvizText.h"

#include <gtest/gtest.h>

#include "tests/report/TiedModel.h"

TEST(GraphvizText, BoxesHaveSizesInInchesAndLinesTheirNumberAsColour) {
  Neighbourhood neighbourhood;
  neighbourhood.boxes = {{10, 144, 36}, {11, 72, 100}};
  neighbourhood.lines = {{Neighbourhood::Tie::generalization, 1, 0, 0, 0, 0},
                         {Neighbourhood::Tie::association, 0, 1, 20, 21, 80}};
  EXPECT_EQ(toGraphviz(neighbourhood),
            "digraph{graph[rankdir=LR,nodesep=0.18,ranksep=0.35];"
            "node[shape=box,label=\"\",fixedsize=true];edge[dir=none];\n"
            "0[width=2.000,height=0.500];\n"
            "1[width=1.000,height=1.389];\n"
            "1->0[color=0];\n"
            "0->1[color=1,label=<<TABLE BORDER=\"0\" FIXEDSIZE=\"TRUE\" WIDTH=\"80\" HEIGHT=\"34\">"
            "<TR><TD></TD></TR></TABLE>>];\n"
            "}\n");
  neighbourhood.isUpright = true;
  EXPECT_NE(toGraphviz(neighbourhood).find("rankdir=TB"), std::string::npos);
}

TEST(GraphvizText, NoNameOfTheModelIsPassedOn) {
  const std::string hostile[] = {"\"];}digraph{", "a\nb\\", "\\", std::string("nul\0nul", 7),
                                 std::string(1000000, '<')};
  TiedModel model;
  KYRClass& own = model.addClass("Order");
  for (const std::string& name : hostile) model.associate(own, model.addClass(name), name, name);
  const StoredNumbers numbers(model.get(), StoredNumbers::Use::shared);
  const std::string text = toGraphviz(makeNeighbourhood(own, numbers));
  EXPECT_LT(text.size(), 2000U);
  for (const char* const part : {"\"];}", "a\n", "\\", "nul", "<<<"})
    EXPECT_EQ(text.find(part), std::string::npos) << part;
  EXPECT_EQ(text.find('\0'), std::string::npos);
}
