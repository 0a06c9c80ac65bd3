#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "tests/command/process.h"

namespace command_test {
namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::StartsWith;

constexpr int kFile = 1;
constexpr int kNoModel = 2;
constexpr int kNotConvertible = 3;

std::string ModelOf(const std::string& schema) {
  return "ISO-10303-21;\nHEADER;\nFILE_SCHEMA(('" + schema +
         "'));\nENDSEC;\nDATA;\n#1=IFCPERSON('a','b',$,$,$,$,$,$);\nENDSEC;\nEND-ISO-10303-21;\n";
}

/// Gives each of the three subcommands a model that it cannot use.
class ModelFailure : public testing::TestWithParam<std::string> {
 protected:
  /// Expects the status, nothing on standard output, and one line that names the file and the
  /// cause.
  void ExpectFailure(const std::string& model, int status, const std::string& cause) const {
    std::vector<std::string> arguments = {GetParam(), model};
    if (GetParam() == "save") arguments.push_back(folder.Path("out.ifc"));
    const Outcome run = Kelifc(arguments);
    EXPECT_EQ(run.status, status);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "kelifc: " + model + ": " + cause + "\n");
    EXPECT_FALSE(std::filesystem::exists(folder.Path("out.ifc")));
  }

  std::string File(const std::string& text) const {
    const std::string path = folder.Path("model.ifc");
    WriteFile(path, text);
    return path;
  }

  TemporaryFolder folder;
};

INSTANTIATE_TEST_SUITE_P(Commands, ModelFailure, testing::Values("structure", "info", "save"),
                         [](const auto& info) { return info.param; });

TEST_P(ModelFailure, MissingFile) {
  ExpectFailure(folder.Path("none.ifc"), kFile, "No such file or directory");
}

TEST_P(ModelFailure, Folder) { ExpectFailure(folder.Path(""), kFile, "Is a directory"); }

TEST_P(ModelFailure, FileThatMayNotBeRead) {
  if (geteuid() == 0) GTEST_SKIP() << "root may read everything";
  const std::string path = File(ModelOf("IFC2X3"));
  chmod(path.c_str(), 0);
  ExpectFailure(path, kFile, "Permission denied");
}

TEST_P(ModelFailure, FileThatCannotBeRead) {
  // The file can be opened, but its first bytes are not mapped memory.
  if (!std::filesystem::exists("/proc/self/mem")) GTEST_SKIP() << "no such file on this system";
  ExpectFailure("/proc/self/mem", kFile, "Input/output error");
}

TEST_P(ModelFailure, PipeBecauseAModelIsReadTwice) {
  const std::string path = folder.Path("pipe");
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  ExpectFailure(path, kFile, "not a regular file");
}

TEST_P(ModelFailure, EmptyFile) { ExpectFailure(File(""), kNoModel, "the file is empty"); }

TEST_P(ModelFailure, FileThatIsNoStepFile) {
  ExpectFailure(File("Dear sir or madam;"), kNoModel, "not a STEP file");
}

TEST_P(ModelFailure, BinaryFile) {
  ExpectFailure(File(std::string("\0\1\2\377", 4)), kNoModel, "not a STEP file");
}

TEST_P(ModelFailure, UnknownSchema) {
  ExpectFailure(File(ModelOf("IFC4")), kNoModel, "unknown schema 'IFC4'");
}

TEST_P(ModelFailure, NoSchema) {
  ExpectFailure(File("ISO-10303-21;\nHEADER;\nENDSEC;\nDATA;\nENDSEC;\nEND-ISO-10303-21;\n"),
                kNoModel, "no schema");
}

class OldRelease : public testing::TestWithParam<std::string> {};

INSTANTIATE_TEST_SUITE_P(Schemas, OldRelease, testing::Values("IFC151", "IFC20_LONGFORM"));

TEST_P(OldRelease, HasNoStructure) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("old.ifc");
  WriteFile(path, ModelOf(GetParam()));
  const Outcome run = Kelifc({"structure", "--json", path});
  EXPECT_EQ(run.status, kNotConvertible);
  EXPECT_EQ(run.out, "");
  EXPECT_THAT(run.err, AllOf(StartsWith("kelifc: " + path + ": release "),
                             EndsWith(" cannot be converted\n")));
}

TEST_P(OldRelease, CanBeInspectedAndSaved) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("old.ifc");
  WriteFile(path, ModelOf(GetParam()));
  EXPECT_EQ(Kelifc({"info", path}).status, 0);
  EXPECT_EQ(Kelifc({"save", path, folder.Path("out.ifc")}).status, 0);
}

}  // namespace
}  // namespace command_test
