#include "kelifc/server/file_header.h"

#include <gtest/gtest.h>

namespace KelIFC {
namespace {

TEST(FileName, GetsItsNameTimeAndPreprocessor) {
  const std::string time = RenewFileName("('a','b')", "x").substr(5);
  EXPECT_EQ(RenewFileName("FILE_NAME('a','b',('c'),('d'),'e','f','g');", "new.ifc"),
            "FILE_NAME('new.ifc','" + time.substr(1, 19) +
                "',('c'),('d'),'KelIFC v. 25.0.3857','f','g');");
}

TEST(FileName, KeepsCommentsAndBlanks) {
  EXPECT_EQ(RenewFileName("FILE_NAME /* it's , ( */ ( 'a' , $);", "new.ifc"),
            "FILE_NAME /* it's , ( */ ( 'new.ifc' , $);");
}

TEST(FileName, ReplacesANameWithQuotesAsAWhole) {
  EXPECT_EQ(RenewFileName("FILE_NAME('it''s, a house',$);", "it's"), "FILE_NAME('it''s',$);");
}

TEST(FileName, GetsNoFieldThatItLacks) {
  EXPECT_EQ(RenewFileName("FILE_NAME();", "x"), "FILE_NAME();");
  EXPECT_EQ(RenewFileName("FILE_NAME('a", "x"), "FILE_NAME('x'");
}

}  // namespace
}  // namespace KelIFC
