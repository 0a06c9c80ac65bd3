#include "kelifc/server/model_source.h"

#include <gtest/gtest.h>

#include <iterator>
#include <sstream>
#include <string>

#include "tests/server/temp_file.h"

namespace KelIFC {
namespace {

std::string TextOf(const ModelSource& source) {
  const std::unique_ptr<std::istream> in = source.Open();
  if (!in) return "none";
  return {std::istreambuf_iterator<char>(*in), std::istreambuf_iterator<char>()};
}

std::string LongText() {
  std::string text;
  for (int i = 0; i < 100000; ++i) text += std::to_string(i) + "\n";
  return text;
}

TEST(ModelSource, IsReadFromTheBeginEachTime) {
  const std::string text = LongText();
  const TempFile file(text);
  std::istringstream stream(text);
  const FileSource fromFile(file.GetPath());
  const MemorySource fromMemory(text.data(), text.size());
  const SpooledSource fromStream(stream, text.size());
  EXPECT_EQ(fromStream.GetState(), SpooledSource::State::kWhole);
  for (const ModelSource* source :
       {static_cast<const ModelSource*>(&fromFile), static_cast<const ModelSource*>(&fromMemory),
        static_cast<const ModelSource*>(&fromStream)}) {
    EXPECT_EQ(source->GetSize(), text.size());
    EXPECT_TRUE(TextOf(*source) == text);
    EXPECT_TRUE(TextOf(*source) == text);
  }
}

TEST(ModelSource, IsReadFromAnyPosition) {
  const TempFile file("0123456789");
  const FileSource fromFile(file.GetPath());
  const MemorySource fromMemory("0123456789", 10);
  for (const ModelSource* source :
       {static_cast<const ModelSource*>(&fromFile), static_cast<const ModelSource*>(&fromMemory)}) {
    const std::unique_ptr<std::istream> in = source->Open();
    ASSERT_NE(in, nullptr);
    char read[2] = {};
    for (const int position : {7, 0, 8}) {
      ASSERT_TRUE(in->seekg(position).read(read, 2));
      EXPECT_EQ(read[0], '0' + position);
    }
    in->seekg(9);
    EXPECT_FALSE(in->read(read, 2));
    EXPECT_EQ(in->gcount(), 1);
  }
  const std::unique_ptr<std::istream> in = fromMemory.Open();
  EXPECT_FALSE(in->seekg(11));
}

TEST(ModelSource, IsNotThereWithoutAFile) {
  EXPECT_EQ(TextOf(FileSource("/no/such/file.ifc")), "none");
  EXPECT_EQ(FileSource("/no/such/file.ifc").GetSize(), 0U);
}

TEST(ModelSource, MayBeEmpty) {
  EXPECT_EQ(TextOf(MemorySource(nullptr, 0)), "");
  std::istringstream stream("");
  EXPECT_EQ(TextOf(SpooledSource(stream, 10)), "");
}

TEST(ModelSource, RefusesAStreamThatIsTooLong) {
  std::istringstream stream("12345");
  EXPECT_EQ(SpooledSource(stream, 4).GetState(), SpooledSource::State::kTooLong);
}

TEST(ModelSource, RefusesAStreamThatHasFailed) {
  std::istringstream stream("12345");
  stream.setstate(std::ios::failbit);
  EXPECT_EQ(SpooledSource(stream, 10).GetState(), SpooledSource::State::kFailed);
}

}  // namespace
}  // namespace KelIFC
