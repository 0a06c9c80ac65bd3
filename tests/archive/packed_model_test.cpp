#include <string>
#include <system_error>

#include "tests/archive/archives.h"

namespace KelIFC::archive {
namespace {

TEST(PackedModel, IsKnownByItsFirstBytes) {
  EXPECT_EQ(DetectPacking("\x1f\x8b\x08"), Packing::kGzip);
  EXPECT_EQ(DetectPacking("PK\x03\x04..."), Packing::kZip);
  EXPECT_EQ(DetectPacking("PK\x05\x06"), Packing::kZip);
  EXPECT_EQ(DetectPacking("ISO-10303-21;"), Packing::kNone);
  EXPECT_EQ(DetectPacking("PK"), Packing::kNone);
  EXPECT_EQ(DetectPacking(""), Packing::kNone);
}

TEST(PackedModel, IsKnownWhateverTheNameOfTheFile) {
  const ArchiveFile packed(Gzip("x"));
  const ArchiveFile plain("ISO-10303-21;");
  EXPECT_EQ(DetectFilePacking(packed.GetPath()), Packing::kGzip);
  EXPECT_EQ(DetectFilePacking(plain.GetPath()), Packing::kNone);
  EXPECT_EQ(DetectFilePacking(plain.GetPath() + ".missing"), Packing::kNone);
}

TEST(PackedModel, IsRefusedIfItIsNoArchive) {
  const ArchiveFile plain("ISO-10303-21;");
  EXPECT_EQ(Expand(plain.GetPath()), "refused: the file is no archive");
}

TEST(PackedModel, ReportsAnOutputThatFails) {
  const ArchiveFile packed(Gzip("ISO-10303-21;"));
  std::ostringstream out;
  out.setstate(std::ios::badbit);
  EXPECT_THROW(ExpandModel(packed.GetPath(), out), std::system_error);
}

}  // namespace
}  // namespace KelIFC::archive
