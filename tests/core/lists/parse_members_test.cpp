#include "kelifc/core/lists/parse_members.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "kelifc/core/list_of_members.h"
#include "kelifc/core/set_of_members.h"
#include "kelifc/core/unit_assignment.h"
#include "kelifc/core/value.h"
#include "kelifc/server/ifc_server.h"

#include "tests/core/text.h"

namespace KelIFC {
namespace {

/// The elements of a list and the rest of the text after it.
struct Read {
  std::vector<std::string> elements;
  std::string rest;
  bool operator==(const Read&) const = default;
};

std::string RestText(const char* cursor) { return cursor == nullptr ? "(null)" : cursor; }

/// Reads a list by the plain rules: the inner text is copied, and each element parses itself.
Read ReadSlowly(const std::string& text, IfcUnknown* owner) {
  const std::size_t open = text.find('(');
  if (open == std::string::npos) return {{}, text};
  std::size_t close = open + 1;
  for (int depth = 1; close < text.size(); ++close) {
    if (text[close] == '(') ++depth;
    if (text[close] == ')' && --depth == 0) break;
  }
  const std::string inner = text.substr(open + 1, close - open - 1);
  Read read;
  const char* cursor = inner.empty() ? nullptr : inner.c_str();
  while (cursor != nullptr) {
    MEMBER element(owner);
    const char* next = element.Parse(cursor);
    if (element.GetExists()) read.elements.push_back(Text(element));
    cursor = next == cursor ? nullptr : next;
  }
  const std::size_t comma = text.find(',', close);
  read.rest = comma == std::string::npos ? "(null)" : text.substr(comma + 1);
  return read;
}

template <class Aggregate>
Read ReadAs(const std::string& text, IfcUnknown* owner) {
  Aggregate aggregate(owner);
  Read read;
  read.rest = RestText(aggregate.Parse(text.c_str()));
  for (std::size_t i = 1; i <= aggregate.GetSize(); ++i) {
    read.elements.push_back(Text(aggregate.GetItem(i)));
  }
  return read;
}

class ParseMembersTest : public testing::TestWithParam<IFC_RELEASE> {
 protected:
  ParseMembersTest() {
    server.SetRelease(GetParam());
    if (GetParam() != IFC_RELEASE_NONE) owner.SetServer(&server);
  }

  IfcServer server;
  IfcUnitAssignment owner;
};

TEST_P(ParseMembersTest, ReadsRandomTextInPlaceAsFromACopy) {
  std::mt19937 random(30);
  const std::vector<std::string> parts = {"#1",
                                          "#23",
                                          "#",
                                          "#-4",
                                          "# 5",
                                          "#9999999999",
                                          "#x",
                                          ",",
                                          ",",
                                          ",",
                                          ",",
                                          " ",
                                          "$",
                                          "*",
                                          "(",
                                          ")",
                                          "A",
                                          "\t",
                                          "7",
                                          "$x",
                                          "#6y",
                                          "IFCPARAMETERVALUE(0.5)",
                                          "IFCLENGTHMEASURE(2)"};
  for (int round = 0; round < 60000; ++round) {
    std::string text = random() % 8 == 0 ? "" : "(";
    for (std::size_t count = random() % 12; count > 0; --count) {
      text += parts[random() % parts.size()];
    }
    if (random() % 8 != 0) text += ")";
    if (random() % 2 == 0) text += ",rest";
    const std::size_t first = text.find_first_not_of(" \t");
    if (first != std::string::npos && (text[first] == '$' || text[first] == '*')) continue;
    const Read expected = ReadSlowly(text, &owner);
    ASSERT_EQ(ReadAs<LIST_OF_MEMBERS>(text, &owner), expected) << text;
    ASSERT_EQ(ReadAs<SET_OF_MEMBERS>(text, &owner), expected) << text;
  }
}

TEST_P(ParseMembersTest, ReadsPlainReferencesOfAnyCount) {
  std::mt19937 random(19);
  for (std::size_t count = 1; count < 200; ++count) {
    Read expected = {{}, "#1)"};
    std::string text = "(";
    for (std::size_t i = 0; i < count; ++i) {
      expected.elements.push_back(
          "#" + std::to_string(1 + random() % (random() % 2 == 0 ? 100U : 2147483647U)));
      text += (i == 0 ? "" : random() % 4 == 0 ? ", " : ",") + expected.elements.back();
    }
    text += "),#1)";
    ASSERT_EQ(ReadAs<LIST_OF_MEMBERS>(text, &owner), expected) << text;
    ASSERT_EQ(ReadAs<SET_OF_MEMBERS>(text, &owner), expected) << text;
  }
}

INSTANTIATE_TEST_SUITE_P(Releases, ParseMembersTest,
                         testing::Values(IFC_RELEASE_NONE, IFC_RELEASE_2X, IFC_RELEASE_2X3));

class LongLists : public testing::Test {
 protected:
  LongLists() {
    server.SetRelease(IFC_RELEASE_2X3);
    owner.SetServer(&server);
  }

  /// Returns the number of elements that a list of `count` equal ones has.
  std::size_t SizeOf(const std::string& element, std::size_t count) {
    std::string text = "(";
    for (std::size_t i = 0; i < count; ++i) text += (i == 0 ? "" : ",") + element;
    list.Parse((text + ")").c_str());
    return list.GetSize();
  }

  IfcServer server;
  IfcUnitAssignment owner;
  LIST_OF_MEMBERS list{&owner};
};

TEST_F(LongLists, HoldAnyCountOfReferences) {
  EXPECT_EQ(SizeOf("#123", 300000), 300000U);
  EXPECT_EQ(SizeOf("#123,$", 1000), 1000U);
}

TEST_F(LongLists, HoldAnyCountOfTypedValues) {
  EXPECT_EQ(SizeOf("IFCPARAMETERVALUE(0.5)", 20000), 20000U);
  EXPECT_EQ(SizeOf("IFCLENGTHMEASURE(2)", 20000), 20000U);
}

// An unknown entity returns the cursor after its parenthesis. So the rest of its text begins the
// next element, and makes one more element at the end.
TEST_F(LongLists, EndAfterSixtyFourInlineEntities) {
  EXPECT_EQ(SizeOf("IFCFOO(1)", 62), 63U);
  EXPECT_EQ(SizeOf("IFCFOO(1)", 63), 64U);
  EXPECT_EQ(SizeOf("IFCFOO(1)", 64), 64U);
  EXPECT_EQ(SizeOf("IFCFOO(1)", 100), 64U);
  EXPECT_EQ(SizeOf("IFCPERSON(#1)", 100), 128U) << "each is followed by a reference";
}

TEST_F(LongLists, EndWhenInlineEntitiesHaveScannedTooMuchText) {
  EXPECT_EQ(SizeOf("IFCFOO(1)", 100000), 8U);
  EXPECT_EQ(SizeOf("IFCPERSON(#1)", 100000), 16U);
}

TEST_F(LongLists, ReserveNoMemoryForElementsThatDoNotExist) {
  std::string text = "(#1";
  for (int i = 0; i < 100000; ++i) text += ",$";
  list.Parse((text + ")").c_str());
  EXPECT_EQ(list.GetSize(), 1U);
  EXPECT_EQ(static_cast<std::size_t>(list[1]), 1U);
}

}  // namespace
}  // namespace KelIFC
