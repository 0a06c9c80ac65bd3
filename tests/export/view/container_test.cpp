#include "export/view/container.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace KelIFC::exporting {
namespace {

std::string Written(std::string_view description, const std::vector<ContainerArray>& arrays) {
  std::string bytes;
  WriteContainer(
      description, arrays, [&](std::string_view part) { bytes += part; }, [](double) {});
  return bytes;
}

TEST(Container, HasTheArraysWhereTheyAreNamed) {
  const std::vector<float> floats = {1.0F, -2.5F, 0.0F};
  const std::vector<std::uint32_t> integers = {1, 4'294'967'295};
  const std::vector<ContainerArray> arrays = {{"floats", std::span(floats)},
                                              {"none", std::span<const float>()},
                                              {"integers", std::span(integers)}};
  const std::vector<ArrayPlace> places = PlacesOf(arrays);
  ASSERT_EQ(places.size(), 3U);
  EXPECT_EQ(places[0].type, "float32");
  EXPECT_EQ(places[0].count, 3U);
  EXPECT_EQ(places[1].count, 0U);
  EXPECT_EQ(places[2].type, "uint32");
  EXPECT_EQ(places[2].offset, 16U);

  const std::string bytes = Written("{}", arrays);
  EXPECT_EQ(bytes.substr(0, 16), std::string_view("KLV1\x08\0\0\0{}      ", 16));
  EXPECT_EQ(bytes.size(), 16U + 16U + 8U);
  EXPECT_EQ(bytes.substr(16 + 4, 4), std::string_view("\x00\x00\x20\xC0", 4));
  EXPECT_EQ(bytes.substr(32), std::string_view("\x01\0\0\0\xFF\xFF\xFF\xFF", 8));
}

TEST(Container, HasNoFloatThatIsNotFinite) {
  const std::vector<float> floats = {std::numeric_limits<float>::infinity(),
                                     std::numeric_limits<float>::quiet_NaN()};
  EXPECT_EQ(Written("", {{"floats", std::span(floats)}}).substr(8), std::string(8, '\0'));
}

TEST(Container, ReportsAShareThatGrowsToOne) {
  const std::vector<float> floats(1'000'001, 1.5F);
  std::vector<double> shares;
  std::size_t size = 0;
  WriteContainer(
      "{}", {{"floats", std::span(floats)}}, [&](std::string_view part) { size += part.size(); },
      [&](double share) { shares.push_back(share); });
  ASSERT_GT(shares.size(), 1U);
  for (std::size_t i = 1; i < shares.size(); i++) EXPECT_GT(shares[i], shares[i - 1]);
  EXPECT_EQ(shares.back(), 1.0);
  EXPECT_EQ(size, 16U + 4'000'008U);
}

}  // namespace
}  // namespace KelIFC::exporting
