// File names of pictures: safe whatever a diagram is called, and never twice the same.
#include "host/PictureNames.h"

#include <gtest/gtest.h>

TEST(PictureNames, PlainNamesStayAndOthersLoseWhatIsNotSafe) {
  const struct {
    const char* name;
    const char* path;
  } rows[] = {
      {"Orders", "Orders.svg"},
      {"a b/c\\d:e", "a_b_c_d_e.svg"},
      {"../../etc/passwd", "_._.._etc_passwd.svg"},
      {"..", "_..svg"},
      {".hidden", "_hidden.svg"},
      {"-rf", "_rf.svg"},
      {"", "diagram.svg"},
      {"$(x)`y`;'\"", "__x__y____.svg"},
      {"a\nb\x7F", "a_b_.svg"},
      {"\xE6\xB3\xA8", "\xE6\xB3\xA8.svg"},
      {"a\xFFz", "a_z.svg"},
      {"a\xE2\x80\xAEz", "a_z.svg"},  // turns the direction of writing around
  };
  for (const auto& row : rows) {
    EXPECT_EQ(PictureNames("").pathFor(row.name), row.path) << row.name;
    EXPECT_EQ(PictureNames("out").pathFor(row.name), std::string("out/") + row.path);
  }
}

TEST(PictureNames, NamesThatAreTakenGetANumber) {
  PictureNames names("");
  EXPECT_EQ(names.pathFor("A"), "A.svg");
  EXPECT_EQ(names.pathFor("a"), "a-2.svg");
  EXPECT_EQ(names.pathFor("A-2"), "A-2-2.svg");
  EXPECT_EQ(names.pathFor("A"), "A-3.svg");
}

TEST(PictureNames, LongNamesAreCutBetweenCharacters) {
  std::string name;
  for (int i = 0; i < 1000; ++i) name += "\xE6\xB3\xA8";
  PictureNames names("");
  EXPECT_EQ(names.pathFor(name).size(), 120U + 4U);
  EXPECT_EQ(names.pathFor(name).size(), 120U + 6U);
}

TEST(PictureNames, ManyEqualNamesAreNumberedInOneStepEach) {
  PictureNames names("");
  std::string last;
  for (int i = 0; i < 20000; ++i) last = names.pathFor("x");
  EXPECT_EQ(last, "x-20000.svg");
}
