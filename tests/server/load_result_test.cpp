#include "kelifc/server/load_result.h"

#include <gtest/gtest.h>

#include "kelifc/server/ifc_server.h"

#include "tests/server/temp_file.h"

namespace KelIFC {
namespace {

TEST(LoadResult, HasTheNumbersThatHostsKnow) {
  EXPECT_EQ(static_cast<int>(LOAD_RESULT_LOADED), 0);
  EXPECT_EQ(static_cast<int>(LOAD_RESULT_CANNOT_OPEN), 1);
  EXPECT_EQ(static_cast<int>(LOAD_RESULT_NO_STEP_FILE), 2);
  EXPECT_EQ(static_cast<int>(LOAD_RESULT_UNKNOWN_SCHEMA), 3);
  EXPECT_EQ(static_cast<int>(LOAD_RESULT_LIMIT_REACHED), 4);
  EXPECT_EQ(static_cast<int>(LOAD_RESULT_CANCELLED), 5);
  EXPECT_EQ(static_cast<int>(LOAD_RESULT_UNSUPPORTED_RELEASE), 6);
}

int ResultOf(const char* text) { return IfcServer().LoadIfcFile(TempFile(text).GetPath()); }

TEST(LoadResult, NamesWhatALoadReturns) {
  EXPECT_EQ(ResultOf("ISO-10303-21;FILE_SCHEMA(('IFC2X3'));"), LOAD_RESULT_LOADED);
  EXPECT_EQ(IfcServer().LoadIfcFile("/no/such/file.ifc"), LOAD_RESULT_CANNOT_OPEN);
  EXPECT_EQ(ResultOf("other text;"), LOAD_RESULT_NO_STEP_FILE);
  EXPECT_EQ(ResultOf("ISO-10303-21;FILE_SCHEMA(('NONE'));"), LOAD_RESULT_UNKNOWN_SCHEMA);
}

}  // namespace
}  // namespace KelIFC
