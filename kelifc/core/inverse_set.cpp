#include "kelifc/core/inverse_set.h"

#include <memory>
#include <new>
#include <utility>

#include "kelifc/core/detail/block_memory.h"

namespace KelIFC {
namespace {

using Numbers = SET<detail::InstanceNumber>;

struct NumbersDeleter {
  void operator()(Numbers* numbers) const noexcept {
    numbers->~Numbers();
    detail::FreeBlock(numbers);
  }
};
using OwnedNumbers = std::unique_ptr<Numbers, NumbersDeleter>;

template <class... Args>
OwnedNumbers MakeNumbers(const Args&... args) {
  return OwnedNumbers(::new (detail::AllocateBlock(sizeof(Numbers))) Numbers(args...));
}

std::uint64_t WordOf(OwnedNumbers numbers) {
  return reinterpret_cast<std::uintptr_t>(numbers.release());
}

constexpr std::uint64_t WordOf(std::size_t number) { return (std::uint64_t{number} << 1) | 1; }
constexpr std::size_t NumberIn(std::uint64_t word) { return static_cast<std::size_t>(word >> 1); }

}  // namespace

InverseSet::InverseSet(const InverseSet& other)
    : word(other.HasNumbers() ? WordOf(MakeNumbers(*other.GetNumbers())) : other.word) {}

InverseSet& InverseSet::operator=(const InverseSet& other) {
  InverseSet copy(other);
  std::swap(word, copy.word);
  return *this;
}

std::size_t InverseSet::Add(const MEMBER& reference) {
  const auto number = static_cast<std::size_t>(reference);
  if (HasNumbers()) return GetNumbers()->Add({number});
  const bool fits = NumberIn(WordOf(number)) == number;
  if (word != 0 || !fits) return AddSecond(number);
  word = WordOf(number);
  return 1;
}

// Adds a number that cannot be the only one in the word.
std::size_t InverseSet::AddSecond(std::size_t number) {
  if (word == WordOf(number)) return 1;
  OwnedNumbers numbers = MakeNumbers();
  if (word != 0) numbers->Add({NumberIn(word)});
  const std::size_t position = numbers->Add({number});
  word = WordOf(std::move(numbers));
  return position;
}

MEMBER InverseSet::GetItem(std::size_t position) const {
  if (position - 1 >= GetSize()) return {};
  return MEMBER(HasNumbers() ? GetNumbers()->GetItem(position).value : NumberIn(word));
}

void InverseSet::Free() noexcept {
  NumbersDeleter()(GetNumbers());
  word = 0;
}

}  // namespace KelIFC
