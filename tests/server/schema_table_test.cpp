#include "kelifc/server/schema_table.h"

#include <gtest/gtest.h>

namespace KelIFC {
namespace {

TEST(SchemaTable, KnowsSixStrings) {
  EXPECT_EQ(FindRelease("IFC151"), IFC_RELEASE_151);
  EXPECT_EQ(FindRelease("IFC20_LONGFORM"), IFC_RELEASE_20);
  EXPECT_EQ(FindRelease("IFC2X_FINAL"), IFC_RELEASE_2X);
  EXPECT_EQ(FindRelease("IFC2X2_FINAL"), IFC_RELEASE_2X2);
  EXPECT_EQ(FindRelease("IFC2X3"), IFC_RELEASE_2X3);
  EXPECT_EQ(FindRelease("IFC2X3_FINAL"), IFC_RELEASE_2X3);
}

TEST(SchemaTable, ComparesExactlyAndWithCase) {
  for (const char* schema : {"", "ifc2x3", "IFC2X", "IFC2X3 ", "IFC2X2", "IFC20", "IFC4"}) {
    EXPECT_EQ(FindRelease(schema), IFC_RELEASE_NONE) << schema;
  }
}

TEST(SchemaTable, SavesEachReleaseWithItsFirstString) {
  EXPECT_EQ(GetSchemaString(IFC_RELEASE_151), "IFC151");
  EXPECT_EQ(GetSchemaString(IFC_RELEASE_20), "IFC20_LONGFORM");
  EXPECT_EQ(GetSchemaString(IFC_RELEASE_2X), "IFC2X_FINAL");
  EXPECT_EQ(GetSchemaString(IFC_RELEASE_2X2), "IFC2X2_FINAL");
  EXPECT_EQ(GetSchemaString(IFC_RELEASE_2X3), "IFC2X3");
  EXPECT_EQ(GetSchemaString(IFC_RELEASE_NONE), "");
}

}  // namespace
}  // namespace KelIFC
