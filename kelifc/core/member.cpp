#include "kelifc/core/member.h"

#include <memory>
#include <typeinfo>

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/references/model.h"
#include "kelifc/core/text/number_text.h"
#include "kelifc/core/text/reference_text.h"
#include "kelifc/core/unknown.h"
#include "kelifc/core/value.h"
#include "kelifc/platform/memory_watch.h"

namespace KelIFC {

/// The whole state. The box of a reference is one, too.
struct MEMBER::State {
  IfcUnknown* owner;
  IfcUnknown* value;  // inline
  std::size_t number;
  bool exists;
};

namespace {

static_assert(alignof(IfcUnknown) == sizeof(void*), "distances are in units of pointers");

// LeakSanitizer finds pointers in memory, but no distances.
constexpr bool kKeepsDistanceToValue = !kIsMemoryWatched;

constexpr std::uint64_t kNoWord = ~std::uint64_t{1};  // would be a box at the highest address

/// The inline value of a reference that borrows an instance from a model. It keeps the number of
/// the instance, not its address, because the model can delete the instance at any time.
class BorrowedInstance final : public IfcUnknown {
 public:
  BorrowedInstance(IfcServer* lender, std::size_t number) : lender(lender), number(number) {}

  const char* Parse(const char* text) override { return text; }
  std::ostream& Write(std::ostream& out) const override {
    if (const IfcUnknown* instance = Find()) return instance->Write(out);
    detail::PutChar(out, '*');
    return out;
  }

  /// Returns null after the model has deleted the instance.
  IfcUnknown* Find() const { return FindInstance(lender, number); }

 private:
  IfcServer* lender;
  std::size_t number;
};

const BorrowedInstance* AsBorrowed(const IfcUnknown* value) {
  if (value == nullptr || typeid(*value) != typeid(BorrowedInstance)) return nullptr;
  return static_cast<const BorrowedInstance*>(value);
}

/// Returns the number of an instance in the model that it is registered in, 0 if no model holds it.
std::size_t FindOwnNumber(const IfcUnknown& instance) {
  return FindNumber(instance.GetServer(), &instance);
}

}  // namespace

MEMBER::MEMBER(const MEMBER& other) {
  const State taken = other.GetState();
  SetState(taken);
  if (taken.value != nullptr) other.DropValue();
}

MEMBER::State* MEMBER::GetBox() const {
  return reinterpret_cast<State*>(static_cast<std::uintptr_t>(word & ~kBoxMark));
}

std::size_t MEMBER::GetBoxedNumber() const { return HasBox() ? GetBox()->number : 0; }
bool MEMBER::GetBoxedExists() const { return GetBox()->exists; }

IfcUnknown* MEMBER::AtDistance(std::ptrdiff_t distance) const {
  if (distance == 0) return nullptr;
  const auto bytes = static_cast<std::uintptr_t>(distance) * sizeof(void*);
  return reinterpret_cast<IfcUnknown*>(reinterpret_cast<std::uintptr_t>(this) + bytes);
}

IfcUnknown* MEMBER::GetOwner() const {
  if (HasBox()) return GetBox()->owner;
  return AtDistance(static_cast<std::int64_t>(word) >> kOwnerShift);
}

IfcUnknown* MEMBER::GetValue() const {
  if (HasNumber()) return nullptr;
  if (HasBox()) return GetBox()->value;
  return AtDistance(static_cast<std::int32_t>(ValuePart(word)) / 4);
}

MEMBER::State MEMBER::GetState() const {
  if (HasBox()) return *GetBox();
  return {GetOwner(), GetValue(), static_cast<std::size_t>(*this), GetExists()};
}

// Returns the word for a state, kNoWord if the state needs a box.
std::uint64_t MEMBER::WordOf(const State& state) const {
  constexpr std::ptrdiff_t kFarthestValue = (std::ptrdiff_t{1} << 29) - 1;
  const std::ptrdiff_t ownerDistance = DistanceTo(state.owner);
  if (!IsOwnerDistance(ownerDistance)) return kNoWord;
  const std::uint64_t rest = OwnerBits(ownerDistance);
  if (state.value == nullptr) {
    if (!state.exists) return state.number == 0 ? rest : kNoWord;
    return state.number <= kLargestNumber ? rest | (state.number << 1) | 1 : kNoWord;
  }
  const std::ptrdiff_t distance = DistanceTo(state.value);
  const bool fits = state.exists && state.number == 0 && distance >= -kFarthestValue &&
                    distance <= kFarthestValue && kKeepsDistanceToValue;
  return fits ? rest | static_cast<std::uint32_t>(4 * distance) : kNoWord;
}

// Replaces the state. Does not destroy the old inline value. If there is no memory for a box, the
// old state stays.
void MEMBER::SetState(const State& state) const {
  const std::uint64_t other = WordOf(state);
  if (other == kNoWord && HasBox()) {
    *GetBox() = state;
    return;
  }
  State* const box = other == kNoWord ? new State(state) : nullptr;
  if (HasBox()) delete GetBox();
  word = box == nullptr ? other : reinterpret_cast<std::uintptr_t>(box) | kBoxMark;
}

void MEMBER::MakeFarOwner(IfcUnknown* holder) { SetState({holder, nullptr, 0, false}); }

// Replaces the number. Does not destroy the old inline value.
void MEMBER::SetNumber(std::size_t number) { SetState({GetOwner(), nullptr, number, true}); }

// Removes the inline value without destroying it. This needs no memory: without the value, the
// state fits into the same word or box.
void MEMBER::DropValue() const noexcept {
  State rest = GetState();
  rest.value = nullptr;
  SetState(rest);
}

void MEMBER::Unset() {
  if (!HasValueOrBox()) {
    word = OwnerBits(static_cast<std::int64_t>(word) >> kOwnerShift);
    return;
  }
  const IfcUnknown* const value = GetValue();
  SetState({GetOwner(), nullptr, 0, false});
  delete value;
}

void MEMBER::Destroy() noexcept {
  const IfcUnknown* const value = GetValue();
  if (HasBox()) delete GetBox();
  word = 0;
  delete value;
}

MEMBER& MEMBER::operator=(const MEMBER& other) {
  if (this == &other) return *this;
  // The other reference can be a part of the inline value that is destroyed last.
  const State taken = other.GetState();
  const IfcUnknown* const old = GetValue();
  SetState(taken);
  if (taken.value != nullptr) other.DropValue();
  delete old;
  return *this;
}

MEMBER& MEMBER::operator=(std::size_t number) {
  const IfcUnknown* const old = GetValue();
  SetNumber(number);
  delete old;
  return *this;
}

MEMBER& MEMBER::operator=(IfcUnknown* value) {
  const std::size_t number = value == nullptr ? 0 : FindOwnNumber(*value);
  std::unique_ptr<BorrowedInstance> made;
  if (number != 0) {
    made = std::make_unique<BorrowedInstance>(value->GetServer(), number);
    value = made.get();
  }
  const BorrowedInstance* const old = AsBorrowed(GetValue());
  SetState({GetOwner(), value, 0, true});
  static_cast<void>(made.release());
  delete old;
  return *this;
}

MEMBER& MEMBER::Embed(IfcUnknown* item, IfcUnknown& holder) {
  if (item != nullptr && item == GetValue()) DropValue();
  State state = GetState();
  state.owner = &holder;
  SetState(state);
  IfcServer* const model = holder.GetServer();
  const std::size_t number = IsTypedValue(item) ? 0 : FindNumber(model, item);
  *this = number;
  if (number != 0) return *this;
  if (item != nullptr && FindOwnNumber(*item) == 0) item->SetServer(model);
  return *this = item;
}

MEMBER& MEMBER::SetReference(const IfcUnknown* target) {
  IfcUnknown* const owner = GetOwner();
  const IfcServer* server = owner == nullptr ? nullptr : owner->GetServer();
  const std::size_t number = FindNumber(server, target);
  SetState({owner, GetValue(), number, number != 0});
  return *this;
}

IfcUnknown* MEMBER::Resolve() const {
  if (!GetExists()) return nullptr;
  if (IfcUnknown* value = GetValue()) {
    const BorrowedInstance* const borrowed = AsBorrowed(value);
    return borrowed == nullptr ? value : borrowed->Find();
  }
  const auto number = static_cast<std::size_t>(*this);
  IfcUnknown* const owner = GetOwner();
  if (number == 0 || owner == nullptr) return nullptr;
  return FindInstance(owner->GetServer(), number);
}

const IfcUnknown* MEMBER::GetInlineValue() const {
  const IfcUnknown* const value = GetValue();
  return AsBorrowed(value) == nullptr ? value : nullptr;
}

const char* MEMBER::Parse(const char* text) {
  if (ValuePart(word) != 0) Unset();
  if (text == nullptr) return nullptr;
  std::uint32_t plain = 0;
  if (const char* const end = ReadPlainReference(text, plain)) {
    SetFirstNumber(plain);
    return detail::BehindNextComma(end);
  }
  const char* next = nullptr;
  if (detail::SkipOmittedValue(next, text)) return next;
  const char* first = detail::SkipBlanks(text);
  if (*first != '#') return ParseInline(text, first);
  const std::int64_t number = ReadInteger(first + 1, &next);
  SetFirstNumber(static_cast<std::size_t>(number));
  return detail::BehindNextComma(next);
}

const char* MEMBER::ParseInline(const char* text, const char* name) {
  IfcUnknown* const owner = GetOwner();
  if (owner == nullptr) return text;
  const char* behindName = nullptr;
  IfcUnknown* value = ParseInstance(owner->GetServer(), name, &behindName);
  if (value == nullptr) return text;
  if (behindName == nullptr) {
    delete value;
    return text;
  }
  std::unique_ptr<IfcUnknown> made(value);
  SetState({owner, value, 0, true});
  return made.release()->Parse(behindName);
}

std::ostream& MEMBER::Write(std::ostream& out) const {
  const auto number = static_cast<std::size_t>(*this);
  if (!GetExists()) {
    detail::PutChar(out, '$');
  } else if (number != 0) {
    detail::PutReference(out, number);
  } else if (const IfcUnknown* value = GetValue()) {
    value->Write(out);
  } else {
    detail::PutChar(out, '*');
  }
  return out;
}

}  // namespace KelIFC
