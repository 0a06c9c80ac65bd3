#include "kelifc/core/detail/text_out.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <iomanip>
#include <limits>
#include <sstream>
#include <string>

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

TEST(TextOut, WritesNumbersAroundEachPowerOfTen) {
  for (std::uint64_t power = 1; power != 0; power = power > UINT64_MAX / 10 ? 0 : 10 * power) {
    for (const std::uint64_t number : {power - 1, power, power + 1, 2 * power, 7 * power + 3}) {
      std::ostringstream out;
      PutNumber(out, number);
      PutNumber(out, -static_cast<std::int64_t>(number / 2));
      ASSERT_EQ(out.str(),
                std::to_string(number) + std::to_string(-static_cast<std::int64_t>(number / 2)));
    }
  }
}

TEST(TextOut, ChangesEachCharacterAtEachPlaceAsASingleOne) {
  for (int c = 0; c < 256; ++c) {
    const char changed = c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : static_cast<char>(c);
    for (std::size_t place = 0; place < 19; ++place) {
      std::string text =
          "aZz@[`{q\xE1"
          "aZz@[`{q_q";
      std::string expected =
          "AZZ@[`{Q\xE1"
          "AZZ@[`{Q_Q(";
      text[place] = static_cast<char>(c);
      expected[place] = changed;
      std::ostringstream out;
      PutUpperCase(out, text, '(');
      ASSERT_EQ(out.str(), expected) << c << " at " << place;
    }
  }
}

TEST(TextOut, WritesReferences) {
  std::ostringstream out;
  PutReference(out, 7, '=');
  PutReference(out, std::numeric_limits<std::uint64_t>::max());
  EXPECT_EQ(out.str(), "#7=#18446744073709551615");
}

/// Passes its text on in blocks of any size, even without a block.
class Blockwise : public std::streambuf {
 public:
  explicit Blockwise(std::size_t size) : block(size, '\0') { Restart(); }
  std::string GetText() { return Flush(), text; }

 protected:
  int_type overflow(int_type c) override {
    Flush();
    if (pptr() != epptr()) return sputc(traits_type::to_char_type(c));
    text += traits_type::to_char_type(c);
    return c;
  }

 private:
  void Restart() { setp(block.data(), block.data() + block.size()); }
  void Flush() {
    text.append(pbase(), pptr());
    Restart();
  }

  std::string block;
  std::string text;
};

TEST(TextOut, WritesTheSameWhereverTheBufferEnds) {
  const auto write = [](std::ostream& out) {
    for (std::uint64_t i = 0; i < 50; ++i) {
      PutReference(out, i * i * i, '=');
      PutUpperCase(out, std::string(i, 'q'), '(');
      PutNumber(out, -static_cast<std::int64_t>(i));
      PutText(out, std::string(i % 7, '-'));
      PutChar(out, ';');
    }
  };
  std::ostringstream whole;
  write(whole);
  for (std::size_t size = 0; size < 300; ++size) {
    Blockwise buffer(size);
    std::ostream out(&buffer);
    write(out);
    ASSERT_EQ(buffer.GetText(), whole.str()) << size;
  }
}

}  // namespace
}  // namespace KelIFC::detail
