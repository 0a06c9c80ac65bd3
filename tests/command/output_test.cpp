#include "tools/kelifc/output.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

namespace command {
namespace {

// Lengths around that of the block in which an output collects its text.
const std::size_t kLengths[] = {0, 1, 100, 65535, 65536, 65537, 200000, 3};

TEST(Output, KeepsTextsOfAllLengthsInTheirOrder) {
  std::string expected;
  std::string text = "before ";
  Output output(text);
  char letter = 'a';
  for (const std::size_t first : kLengths) {
    for (const std::size_t second : kLengths) {
      const std::string part = std::string(first, letter) + std::string(second, '.');
      output.Write(part.substr(0, first));
      output.Write(part.substr(first));
      expected += part;
      letter = letter == 'z' ? 'a' : static_cast<char>(letter + 1);
    }
  }
  output.Close();
  EXPECT_TRUE(text == "before " + expected);
}

}  // namespace
}  // namespace command
