#ifndef KELIFC_CORE_MEMBER_H_
#define KELIFC_CORE_MEMBER_H_

#include <cstddef>
#include <cstdint>
#include <iosfwd>

#include "kelifc/platform/export.h"

namespace KelIFC {

class IfcUnknown;

/// A reference attribute. It keeps the number of an instance and asks the model for it at each use,
/// so a reference may stand ahead of its target and survives it. In place of a number it can hold a
/// value in place, an instance that it owns. It is in one of these states:
///  - unset;
///  - a number: refers to an instance through the model of its owner;
///  - a value in place;
///  - a derived mark: it exists and holds neither, and is written as `*`.
///
/// A copy takes the value in place away from its source, const or not; the source then is a derived
/// mark. So aggregates of references are passed by reference, and copied only to be given away.
///
/// An inline value belongs to its reference, which destroys it. An instance that is registered in a
/// model belongs to that model. A reference that receives such an instance as its inline value only
/// borrows it: the reference returns the instance while the model holds it, null after the model
/// has deleted it, and never destroys it. The model must outlive the reference.
class KELIFC_API MEMBER {
 public:
  MEMBER() = default;
  /// An unset attribute of `holder`, which is the way to the model. It may be null.
  MEMBER(IfcUnknown* holder) : owner(holder) {}
  /// A reference without an owner: whoever has it looks the number up.
  MEMBER(std::size_t number) : word(WordOf(number)) {}
  /// A reference in an attribute of `holder`.
  MEMBER(IfcUnknown* holder, std::size_t number) : owner(holder), word(WordOf(number)) {}
  MEMBER(const MEMBER& other) : owner(other.owner), word(other.TakeWord()) {}
  virtual ~MEMBER() {
    if (HasHeap()) DestroyHeap();
  }

  /// Takes over owner, number, mark and the value in place; what it held in place is destroyed.
  MEMBER& operator=(const MEMBER& other);
  /// Refers to a number; a value in place is destroyed, the owner stays.
  MEMBER& operator=(std::size_t number);
  /// Takes an inline value. The reference owns the value, or borrows it if it is registered in a
  /// model. The value that the reference held before belongs to the caller again.
  MEMBER& operator=(IfcUnknown* value);

  /// Takes an instance that a host passes to an operation of `holder`. `holder` becomes the owner
  /// of this reference. One rule decides who owns the instance afterwards, for all such operations:
  ///  - An instance of the model of `holder` stays the model's. The reference keeps its number.
  ///  - The reference borrows an instance of any other model. It also borrows a typed value of the
  ///    model of `holder`, because a file has no numbers for typed values.
  ///  - Any other instance receives the model of `holder` and belongs to the reference.
  ///  - Null makes the reference a derived mark.
  /// The inline value that the reference held before is destroyed, unless it is `item` itself.
  MEMBER& Embed(IfcUnknown* item, IfcUnknown& holder);

  /// Refers to an instance of the owner's model. Without owner or model, or if the model does not
  /// hold the instance, the attribute becomes unset. A value in place is left alone.
  MEMBER& SetReference(const IfcUnknown* target);

  /// The number, 0 if there is none. Two references are equal if their numbers are.
  operator std::size_t() const { return HasHeap() ? GetHeapNumber() : NumberIn(word); }
  bool GetExists() const { return HasHeap() ? GetHeapExists() : word != 0; }

  /// The value in place, or the instance that the owner's model has under the number, or null.
  IfcUnknown* GetInstance() { return _GetInstance(); }
  const IfcUnknown* GetInstance() const { return Resolve(); }

  /// The inline value that this attribute owns, or null. A borrowed value is not owned. The value
  /// stays owned by this attribute.
  const IfcUnknown* GetInlineValue() const;

  /// Reads `#n`, or a typed value in place, for which the owner's model is asked. Text that is
  /// neither leaves the attribute unset and the cursor where it is; so does a value in place in an
  /// owner without model, and so in a value in place.
  const char* Parse(const char* text);
  /// Writes `#n`, the value in place, `*` for a derived mark, `$` if unset.
  std::ostream& Write(std::ostream& out) const;

 protected:
  IfcUnknown* _GetInstance() { return Resolve(); }

 private:
  struct Box;

  // The states in one word. 0 is unset. A number has the lowest bit set and stands above it with
  // its sign. A multiple of 4 is a pointer to a value in place. With 2 added it is a pointer to a
  // box, for what fits none of these: a number beyond 63 bits, or a number, or the mark for unset,
  // beside a value in place. The value in place moves on copy, so the word of a source changes.
  static std::uint64_t WordOf(std::size_t number) {
    const std::uint64_t bits = (static_cast<std::uint64_t>(number) << 1) | 1;
    return NumberIn(bits) == number ? bits : MakeBox(true, number, nullptr);
  }
  static std::size_t NumberIn(std::uint64_t bits) {
    return static_cast<std::size_t>(static_cast<std::int64_t>(bits) >> 1);
  }
  static std::uint64_t WordOf(bool exists, std::size_t number, IfcUnknown* value);
  static std::uint64_t MakeBox(bool exists, std::size_t number, IfcUnknown* value);

  bool HasHeap() const { return (word & 1) == 0 && word != 0; }
  bool HasBox() const { return (word & 3) == 2; }
  Box* GetBox() const;
  std::size_t GetHeapNumber() const;
  bool GetHeapExists() const;
  IfcUnknown* GetHeapValue() const;
  IfcUnknown* Resolve() const;
  void ReplaceWord(std::uint64_t other);
  std::uint64_t TakeWord() const { return HasHeap() ? TakeHeap() : word; }
  std::uint64_t TakeHeap() const;
  void DestroyHeap();
  void Unset() {
    if (HasHeap()) DestroyHeap();
    word = 0;
  }
  const char* ParseInPlace(const char* text, const char* name);

  IfcUnknown* owner = nullptr;
  mutable std::uint64_t word = 0;
};

/// What a set finds an equal element by.
inline std::size_t ElementKey(const MEMBER& member) { return static_cast<std::size_t>(member); }

}  // namespace KelIFC

#endif  // KELIFC_CORE_MEMBER_H_
