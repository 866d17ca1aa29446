// Reading the golden tables of the metamodel, which are written out once more by hand beside the
// code, and comparing a dump with one.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

inline std::string readGolden(const std::string& name) {
  std::ifstream in(std::string(KYR_SOURCE_DIR) + "/tests/uml/golden/" + name);
  EXPECT_TRUE(in.good()) << name;
  std::ostringstream out;
  out << in.rdbuf();
  return out.str();
}
