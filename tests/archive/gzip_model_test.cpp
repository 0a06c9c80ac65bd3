#include <string>

#include "tests/archive/archives.h"

namespace KelIFC::archive {
namespace {

const std::string kModel = "ISO-10303-21;\nHEADER;\nENDSEC;\nEND-ISO-10303-21;\n";

TEST(GzipModel, IsExpandedToItsBytes) {
  const ArchiveFile file(Gzip(kModel));
  EXPECT_EQ(Expand(file.GetPath()), kModel);
}

TEST(GzipModel, IsExpandedAcrossManyBlocks) {
  std::string model;
  for (int i = 0; i < 60000; ++i)
    model += "#" + std::to_string(i) + "=IFCWALL(" + std::to_string(i * 7919) + ");\n";
  const ArchiveFile file(Gzip(model));
  EXPECT_EQ(Expand(file.GetPath()), model);
}

TEST(GzipModel, JoinsItsMembers) {
  const ArchiveFile file(Gzip("ISO-10303") + Gzip("-21;"));
  EXPECT_EQ(Expand(file.GetPath()), "ISO-10303-21;");
}

TEST(GzipModel, MayEndInPadding) {
  const ArchiveFile file(Gzip(kModel) + std::string(512, '\0'));
  EXPECT_EQ(Expand(file.GetPath()), kModel);
}

TEST(GzipModel, IsRefusedIfItEndsTooEarly) {
  const std::string packed = Gzip(kModel);
  for (std::size_t size = 2; size < packed.size(); ++size) {
    const ArchiveFile file(packed.substr(0, size));
    EXPECT_EQ(Expand(file.GetPath()), "refused: the archive ends too early") << size;
  }
}

TEST(GzipModel, IsRefusedIfItsChecksumIsWrong) {
  std::string packed = Gzip(kModel);
  packed[packed.size() - 8] ^= 1;
  const ArchiveFile file(packed);
  EXPECT_EQ(Expand(file.GetPath()), "refused: the archive is damaged");
}

TEST(GzipModel, IsRefusedIfItHoldsAnotherArchive) {
  const ArchiveFile file(Gzip(Gzip(kModel)));
  EXPECT_EQ(Expand(file.GetPath()), "refused: the archive holds another archive");
}

TEST(GzipModel, IsRefusedIfItExpandsBeyondTheRatio) {
  const ArchiveFile file(Gzip(std::string(1000000, ' ')));
  EXPECT_EQ(Expand(file.GetPath()), "refused: the archive expands to more than 200 times its size");
  ExpansionLimits limits;
  limits.ratio = 0;
  EXPECT_EQ(Expand(file.GetPath(), limits).size(), 1000000U);
}

TEST(GzipModel, IsRefusedIfItExpandsBeyondTheSize) {
  const ArchiveFile file(Gzip(kModel));
  ExpansionLimits limits;
  limits.bytes = kModel.size();
  EXPECT_EQ(Expand(file.GetPath(), limits), kModel);
  --limits.bytes;
  EXPECT_EQ(Expand(file.GetPath(), limits),
            "refused: the archive expands to more than " + std::to_string(limits.bytes) + " bytes");
}

}  // namespace
}  // namespace KelIFC::archive
