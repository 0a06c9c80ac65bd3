#include <gtest/gtest.h>

#include <string>

#include "tests/archive/archives.h"
#include "tests/command/process.h"
#include "tests/paths.h"

namespace command_test {
namespace {

using KelIFC::archive::Gzip;
using KelIFC::archive::MakeZip;

std::string House() { return ReadFile(std::string(KelIFC::kExamplesDir) + "/house.ifc"); }

// The structure without the line that holds the name of the file.
std::string StructureOf(const std::string& model, const std::string& inPath = "/dev/null") {
  const Outcome run = Kelifc({"structure", "--json", model}, "", inPath);
  EXPECT_EQ(run.status, 0) << run.err;
  const std::size_t release = run.out.find("\"release\"");
  return release == std::string::npos ? run.out : run.out.substr(release);
}

TEST(PackedModel, ReadsAsTheFileInIt) {
  const TemporaryFolder folder;
  WriteFile(folder.Path("house.ifc.gz"), Gzip(House()));
  MakeZip(folder.Path("house.ifczip"), {{"house.ifc", House()}});
  const std::string expected = StructureOf("house.ifc");
  EXPECT_EQ(StructureOf(folder.Path("house.ifc.gz")), expected);
  EXPECT_EQ(StructureOf(folder.Path("house.ifczip")), expected);
  EXPECT_EQ(StructureOf("-", folder.Path("house.ifczip")), expected);
}

TEST(PackedModel, IsNoModelIfTheArchiveIsRefused) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("house.ifc.gz");
  WriteFile(path, Gzip(Gzip(House())));
  const Outcome run = Kelifc({"info", path});
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err, "kelifc: " + path + ": the archive holds another archive\n");
}

TEST(PackedModel, IsNoModelIfItIsEmpty) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("house.ifc.gz");
  WriteFile(path, Gzip(""));
  const Outcome run = Kelifc({"info", path});
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.err, "kelifc: " + path + ": the file is empty\n");
}

}  // namespace
}  // namespace command_test
