#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "kelifc/server/ifc_server.h"

#include "tests/server/probe.h"
#include "tests/server/temp_file.h"

namespace KelIFC {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::StartsWith;

constexpr char kModel[] =
    "ISO-10303-21;FILE_SCHEMA(('IFC2X3'));#5=IFCCARTESIANPOINT((5.));#3=IFCFOO('a');";

// An instance that cannot be written.
class Unwritable : public Probe {
 public:
  std::ostream& Write(std::ostream& out) const override {
    out.setstate(std::ios::badbit);
    return out;
  }
};

// The numbered lines of a file.
std::string DataOf(const std::string& text) {
  const std::size_t begin = text.find("DATA;\n") + 6;
  return text.substr(begin, text.rfind("ENDSEC;\n") - begin);
}

/// A folder of the running test, gone at its end.
class SaveIfc : public testing::Test {
 protected:
  SaveIfc() {
    const auto* test = testing::UnitTest::GetInstance()->current_test_info();
    folder = fs::path(testing::TempDir()) / (std::string("kelifc_saveifc_") + test->name());
    fs::remove_all(folder);
    fs::create_directories(folder);
    server.SetRelease(IFC_RELEASE_2X3);
    server.SetErrorHandler([this](const std::string& message) { told += message + "\n"; });
  }
  ~SaveIfc() override { fs::remove_all(folder); }

  std::string PathOf(const char* name) const { return (folder / name).string(); }
  std::size_t CountFiles() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder), fs::directory_iterator()));
  }
  static std::string Read(const std::string& path) {
    std::ifstream in(path);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
  }
  static void Put(const std::string& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
  }

  fs::path folder;
  std::string told;
  IfcServer server;
};

TEST_F(SaveIfc, WritesTheInstancesThatSaveIfcFileWrites) {
  ASSERT_EQ(server.LoadIfcFile(TempFile(kModel).GetPath()), 0);
  const std::string path = PathOf("out.ifc");
  EXPECT_EQ(server.SaveIfc(path.c_str(), {}), SAVE_RESULT_SAVED);
  const std::string plain = PathOf("plain.ifc");
  EXPECT_EQ(server.SaveIfcFile(plain.c_str()), 0);
  EXPECT_EQ(DataOf(Read(path)), "#3=IFCFOO('a');\n#5=IFCCARTESIANPOINT((5.));\n");
  EXPECT_EQ(DataOf(Read(path)), DataOf(Read(plain)));
  EXPECT_EQ(told, "");
}

// A model with so many points.
std::string PointsText(std::size_t count) {
  std::string text = "ISO-10303-21;FILE_SCHEMA(('IFC2X3'));\n";
  for (std::size_t i = 1; i <= count; ++i) {
    text += "#" + std::to_string(i) + "=IFCCARTESIANPOINT((1.));\n";
  }
  return text;
}

TEST_F(SaveIfc, ReportsTheInstancesThatAreWritten) {
  constexpr std::uint64_t kCount = 10'000;
  ASSERT_EQ(server.LoadIfcFile(TempFile(PointsText(kCount)).GetPath()), 0);
  std::vector<std::uint64_t> reported;
  SaveOptions options;
  options.progress = [&](std::uint64_t done, std::uint64_t total) {
    EXPECT_EQ(total, kCount);
    reported.push_back(done);
    return true;
  };
  ASSERT_EQ(server.SaveIfc(PathOf("out.ifc").c_str(), options), SAVE_RESULT_SAVED);
  ASSERT_GE(reported.size(), 3u);
  EXPECT_EQ(reported.front(), 0u);
  EXPECT_EQ(reported.back(), kCount);
  EXPECT_TRUE(std::is_sorted(reported.begin(), reported.end()));
}

TEST_F(SaveIfc, LeavesTheOldFileIfItIsCancelled) {
  constexpr std::uint64_t kCount = 10'000;
  ASSERT_EQ(server.LoadIfcFile(TempFile(PointsText(kCount)).GetPath()), 0);
  const std::string path = PathOf("out.ifc");
  Put(path, "old");
  for (const std::uint64_t last : {std::uint64_t{0}, kCount / 2, kCount}) {
    SaveOptions options;
    options.progress = [last](std::uint64_t done, std::uint64_t) { return done < last; };
    EXPECT_EQ(server.SaveIfc(path.c_str(), options), SAVE_RESULT_CANCELLED) << last;
    EXPECT_EQ(Read(path), "old") << last;
    EXPECT_EQ(CountFiles(), 1u) << last;
  }
  EXPECT_THAT(told, StartsWith(path + ": the save was cancelled\n"));
  EXPECT_EQ(server.SaveIfc(path.c_str(), {}), SAVE_RESULT_SAVED);
}

TEST_F(SaveIfc, LeavesTheOldFileIfTheProgressHandlerThrows) {
  ASSERT_EQ(server.LoadIfcFile(TempFile(kModel).GetPath()), 0);
  const std::string path = PathOf("out.ifc");
  Put(path, "old");
  SaveOptions options;
  options.progress = [](std::uint64_t, std::uint64_t) -> bool { throw std::runtime_error("no"); };
  EXPECT_THROW(server.SaveIfc(path.c_str(), options), std::runtime_error);
  EXPECT_EQ(Read(path), "old");
  EXPECT_EQ(CountFiles(), 1u);
}

TEST_F(SaveIfc, NamesTheTargetInTheHeader) {
  const std::string path = PathOf("house.ifc");
  ASSERT_EQ(server.SaveIfc(path.c_str(), {}), SAVE_RESULT_SAVED);
  EXPECT_THAT(Read(path), HasSubstr("FILE_NAME('house.ifc','"));
}

TEST_F(SaveIfc, LeavesNoOtherFile) {
  ASSERT_EQ(server.SaveIfc(PathOf("out.ifc").c_str(), {}), SAVE_RESULT_SAVED);
  EXPECT_EQ(CountFiles(), 1u);
}

TEST_F(SaveIfc, ReplacesTheFileThatTheModelWasLoadedFrom) {
  const std::string path = PathOf("model.ifc");
  Put(path, kModel);
  ASSERT_EQ(server.LoadIfcFile(path.c_str()), 0);
  EXPECT_EQ(server.SaveIfc(path.c_str(), {}), SAVE_RESULT_SAVED);
  EXPECT_EQ(DataOf(Read(path)), "#3=IFCFOO('a');\n#5=IFCCARTESIANPOINT((5.));\n");
  EXPECT_EQ(CountFiles(), 1u);
}

TEST_F(SaveIfc, KeepsTheOldFileIfAnInstanceCannotBeWritten) {
  const std::string path = PathOf("out.ifc");
  Put(path, "old");
  server.AddItem(new Unwritable);
  EXPECT_EQ(server.SaveIfc(path.c_str(), {}), SAVE_RESULT_CANNOT_WRITE);
  EXPECT_EQ(Read(path), "old");
  EXPECT_EQ(CountFiles(), 1u);
  EXPECT_THAT(told, StartsWith(path + ": the file could not be written to its end"));
}

TEST_F(SaveIfc, WithoutAReleaseKeepsTheOldFile) {
  const std::string path = PathOf("out.ifc");
  Put(path, "old");
  server.SetRelease(IFC_RELEASE_NONE);
  EXPECT_EQ(server.SaveIfc(path.c_str(), {}), SAVE_RESULT_NO_RELEASE);
  EXPECT_EQ(Read(path), "old");
  EXPECT_EQ(told, path + ": the model has no release to be saved in\n");
}

TEST_F(SaveIfc, WithoutAPathIsAFailure) {
  EXPECT_EQ(server.SaveIfc(nullptr, {}), SAVE_RESULT_CANNOT_WRITE);
  EXPECT_EQ(told, "no name of a file to save to\n");
}

TEST_F(SaveIfc, IntoAMissingFolderIsAFailure) {
  const std::string path = PathOf("none/out.ifc");
  EXPECT_EQ(server.SaveIfc(path.c_str(), {}), SAVE_RESULT_CANNOT_WRITE);
  EXPECT_THAT(told, StartsWith(path + ": "));
}

#ifndef _WIN32
TEST_F(SaveIfc, FollowsASymbolicLink) {
  Put(PathOf("real.ifc"), "old");
  fs::create_symlink("real.ifc", PathOf("link.ifc"));
  EXPECT_EQ(server.SaveIfc(PathOf("link.ifc").c_str(), {}), SAVE_RESULT_SAVED);
  EXPECT_TRUE(fs::is_symlink(PathOf("link.ifc")));
  EXPECT_THAT(Read(PathOf("real.ifc")), StartsWith("ISO-10303-21;"));
}

TEST_F(SaveIfc, KeepsThePermissionsOfTheOldFile) {
  const std::string path = PathOf("out.ifc");
  Put(path, "old");
  fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(server.SaveIfc(path.c_str(), {}), SAVE_RESULT_SAVED);
  EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(SaveIfc, OntoAFullDiskIsAFailure) {
  if (!fs::exists("/dev/full")) GTEST_SKIP() << "this system has no full disk to write to";
  EXPECT_EQ(server.SaveIfc("/dev/full", {}), SAVE_RESULT_CANNOT_WRITE);
  EXPECT_THAT(told, StartsWith("/dev/full: "));
}
#endif

}  // namespace
}  // namespace KelIFC
