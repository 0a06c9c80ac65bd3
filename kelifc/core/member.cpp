#include "kelifc/core/member.h"

#include <typeinfo>

#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/references/model.h"
#include "kelifc/core/text/number_text.h"
#include "kelifc/core/unknown.h"
#include "kelifc/core/value.h"

namespace KelIFC {

/// A state that does not fit into one word.
struct MEMBER::Box {
  std::size_t number;
  IfcUnknown* value;
  bool exists;
};

namespace {

static_assert(alignof(IfcUnknown) >= 4, "two bits of a pointer tell the states apart");
constexpr std::uint64_t kBoxMark = 2;

std::uint64_t WordOfPointer(const void* pointer) {
  return reinterpret_cast<std::uintptr_t>(pointer);
}

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

std::uint64_t MEMBER::MakeBox(bool exists, std::size_t number, IfcUnknown* value) {
  return WordOfPointer(new Box{number, value, exists}) | kBoxMark;
}

MEMBER::Box* MEMBER::GetBox() const {
  return reinterpret_cast<Box*>(static_cast<std::uintptr_t>(word & ~kBoxMark));
}

std::size_t MEMBER::GetHeapNumber() const { return HasBox() ? GetBox()->number : 0; }
bool MEMBER::GetHeapExists() const { return !HasBox() || GetBox()->exists; }

IfcUnknown* MEMBER::GetHeapValue() const {
  if (!HasHeap()) return nullptr;
  return HasBox() ? GetBox()->value
                  : reinterpret_cast<IfcUnknown*>(static_cast<std::uintptr_t>(word));
}

// Returns the word for a state.
std::uint64_t MEMBER::WordOf(bool exists, std::size_t number, IfcUnknown* value) {
  if (value != nullptr) {
    return exists && number == 0 ? WordOfPointer(value) : MakeBox(exists, number, value);
  }
  return exists ? WordOf(number) : 0;
}

// Replaces the word. Does not destroy the inline value of the old word.
void MEMBER::ReplaceWord(std::uint64_t other) {
  if (HasBox()) delete GetBox();
  word = other;
}

// Returns the word for a copy. The source keeps the rest of its state, without the inline value.
std::uint64_t MEMBER::TakeHeap() const {
  const std::uint64_t rest = WordOf(GetHeapExists(), GetHeapNumber(), nullptr);
  const std::uint64_t taken = word;
  word = rest;
  return taken;
}

void MEMBER::DestroyHeap() {
  IfcUnknown* value = GetHeapValue();
  ReplaceWord(0);
  delete value;
}

MEMBER& MEMBER::operator=(const MEMBER& other) {
  if (this == &other) return *this;
  // The source can be a part of the inline value that Unset destroys.
  IfcUnknown* holder = other.owner;
  const std::uint64_t taken = other.TakeWord();
  Unset();
  owner = holder;
  word = taken;
  return *this;
}

MEMBER& MEMBER::operator=(std::size_t number) {
  const std::uint64_t other = WordOf(number);
  Unset();
  word = other;
  return *this;
}

MEMBER& MEMBER::operator=(IfcUnknown* value) {
  const std::size_t number = value == nullptr ? 0 : FindOwnNumber(*value);
  if (number != 0) value = new BorrowedInstance(value->GetServer(), number);
  const BorrowedInstance* const borrowed = AsBorrowed(GetHeapValue());
  ReplaceWord(WordOf(true, 0, value));
  delete borrowed;
  return *this;
}

MEMBER& MEMBER::Embed(IfcUnknown* item, IfcUnknown& holder) {
  if (item != nullptr && item == GetHeapValue()) ReplaceWord(0);
  owner = &holder;
  IfcServer* const model = holder.GetServer();
  const std::size_t number = IsTypedValue(item) ? 0 : FindNumber(model, item);
  *this = number;
  if (number != 0) return *this;
  if (item != nullptr && FindOwnNumber(*item) == 0) item->SetServer(model);
  return *this = item;
}

MEMBER& MEMBER::SetReference(const IfcUnknown* target) {
  const IfcServer* server = owner == nullptr ? nullptr : owner->GetServer();
  const std::size_t number = FindNumber(server, target);
  ReplaceWord(WordOf(number != 0, number, GetHeapValue()));
  return *this;
}

IfcUnknown* MEMBER::Resolve() const {
  if (!GetExists()) return nullptr;
  if (IfcUnknown* value = GetHeapValue()) {
    const BorrowedInstance* const borrowed = AsBorrowed(value);
    return borrowed == nullptr ? value : borrowed->Find();
  }
  const auto number = static_cast<std::size_t>(*this);
  if (number == 0 || owner == nullptr) return nullptr;
  return FindInstance(owner->GetServer(), number);
}

const IfcUnknown* MEMBER::GetInlineValue() const {
  const IfcUnknown* const value = GetHeapValue();
  return AsBorrowed(value) == nullptr ? value : nullptr;
}

const char* MEMBER::Parse(const char* text) {
  Unset();
  const char* next = nullptr;
  if (detail::SkipOmittedValue(next, text) || text == nullptr) return next;
  const char* first = detail::SkipBlanks(text);
  if (*first != '#') return ParseInline(text, first);
  const std::int64_t number = ReadInteger(first + 1, &next);
  word = WordOf(static_cast<std::size_t>(number));
  return detail::BehindNextComma(next);
}

const char* MEMBER::ParseInline(const char* text, const char* name) {
  if (owner == nullptr) return text;
  const char* behindName = nullptr;
  IfcUnknown* value = ParseInstance(owner->GetServer(), name, &behindName);
  if (value == nullptr) return text;
  if (behindName == nullptr) {
    delete value;
    return text;
  }
  word = WordOfPointer(value);
  return value->Parse(behindName);
}

std::ostream& MEMBER::Write(std::ostream& out) const {
  const auto number = static_cast<std::size_t>(*this);
  if (!GetExists()) {
    detail::PutChar(out, '$');
  } else if (number != 0) {
    detail::PutReference(out, number);
  } else if (const IfcUnknown* value = GetHeapValue()) {
    value->Write(out);
  } else {
    detail::PutChar(out, '*');
  }
  return out;
}

}  // namespace KelIFC
