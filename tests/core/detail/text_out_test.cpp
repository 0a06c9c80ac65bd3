#include "kelifc/core/detail/text_out.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <iomanip>
#include <limits>
#include <sstream>

namespace KelIFC::detail {
namespace {

/// Accepts a few characters and refuses the rest.
class SmallBuffer : public std::streambuf {
 public:
  SmallBuffer() { setp(room, room + sizeof room); }

 private:
  char room[4];
};

TEST(TextOut, IgnoresTheFormatOfTheStream) {
  std::ostringstream out;
  out << std::setw(10) << std::setfill('_') << std::hex << std::showpos;
  PutText(out, "a");
  PutChar(out, 'b');
  PutNumber(out, std::int64_t{255});
  EXPECT_EQ(out.str(), "ab255");
}

TEST(TextOut, WritesNumbersToTheirBounds) {
  std::ostringstream out;
  PutNumber(out, std::numeric_limits<std::int64_t>::min());
  PutChar(out, ' ');
  PutNumber(out, std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(out.str(), "-9223372036854775808 18446744073709551615");
}

TEST(TextOut, MarksAStreamWhoseBufferRefuses) {
  SmallBuffer buffer;
  std::ostream text(&buffer);
  PutText(text, "1234");
  EXPECT_TRUE(text.good());
  PutText(text, "5");
  EXPECT_TRUE(text.bad());

  SmallBuffer another;
  std::ostream characters(&another);
  for (int i = 0; i < 4; ++i) PutChar(characters, 'x');
  EXPECT_TRUE(characters.good());
  PutChar(characters, 'x');
  EXPECT_TRUE(characters.bad());
}

TEST(TextOut, WritesNothingToAStreamThatHasFailed) {
  std::ostringstream out;
  out.setstate(std::ios::failbit);
  PutText(out, "a");
  PutChar(out, 'b');
  EXPECT_EQ(out.str(), "");
}

TEST(TextOut, ChangesOnlyTheLettersToUpperCase) {
  std::ostringstream out;
  PutUpperCase(out, "IfcWall_2x{z}\xE4", '(');
  EXPECT_EQ(out.str(), "IFCWALL_2X{Z}\xE4(");
}

TEST(TextOut, ChangesTextOfAnyLength) {
  for (const std::size_t length : {0, 1, 127, 128, 129, 255, 256, 1000}) {
    std::ostringstream out;
    PutUpperCase(out, std::string(length, 'q'), '(');
    EXPECT_EQ(out.str(), std::string(length, 'Q') + "(");
  }
}

}  // namespace
}  // namespace KelIFC::detail
