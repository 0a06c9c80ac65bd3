#include "kelifc/import/linear/name_suffix.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>

namespace KelIFC {
namespace {

std::string SuffixOf(std::size_t map, std::size_t number, std::size_t count) {
  const auto representation = std::make_shared<RepresentationFacts>();
  representation->itemCount = count;
  LinearPartFacts part;
  part.representation = representation;
  part.mappingIndex = map;
  LinearItemFacts item;
  item.number = number;
  return NameSuffix(part, item);
}

TEST(NameSuffix, HasTheMapAndTheItemTwice) { EXPECT_EQ(SuffixOf(2, 3, 4), "(2/3)(2)(3)"); }

TEST(NameSuffix, IsTheMapForASingleItem) { EXPECT_EQ(SuffixOf(2, 1, 1), "(2)"); }

TEST(NameSuffix, IsTheItemWithoutAMap) { EXPECT_EQ(SuffixOf(0, 2, 2), "(2)"); }

TEST(NameSuffix, IsEmptyForASingleItemWithoutAMap) { EXPECT_EQ(SuffixOf(0, 1, 1), ""); }

}  // namespace
}  // namespace KelIFC
