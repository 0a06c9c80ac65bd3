#include "kelifc/server/content_hash.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>

namespace KelIFC {
namespace {

std::uint64_t HashOf(const std::string& text, std::size_t piece) {
  ContentHash hash;
  for (std::size_t at = 0; at < text.size(); at += piece) {
    hash.Add(text.data() + at, std::min(piece, text.size() - at));
  }
  return hash.GetValue();
}

std::string MakeText(std::size_t length) {
  std::string text;
  for (std::size_t i = 0; i < length; ++i) text += static_cast<char>(i * 37 % 251);
  return text;
}

TEST(ContentHash, DoesNotDependOnHowTheBytesAreDivided) {
  for (const std::size_t length : {0, 1, 31, 32, 33, 64, 100, 257}) {
    const std::string text = MakeText(length);
    for (const std::size_t piece : {1, 3, 31, 32, 33, 64, 1000}) {
      EXPECT_EQ(HashOf(text, piece), HashOf(text, 1000)) << length << " by " << piece;
    }
  }
}

TEST(ContentHash, IgnoresAnEmptyPieceWithoutMemory) {
  ContentHash hash;
  hash.Add("abc", 3);
  hash.Add(nullptr, 0);
  EXPECT_EQ(hash.GetValue(), HashOf("abc", 3));
}

TEST(ContentHash, ChangesWithEachByte) {
  const std::string text = MakeText(100);
  std::set<std::uint64_t> values = {HashOf(text, 100)};
  for (std::size_t i = 0; i < text.size(); ++i) {
    std::string changed = text;
    changed[i] = static_cast<char>(changed[i] ^ 1);
    values.insert(HashOf(changed, 100));
  }
  EXPECT_EQ(values.size(), text.size() + 1);
}

TEST(ContentHash, ChangesWithTheLength) {
  std::set<std::uint64_t> values;
  for (std::size_t length = 0; length < 100; ++length) {
    values.insert(HashOf(std::string(length, '\0'), 100));
  }
  EXPECT_EQ(values.size(), 100u);
}

TEST(HashedInput, ReadsAndHashesAllBytes) {
  const std::string text = MakeText(1000);
  std::istringstream source(text);
  HashedInput in(source);
  std::string read(1, static_cast<char>(in.get()));
  read += static_cast<char>(in.peek());
  in.get();
  std::string rest(2000, '\0');
  in.read(rest.data(), 2000);
  read += rest.substr(0, static_cast<std::size_t>(in.gcount()));
  EXPECT_EQ(read, text);
  EXPECT_TRUE(in.eof());
  EXPECT_EQ(in.GetHash().GetValue(), HashOf(text, 1000));
}

}  // namespace
}  // namespace KelIFC
