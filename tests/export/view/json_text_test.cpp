#include "export/view/json_text.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <limits>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace KelIFC::exporting {
namespace {

template <class Anything>
std::string TextOf(const Anything& value) {
  JsonText json;
  json.Value(value);
  return json.GetText();
}

TEST(JsonText, PutsCommasBetweenValues) {
  JsonText json;
  json.BeginObject();
  json.Member("a", std::size_t{1});
  json.ListMember("list", std::vector<double>{1.5, 2.0},
                  [](JsonText& text, double value) { text.Value(value); });
  json.ListMember("empty", std::vector<double>{},
                  [](JsonText& text, double value) { text.Value(value); });
  json.Key("nested");
  json.BeginList();
  json.BeginObject();
  json.EndObject();
  json.BeginList();
  json.EndList();
  json.Null();
  json.EndList();
  json.EndObject();
  EXPECT_EQ(json.GetText(), R"({"a":1,"list":[1.5,2],"empty":[],"nested":[{},[],null]})");
}

TEST(JsonText, EscapesWhatWouldEndAText) {
  EXPECT_EQ(TextOf(std::string_view("a\"b\\c\n\x01\x1F/")), R"("a\"b\\c\u000a\u0001\u001f/")");
}

TEST(JsonText, ReadsBackAsTheSameText) {
  std::string all;
  for (char c = 1; c < 127; c++) all += c;
  all += "\x7F\xC3\xA4\xE2\x80\xA8\xF0\x9F\x98\x80[{:,";
  EXPECT_EQ(nlohmann::json::parse(TextOf(std::string_view(all))).get<std::string>(), all);
}

TEST(JsonText, ReplacesBytesThatAreNotUtf8) {
  EXPECT_EQ(TextOf(std::string_view("a\xFFz")), "\"a\xEF\xBF\xBDz\"");
}

TEST(JsonText, HasNoNumberThatIsNotFinite) {
  EXPECT_EQ(TextOf(std::numeric_limits<double>::infinity()), "null");
  EXPECT_EQ(TextOf(std::numeric_limits<double>::quiet_NaN()), "null");
  EXPECT_EQ(TextOf(std::optional<double>()), "null");
  EXPECT_EQ(TextOf(std::optional<double>(0.1)), "0.1");
}

}  // namespace
}  // namespace KelIFC::exporting
