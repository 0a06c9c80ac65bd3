#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iterator>
#include <regex>
#include <set>
#include <string>

#include "tests/command/process.h"
#include "tests/paths.h"

namespace command_test {
namespace {

using testing::HasSubstr;
using testing::IsSupersetOf;

using Words = std::set<std::string>;

/// The first group of each match of the pattern.
Words Matches(const std::string& text, const std::string& pattern) {
  const std::regex expression(pattern);
  Words words;
  for (std::sregex_iterator match(text.begin(), text.end(), expression), end; match != end; ++match)
    words.insert((*match)[1]);
  return words;
}

Words Options(const std::string& text) { return Matches(text, "(--[a-z][a-z-]*)"); }

/// The commands that the help lists, one indented line each.
Words Commands() {
  const std::string help = Kelifc({"--help"}).out;
  return Matches(help.substr(help.find("Subcommands:")), "\n  ([a-z]+) ");
}

Words OptionsOfTheHelp() {
  Words options = Options(Kelifc({"--help"}).out);
  for (const std::string& command : Commands())
    options.merge(Options(Kelifc({command, "--help"}).out));
  return options;
}

/// The page, with a dash where its markup has an escaped one.
std::string ManPage() {
  const std::string source =
      ReadFile(std::string(KelIFC::kSourceDir) + "/tools/kelifc/kelifc.1.in");
  return std::regex_replace(source, std::regex("\\\\-"), "-");
}

TEST(ManPage, DescribesEachCommandOfTheHelp) {
  const std::string page = ManPage();
  EXPECT_THAT(Commands(), IsSupersetOf({"structure", "info", "save"}));
  for (const std::string& command : Commands())
    EXPECT_THAT(page, HasSubstr(".TP\n.B " + command + "\n"));
}

TEST(ManPage, DescribesTheOptionsOfTheHelpAndNoOthers) {
  const std::string page = ManPage();
  const std::string described = page.substr(page.find(".SH OPTIONS"));
  EXPECT_THAT(OptionsOfTheHelp(), IsSupersetOf({"--json", "--output", "--help", "--version"}));
  EXPECT_EQ(Options(described), OptionsOfTheHelp());
  EXPECT_THAT(OptionsOfTheHelp(), IsSupersetOf(Options(page)));
}

}  // namespace
}  // namespace command_test
