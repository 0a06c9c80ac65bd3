#include "kelifc/core/detail/sequence.h"

#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>

namespace KelIFC::detail {
namespace {

/// Moves its content to its copy.
class Giver {
 public:
  Giver() = default;
  explicit Giver(int number) : content(new int(number)) {}
  Giver(const Giver& other) : content(std::move(other.content)) {}
  Giver& operator=(const Giver&) = delete;

  int Get() const { return content == nullptr ? 0 : *content; }

 private:
  mutable std::unique_ptr<int> content;
};

/// Counts its objects, and records that it was dropped.
struct Note {
  Note() { ++alive; }
  Note& operator=(Note&& other) noexcept {
    value = other.value;
    return *this;
  }
  ~Note() { --alive; }
  void Drop() { value = 0; }

  int value = 0;
  inline static int alive = 0;
};

TEST(Sequence, HasASizeOfSixteenBytes) {
  EXPECT_EQ(sizeof(Sequence<int>), 8 + sizeof(void*));
  EXPECT_EQ(sizeof(Sequence<int, Note>), 8 + sizeof(void*));
}

TEST(Sequence, IsEmptyWithoutRoomAtFirst) {
  const Sequence<std::string> sequence;
  EXPECT_EQ(sequence.GetSize(), 0U);
  EXPECT_EQ(sequence.GetCapacity(), 0U);
  EXPECT_FALSE(sequence.GetMark());
  EXPECT_EQ(sequence.begin(), sequence.end());
}

TEST(Sequence, HoldsWhatIsAppended) {
  Sequence<std::string> sequence;
  for (int i = 0; i < 1000; ++i) sequence.Append(std::to_string(i));
  ASSERT_EQ(sequence.GetSize(), 1000U);
  for (std::size_t i = 0; i < 1000; ++i) EXPECT_EQ(sequence[i], std::to_string(i));
}

TEST(Sequence, LosesNothingWhenItGrows) {
  Sequence<Giver> sequence;
  for (int i = 1; i <= 100; ++i) sequence.Append(i);
  sequence.Reserve(500);
  sequence.ShrinkToFit();
  for (std::size_t i = 0; i < 100; ++i) EXPECT_EQ(sequence[i].Get(), static_cast<int>(i) + 1);
}

TEST(Sequence, AppendsAnElementOfItsOwn) {
  Sequence<std::string> sequence;
  sequence.Append("a text that is too long to stand in place");
  for (int i = 0; i < 100; ++i) sequence.Append(sequence[0]);
  for (const std::string& text : sequence) EXPECT_EQ(text, sequence[0]);
}

TEST(Sequence, KeepsItsMarkWhenItGrowsAndIsCleared) {
  Sequence<int> sequence;
  sequence.SetMark(true);
  for (int i = 0; i < 100; ++i) sequence.Append(i);
  EXPECT_TRUE(sequence.GetMark());
  sequence.ShrinkToFit();
  sequence.Clear();
  EXPECT_TRUE(sequence.GetMark());
  EXPECT_EQ(sequence.GetSize(), 0U);
  sequence.ShrinkToFit();
  EXPECT_EQ(sequence.GetCapacity(), 0U);
  EXPECT_TRUE(sequence.GetMark());
}

TEST(Sequence, CopiesElementsAndMark) {
  Sequence<std::string> sequence;
  sequence.Append("a");
  sequence.SetMark(true);
  Sequence<std::string> copy(sequence);
  sequence[0] = "b";
  EXPECT_EQ(copy[0], "a");
  EXPECT_TRUE(copy.GetMark());
  const Sequence<std::string>& same = copy;
  copy = same;
  EXPECT_EQ(copy[0], "a");
  copy = sequence;
  EXPECT_EQ(copy[0], "b");
}

TEST(Sequence, LeavesTheSourceOfAMoveEmpty) {
  Sequence<std::string> sequence;
  sequence.Append("a");
  sequence.SetMark(true);
  Sequence<std::string> taken(std::move(sequence));
  EXPECT_EQ(taken[0], "a");
  EXPECT_EQ(sequence.GetSize(), 0U);  // NOLINT: what a move leaves behind is the point
  EXPECT_FALSE(sequence.GetMark());
  sequence = std::move(taken);
  EXPECT_EQ(sequence[0], "a");
  EXPECT_TRUE(sequence.GetMark());
}

TEST(Sequence, MakesDefaultElements) {
  const Sequence<std::string> sequence(40);
  EXPECT_EQ(sequence.GetSize(), 40U);
  for (const std::string& text : sequence) EXPECT_EQ(text, "");
}

TEST(Sequence, RefusesMoreThanItCanCount) {
  Sequence<int> sequence;
  EXPECT_THROW(sequence.Reserve(std::size_t{1} << 31), std::bad_alloc);
  EXPECT_THROW(sequence.Reserve(std::numeric_limits<std::size_t>::max()), std::bad_alloc);
  sequence.Append(1);
  EXPECT_EQ(sequence[0], 1);
}

TEST(Sequence, HasAHeaderOnlyIfItIsLong) {
  {
    Sequence<int, Note> sequence;
    for (int i = 0; i < 8; ++i) sequence.Append(i);
    EXPECT_EQ(sequence.GetHeader(), nullptr);
    for (int i = 8; i < 100; ++i) sequence.Append(i);
    ASSERT_NE(sequence.GetHeader(), nullptr);
    for (int i = 0; i < 100; ++i) EXPECT_EQ(sequence[static_cast<std::size_t>(i)], i);

    sequence.GetHeader()->value = 5;
    sequence.Reserve(1000);
    EXPECT_EQ(sequence.GetHeader()->value, 5) << "it moves along";
    const Sequence<int, Note> copy(sequence);
    EXPECT_EQ(copy.GetHeader()->value, 0) << "it is not copied";
    sequence.Clear();
    EXPECT_EQ(sequence.GetHeader()->value, 0) << "it is dropped with the elements";
    EXPECT_EQ(Note::alive, 2);
  }
  EXPECT_EQ(Note::alive, 0);
}

}  // namespace
}  // namespace KelIFC::detail
