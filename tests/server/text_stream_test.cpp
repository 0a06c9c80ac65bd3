#include "kelifc/server/text_stream.h"

#include <gtest/gtest.h>

#include <string>

namespace KelIFC {
namespace {

TEST(TextStream, HoldsWhatIsWritten) {
  TextStream stream;
  EXPECT_EQ(stream.GetText(), "");
  stream << "a" << 12;
  stream.put('c');
  EXPECT_EQ(stream.GetText(), "a12c");
  EXPECT_EQ(stream.GetText().data()[4], '\0');
}

TEST(TextStream, BeginsAnewWhenItIsCleared) {
  TextStream stream;
  stream << "abc";
  stream.Clear();
  EXPECT_EQ(stream.GetText(), "");
  stream << "d";
  EXPECT_EQ(stream.GetText(), "d");
}

TEST(TextStream, GrowsByCharactersAndByTexts) {
  std::string expected;
  TextStream stream;
  for (int i = 0; i < 5000; ++i) {
    const char c = static_cast<char>('a' + i % 26);
    stream.put(c);
    expected += c;
    const std::string text(static_cast<std::size_t>(i % 50), c);
    stream << text;
    expected += text;
    ASSERT_EQ(stream.GetText().data()[expected.size()], '\0');
  }
  const std::string longText(1000000, 'x');
  stream << longText;
  EXPECT_TRUE(stream.GetText() == expected + longText);
}

}  // namespace
}  // namespace KelIFC
