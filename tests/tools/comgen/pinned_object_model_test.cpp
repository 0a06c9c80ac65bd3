#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "tests/paths.h"
#include "tests/tools/comgen/describe.h"

// Hosts are compiled against the identifiers of interfaces, the order of their operations and the
// dispatch identifiers. The pinned file holds all of them as they were published. What is described
// now must begin with what is pinned: new interfaces follow the old ones. After a new interface is
// published, its lines are appended to the pinned file.

namespace comgen {
namespace {

using Lines = std::vector<std::string>;

Lines LinesOf(std::istream&& text) {
  Lines lines;
  for (std::string line; std::getline(text, line);) lines.push_back(line);
  return lines;
}

Description ReadDescription() {
  const std::string path = std::string(KelIFC::kSourceDir) + "/kelifc/geo/geo.objects";
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  Description description = ParseDescription(path, text.str());
  Resolve(description);
  return description;
}

std::string WithoutHelp(const std::string& line) {
  const std::size_t help = line.find(", helpstring(");
  return help == std::string::npos ? line : line.substr(0, help) + "]";
}

/// The interfaces in the interface definition, without their documentation.
Lines InterfaceLines(const Description& description) {
  Files files;
  EmitIdl(description, "25.0", files);
  Lines lines;
  bool isInterface = false;
  for (const std::string& line : LinesOf(std::istringstream(files.begin()->second))) {
    if (line.rfind("  [object,", 0) == 0) isInterface = true;
    if (line.rfind("  [uuid(", 0) == 0) break;
    const bool isHelp = line.rfind("   helpstring(", 0) == 0;
    if (isInterface && !isHelp && !line.empty()) lines.push_back(WithoutHelp(line));
  }
  return lines;
}

Lines ClassLines(const Description& description) {
  Lines lines;
  for (const Class& type : description.classes) {
    std::string line = "class " + type.name + " " + type.progId + " " + type.identifier + ":";
    for (const std::string& name : type.interfaces) line += " " + name;
    lines.push_back(line);
  }
  return lines;
}

/// The lines of the pinned file that begin with "class ", or all others.
Lines Pinned(bool areClasses) {
  Lines lines;
  for (const std::string& line : LinesOf(std::ifstream(
           std::string(KelIFC::kSourceDir) + "/tests/tools/comgen/pinned_object_model.txt"))) {
    if ((line.rfind("class ", 0) == 0) == areClasses) lines.push_back(line);
  }
  return lines;
}

TEST(PinnedObjectModel, KeepsIdentifiersOrderAndDispatchIdentifiersOfInterfaces) {
  const Lines pinned = Pinned(false);
  const Lines lines = InterfaceLines(ReadDescription());
  ASSERT_GT(pinned.size(), 600U);
  ASSERT_GE(lines.size(), pinned.size());
  for (std::size_t i = 0; i < pinned.size(); ++i) ASSERT_EQ(lines[i], pinned[i]) << "line " << i;
}

TEST(PinnedObjectModel, KeepsTheInterfacesOfClassesInTheOrderOfAQuery) {
  const Lines pinned = Pinned(true);
  const Lines lines = ClassLines(ReadDescription());
  ASSERT_EQ(pinned.size(), 40U);
  ASSERT_GE(lines.size(), pinned.size());
  for (std::size_t i = 0; i < pinned.size(); ++i) {
    EXPECT_EQ((lines[i] + " ").rfind(pinned[i] + " ", 0), 0U) << lines[i];
  }
}

}  // namespace
}  // namespace comgen
