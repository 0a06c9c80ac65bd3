#include "tools/schemac/signatures.h"

#include "tests/tools/schemac/describe.h"

namespace schemac {
namespace {

std::string Result(const std::string& described) {
  return ResultType(described, Resolved("entity IfcA : IfcUnknown all\n  doc A.\n").model);
}

TEST(ResultType, TranslatesWords) {
  EXPECT_EQ(Result(""), "void");
  EXPECT_EQ(Result("integer"), "INTEGER");
  EXPECT_EQ(Result("list real"), "LIST<REAL>");
  EXPECT_EQ(Result("double"), "double");
}

TEST(ResultType, ReturnsClassesOfTheModelAsPointersToConst) {
  EXPECT_EQ(Result("IfcA"), "const IfcA*");
  EXPECT_EQ(Result("IfcA*"), "IfcA*");
  EXPECT_EQ(Result("set IfcA"), "SET<const IfcA*>");
}

TEST(Parameters, AreNamed) {
  EXPECT_EQ(Parameters("index, real"), "std::size_t index, REAL value");
  EXPECT_EQ(Parameters("const IfcA&"), "const IfcA& item");
  EXPECT_EQ(Parameters("double* ratios, std::size_t count"), "double* ratios, std::size_t count");
  EXPECT_EQ(Parameters(""), "");
  EXPECT_EQ(Parameters("index, "), "std::size_t index");
}

}  // namespace
}  // namespace schemac
