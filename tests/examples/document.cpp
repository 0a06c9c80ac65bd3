#include "tests/examples/document.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "tests/command/process.h"
#include "tests/paths.h"

namespace document_test {

std::string ReadSource(const std::string& path) {
  const std::string text = command_test::ReadFile(std::string(KelIFC::kSourceDir) + "/" + path);
  EXPECT_NE(text, "") << path;
  return text;
}

std::vector<std::string> BlocksOf(const std::string& page, const std::string& language) {
  std::vector<std::string> blocks;
  std::istringstream text(page);
  bool isInside = false;
  bool isWanted = false;
  for (std::string line; std::getline(text, line);) {
    if (line.rfind("```", 0) == 0) {
      isInside = !isInside;
      isWanted = isInside && line == "```" + language;
      if (isWanted) blocks.emplace_back();
    } else if (isWanted) {
      blocks.back() += line + "\n";
    }
  }
  return blocks;
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line.substr(std::min(line.find_first_not_of(' '), line.size())));
  }
  return lines;
}

}  // namespace document_test
