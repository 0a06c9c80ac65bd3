#include "kelifc/core/lists/value_lists.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>

namespace KelIFC {
namespace {

/// A list and the text after it.
template <class List>
struct Read {
  Read(const char* (*parse)(List&, const char*), const char* text) {
    const char* next = parse(list, text);
    rest = next == nullptr ? "(null)" : next;
  }
  std::string Written() const {
    std::ostringstream out;
    list.Write(out);
    return out.str();
  }
  List list;
  std::string rest;
};
using Integers = Read<LIST<INTEGER>>;
using Texts = Read<LIST<STRING>>;

TEST(ParseIntegers, ReadsTheNumbersBetweenParentheses) {
  const Integers angle(&ParseIntegers, " (49,6,-12),$");
  EXPECT_EQ(angle.Written(), "(49, 6, -12)");
  EXPECT_EQ(angle.rest, "$");
  EXPECT_EQ(Integers(&ParseIntegers, "()").Written(), "()");
}

TEST(ParseIntegers, LeavesUnsetNumbersOutAndReadsOtherTextAsZero) {
  EXPECT_EQ(Integers(&ParseIntegers, "(1,$,x)").Written(), "(1, 0)");
}

TEST(ParseIntegers, LeavesAnOmittedListUnset) {
  EXPECT_EQ(Integers(&ParseIntegers, "*,7").rest, "7");
  EXPECT_EQ(Integers(&ParseIntegers, "*,7").Written(), "$");
  EXPECT_EQ(Integers(&ParseIntegers, nullptr).rest, "(null)");
}

TEST(ParseIntegers, DoesNotMoveWithoutAParenthesis) {
  EXPECT_EQ(Integers(&ParseIntegers, "5,7").rest, "5,7");
  EXPECT_EQ(Integers(&ParseIntegers, "5,7").Written(), "$");
}

TEST(ParseIntegers, EndsWithTheTextIfNoParenthesisCloses) {
  EXPECT_EQ(Integers(&ParseIntegers, "(1,2").Written(), "(1, 2)");
  EXPECT_EQ(Integers(&ParseIntegers, "(1,2").rest, "(null)");
}

TEST(ParseTexts, ReadsTextsWithCommasAndParenthesesInThem) {
  const Texts texts(&ParseTexts, "( 'a,b' , 'c)', 'it\\'s' ),'next'");
  EXPECT_EQ(texts.Written(), "('a,b', 'c)', 'it\\'s')");
  EXPECT_EQ(texts.rest, "'next'");
}

TEST(ParseTexts, LeavesUnsetElementsOut) {
  EXPECT_EQ(Texts(&ParseTexts, "('a',$,*,'b')").Written(), "('a', 'b')");
  EXPECT_EQ(Texts(&ParseTexts, "(),1").Written(), "()");
  EXPECT_EQ(Texts(&ParseTexts, "(),1").rest, "1");
}

TEST(ParseTexts, LeavesAnOmittedListUnset) {
  EXPECT_EQ(Texts(&ParseTexts, "$,1").rest, "1");
  EXPECT_EQ(Texts(&ParseTexts, "$,1").Written(), "$");
  EXPECT_EQ(Texts(&ParseTexts, nullptr).rest, "(null)");
}

TEST(ParseTexts, TreatsATextWithoutParenthesesAsAListOfOne) {
  const Texts texts(&ParseTexts, "'Mr.',$");
  EXPECT_EQ(texts.Written(), "('Mr.')");
  EXPECT_EQ(texts.rest, "$");
}

TEST(ParseTexts, EndsWithTheTextIfAQuoteOrParenthesisIsMissing) {
  for (const char* text : {"('a'", "('a','b", "(", "('a',"}) {
    EXPECT_EQ(Texts(&ParseTexts, text).rest, "(null)") << text;
  }
  EXPECT_EQ(Texts(&ParseTexts, "('a','b").Written(), "('a')");
}

}  // namespace
}  // namespace KelIFC
