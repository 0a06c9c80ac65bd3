#include <iterator>
#include <string>

#include "tests/archive/archives.h"
#include "tests/read_file.h"

namespace KelIFC::archive {
namespace {

const std::string kModel = "ISO-10303-21;\nHEADER;\nENDSEC;\nEND-ISO-10303-21;\n";

struct Refused {
  Members members;
  const char* reason;
};

TEST(ZipModel, IsTheFirstMemberThatEndsInIfc) {
  const ArchiveFile file;
  MakeZip(file.GetPath(), {{"notes.txt", "notes"}, {"a/House.IFC", kModel}, {"b.ifc", "second"}});
  EXPECT_EQ(Expand(file.GetPath()), kModel);
}

TEST(ZipModel, IgnoresWhereTheNameOfTheMemberPoints) {
  const ArchiveFile file;
  MakeZip(file.GetPath(), {{"../../etc/x.ifc", kModel}});
  EXPECT_EQ(Expand(file.GetPath()), kModel);
}

TEST(ZipModel, IsRefusedForWhatTheArchiveHoldsInstead) {
  const Refused cases[] = {
      {{}, "the archive holds no .ifc file"},
      {{{"readme.md", "x"}}, "the archive holds no .ifc file"},
      {{{"a.ifcXML", "<x/>"}}, "the archive holds a model in XML, which is not read"},
      {{{"a.ifczip", "x"}}, "the archive holds another archive"},
      {{{"a.ifc.gz", "x"}}, "the archive holds another archive"},
      {{{"a.zip", "x"}, {"b.ifcxml", "<x/>"}}, "the archive holds another archive"},
      {{{"a.ifc", Gzip(kModel)}}, "the archive holds another archive"},
  };
  for (const Refused& refused : cases) {
    // The packing library makes no empty archive, so the empty one is written by hand.
    const ArchiveFile file(std::string("PK\x05\x06", 4) + std::string(18, '\0'));
    if (!refused.members.empty()) MakeZip(file.GetPath(), refused.members);
    EXPECT_EQ(Expand(file.GetPath()), std::string("refused: ") + refused.reason);
  }
}

TEST(ZipModel, IsRefusedIfItIsEncrypted) {
  const ArchiveFile file;
  MakeZip(file.GetPath(), {{"a.ifc", kModel}}, "secret");
  EXPECT_EQ(Expand(file.GetPath()), "refused: the archive is encrypted");
}

TEST(ZipModel, IsRefusedIfItExpandsBeyondTheLimits) {
  const ArchiveFile file;
  MakeZip(file.GetPath(), {{"a.ifc", std::string(1000000, ' ')}});
  EXPECT_EQ(Expand(file.GetPath()), "refused: the archive expands to more than 200 times its size");
  ExpansionLimits limits;
  limits.ratio = 0;
  EXPECT_EQ(Expand(file.GetPath(), limits).size(), 1000000U);
  limits.bytes = 999999;
  EXPECT_EQ(Expand(file.GetPath(), limits),
            "refused: the archive expands to more than 999999 bytes");
}

TEST(ZipModel, NeverCrashesOnADamagedArchive) {
  const ArchiveFile whole;
  MakeZip(whole.GetPath(), {{"a.ifc", kModel}});
  const std::string bytes = ReadFile(whole.GetPath());
  for (std::size_t i = 4; i < bytes.size(); ++i) {
    std::string damaged = bytes;
    damaged[i] = static_cast<char>(~damaged[i]);
    const ArchiveFile file(damaged);
    const std::string result = Expand(file.GetPath());
    EXPECT_TRUE(result == kModel || result.rfind("refused: ", 0) == 0) << i;
    const ArchiveFile shorter(bytes.substr(0, i));
    EXPECT_EQ(Expand(shorter.GetPath()).rfind("refused: ", 0), 0U) << i;
  }
}

}  // namespace
}  // namespace KelIFC::archive
