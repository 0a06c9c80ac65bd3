#include "kelifc/core/coordinates.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "tests/core/text.h"

namespace KelIFC {
namespace {

TEST(Coordinates, AreEmptyAtFirst) {
  EXPECT_EQ(COORDINATES().GetSize(), 0U);
  EXPECT_EQ(Text(COORDINATES()), "()");
}

TEST(Coordinates, WriteBackWhatTheyRead) {
  COORDINATES coordinates;
  EXPECT_EQ(RestOf(coordinates, "(1.,2.5,0.)"), "(null)");
  EXPECT_EQ(Text(coordinates), "(1.,2.5,0.)");
  EXPECT_EQ(RestOf(coordinates, " ( 1 , -2.5E1 ),5"), "5");
  EXPECT_EQ(Text(coordinates), "(1.,-25.)");
}

TEST(Coordinates, WriteZeroWithinTheTolerance) {
  EXPECT_EQ(TextOf<COORDINATES>("(0.0005,1.)"), "(0.,1.)");
}

TEST(Coordinates, LeaveUnsetNumbersOutAndReadOtherTextAsZero) {
  EXPECT_EQ(TextOf<COORDINATES>("(1.,$,2.,*)"), "(1.,2.)");
  EXPECT_EQ(TextOf<COORDINATES>("(1.,x,2.)"), "(1.,0.,2.)");
  EXPECT_EQ(TextOf<COORDINATES>("(,)"), "(0.,0.)");
  EXPECT_EQ(TextOf<COORDINATES>("( )"), "(0.)");
  EXPECT_EQ(TextOf<COORDINATES>("()"), "()");
}

TEST(Coordinates, ReadANestedTextAsZero) {
  COORDINATES coordinates;
  EXPECT_EQ(RestOf(coordinates, "((1.,2.),(3.)),5"), "5");
  EXPECT_EQ(Text(coordinates), "(0.,2.,0.)");
}

TEST(Coordinates, DoNotMoveTheCursorWithoutAParenthesis) {
  COORDINATES coordinates;
  coordinates.Parse("(1.)");
  EXPECT_EQ(RestOf(coordinates, "1.,2."), "1.,2.");
  EXPECT_EQ(Text(coordinates), "()");
}

TEST(Coordinates, EndAtTheEndOfTheStatementIfNotClosed) {
  COORDINATES coordinates;
  EXPECT_EQ(RestOf(coordinates, "(1.,2."), "(null)");
  EXPECT_EQ(Text(coordinates), "(1.,2.)");
}

TEST(Coordinates, AreEmptiedByOmittedValues) {
  COORDINATES coordinates;
  coordinates.Parse("(1.)");
  EXPECT_EQ(RestOf(coordinates, "$,5"), "5");
  EXPECT_EQ(Text(coordinates), "()");
  coordinates.Parse("(1.)");
  EXPECT_EQ(coordinates.Parse(nullptr), nullptr);
  EXPECT_EQ(Text(coordinates), "()");
}

TEST(Coordinates, ReturnAndReplaceNumbersByPosition) {
  COORDINATES coordinates;
  EXPECT_EQ(coordinates.Add(1.5), 1U);
  EXPECT_EQ(coordinates.Add(2.5), 2U);
  coordinates.SetItem(2, 3.5);
  EXPECT_EQ(coordinates[1], 1.5);
  EXPECT_EQ(coordinates.GetItem(2), 3.5);
}

TEST(Coordinates, IgnoreAPositionOutOfRange) {
  COORDINATES coordinates;
  coordinates.Add(1.5);
  for (const std::size_t position : {std::size_t{0}, std::size_t{2}, ~std::size_t{0}}) {
    coordinates.SetItem(position, 9.0);
    EXPECT_FALSE(coordinates[position].GetExists());
  }
  EXPECT_EQ(Text(coordinates), "(1.5)");
}

TEST(Coordinates, KeepNumbersUnset) {
  COORDINATES coordinates;
  coordinates.Resize(2);
  EXPECT_EQ(Text(coordinates), "($,$)");
  coordinates.SetItem(1, 2.0);
  coordinates.Add(REAL());
  EXPECT_EQ(Text(coordinates), "(2.,$,$)");
  coordinates.SetItem(1, REAL());
  EXPECT_FALSE(coordinates[1].GetExists());
  coordinates.Resize(1);
  EXPECT_EQ(coordinates.GetSize(), 1U);
}

TEST(Coordinates, HoldEveryNanAsANumber) {
  COORDINATES unset;
  unset.Resize(1);
  // The NaN that means an unset number: the first field of the object after its virtual table.
  double mark = 0.0;
  std::memcpy(&mark, reinterpret_cast<const char*>(&unset) + sizeof(void*), sizeof mark);
  ASSERT_TRUE(std::isnan(mark));

  COORDINATES coordinates;
  coordinates.Add(mark);
  EXPECT_TRUE(coordinates[1].GetExists());
  EXPECT_TRUE(std::isnan(double{coordinates[1]}));
  unset.SetItem(1, mark);
  EXPECT_EQ(Text(unset), Text(coordinates));
}

TEST(Coordinates, HoldMoreThanThreeNumbers) {
  COORDINATES coordinates;
  for (int i = 1; i <= 1000; ++i) EXPECT_EQ(coordinates.Add(i), static_cast<std::size_t>(i));
  for (int i = 1; i <= 1000; ++i) EXPECT_EQ(coordinates[static_cast<std::size_t>(i)], i);
  std::string text = "(1";
  for (int i = 2; i <= 5000; ++i) text += "," + std::to_string(i);
  coordinates.Parse((text + ")").c_str());
  EXPECT_EQ(coordinates.GetSize(), 5000U);
  EXPECT_EQ(coordinates[5000], 5000.0);
}

TEST(Coordinates, CopyAnyCountOfNumbers) {
  for (const int count : {0, 3, 4, 100}) {
    COORDINATES coordinates;
    for (int i = 1; i <= count; ++i) coordinates.Add(i);
    const COORDINATES copy(coordinates);
    EXPECT_EQ(Text(copy), Text(coordinates));
    for (const int other : {0, 2, 50}) {
      COORDINATES assigned;
      for (int i = 1; i <= other; ++i) assigned.Add(-i);
      assigned = coordinates;
      EXPECT_EQ(Text(assigned), Text(coordinates));
    }
    const COORDINATES& same = coordinates;
    coordinates = same;
    EXPECT_EQ(Text(coordinates), Text(copy));
  }
}

/// Reads coordinates by the plain rules: the inner text is copied, and one REAL parses each number.
std::string ReadSlowly(const std::string& text) {
  const std::size_t open = text.find('(');
  if (open == std::string::npos) return "() " + text;
  std::size_t close = open + 1;
  for (int depth = 1; close < text.size(); ++close) {
    if (text[close] == '(') ++depth;
    if (text[close] == ')' && --depth == 0) break;
  }
  const std::string inner = text.substr(open + 1, close - open - 1);
  COORDINATES numbers;
  REAL number;
  for (const char* cursor = inner.empty() ? nullptr : inner.c_str(); cursor != nullptr;) {
    cursor = number.Parse(cursor);
    if (number.GetExists()) numbers.Add(number);
  }
  const std::size_t comma = text.find(',', close);
  return Text(numbers) + " " + (comma == std::string::npos ? "(null)" : text.substr(comma + 1));
}

TEST(Coordinates, ReadRandomTextAsFromACopy) {
  std::mt19937 random(41);
  const std::vector<std::string> parts = {"1.", "-2.5", "3e2", "inf", "nan", "nan(", "0x1p", "$",
                                          "*",  " ",    ",",   ",",   ",",   "(",    ")",    "x",
                                          ".",  "e",    "-",   "17",  "\t",  "1.25", "1e999"};
  for (int round = 0; round < 100000; ++round) {
    std::string text = random() % 8 == 0 ? "" : "(";
    for (std::size_t count = random() % 12; count > 0; --count) {
      text += parts[random() % parts.size()];
    }
    if (random() % 8 != 0) text += ")";
    if (random() % 2 == 0) text += ",rest";
    const std::size_t first = text.find_first_not_of(" \t");
    if (first != std::string::npos && (text[first] == '$' || text[first] == '*')) continue;
    COORDINATES coordinates;
    const std::string rest = RestOf(coordinates, text.c_str());
    ASSERT_EQ(Text(coordinates) + " " + rest, ReadSlowly(text)) << text;
  }
}

TEST(Coordinates, ReadPlainNumbersAsFromACopy) {
  std::mt19937 random(19);
  for (int round = 0; round < 20000; ++round) {
    std::string text = "(";
    for (std::size_t count = random() % 6; count > 0; --count) {
      if (random() % 2 == 0) text += "-";
      text += std::to_string(random() >> random() % 32) + "." + std::to_string(random() % 1000);
      text += count > 1 ? "," : "";
    }
    text += random() % 2 == 0 ? ")" : "),rest";
    COORDINATES coordinates;
    const std::string rest = RestOf(coordinates, text.c_str());
    ASSERT_EQ(Text(coordinates) + " " + rest, ReadSlowly(text)) << text;
  }
}

TEST(Coordinates, CopyUnsetNumbersAsZero) {
  COORDINATES coordinates;
  coordinates.Add(1.5);
  coordinates.Add(REAL());
  double numbers[] = {9, 9, 9};
  coordinates.GetNumbers(numbers, 3);
  EXPECT_EQ(numbers[0], 1.5);
  EXPECT_EQ(numbers[1], 0);
  EXPECT_EQ(numbers[2], 0);
}

}  // namespace
}  // namespace KelIFC
