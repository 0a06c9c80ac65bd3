#include "kelifc/core/step_file_schema.h"

#include <gtest/gtest.h>

namespace KelIFC {
namespace {

std::string Protocol(const char* text) {
  StepFileSchema schema;
  schema.Parse(text);
  return schema.GetProtocol();
}

TEST(StepFileSchema, ReadsTheFirstNameOfItsList) {
  EXPECT_EQ(Protocol("FILE_SCHEMA(('IFC2X3'))"), "IFC2X3");
  EXPECT_EQ(Protocol("FILE_SCHEMA(('IFC2X3','X'))"), "IFC2X3");
  EXPECT_EQ(Protocol("FILE_SCHEMA ( ( 'IFC151' ) )"), "IFC151");
}

TEST(StepFileSchema, HasNoProtocolWithoutAName) {
  EXPECT_EQ(Protocol("FILE_SCHEMA(())"), "");
  EXPECT_EQ(Protocol("FILE_SCHEMA"), "");
  EXPECT_EQ(Protocol(nullptr), "");
}

TEST(StepFileSchema, NamesItself) {
  EXPECT_STREQ(StepFileSchema::GetItemName(), "StepFileSchema");
  EXPECT_STREQ(StepFileSchema().GetStepName(), "StepFileSchema");
}

}  // namespace
}  // namespace KelIFC
