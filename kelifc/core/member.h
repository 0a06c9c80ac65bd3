#ifndef KELIFC_CORE_MEMBER_H_
#define KELIFC_CORE_MEMBER_H_

#include <cstddef>
#include <cstdint>
#include <iosfwd>

#include "kelifc/platform/export.h"

namespace KelIFC {

class IfcUnknown;

/// A reference attribute. It keeps the number of an instance and looks the instance up in the model
/// at each use. So a reference can occur before its target in a file, and can outlive it. Instead
/// of a number it can hold an inline value, which is an instance without a number. It is in one of
/// these states:
///
///  - unset;
///  - a number: it refers to an instance through the model of its owner;
///  - an inline value;
///  - a derived mark: it exists and has neither of them. It is written as `*`.
///
/// Copying empties the source: a copy takes the inline value out of its source, even if the source
/// is const, and the source becomes a derived mark. This also holds for a copy of an aggregate or
/// of an entity that contains the reference. So pass aggregates of references by C++ reference, and
/// copy them only to move them. The copy keeps the owner of its source, which must outlive the
/// copy.
///
/// An inline value belongs to its reference, which destroys it. An instance that is registered in a
/// model belongs to that model. A reference that receives such an instance as its inline value only
/// borrows it: the reference returns the instance while the model holds it, null after the model
/// has deleted it, and never destroys it. The model must outlive the reference.
class KELIFC_API MEMBER {
 public:
  MEMBER() = default;
  /// An unset attribute of `holder`, through which the reference finds the model. `holder` can be
  /// null.
  MEMBER(IfcUnknown* holder) { SetFirstOwner(holder); }
  /// A reference without an owner. GetInstance returns null; the caller looks the number up in the
  /// model.
  MEMBER(std::size_t number) { SetFirstNumber(number); }
  /// A reference in an attribute of `holder`.
  MEMBER(IfcUnknown* holder, std::size_t number) {
    SetFirstOwner(holder);
    SetFirstNumber(number);
  }
  MEMBER(const MEMBER& other);
  virtual ~MEMBER() {
    if (HasValueOrBox()) Destroy();
  }

  /// Takes owner, number, existence and inline value of the source, which keeps the rest but loses
  /// the inline value. Destroys the inline value that this reference held before.
  MEMBER& operator=(const MEMBER& other);
  /// Sets the reference to a number and destroys its inline value. The owner does not change.
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

  /// Sets the reference to an instance of the owner's model. Without an owner or a model, or if the
  /// model does not hold the instance, the attribute becomes unset.
  ///
  /// An inline value stays in the attribute. While it does, Write writes the new number, but
  /// GetInstance still returns the inline value if the attribute exists. To replace an inline value
  /// by a reference, assign the number of the instance instead.
  MEMBER& SetReference(const IfcUnknown* target);

  /// Returns the number, 0 if there is none. Two references are equal if their numbers are equal,
  /// so all inline values are equal.
  operator std::size_t() const { return HasNumber() ? NumberPart(word) : GetBoxedNumber(); }
  /// Returns false if the attribute is unset. A derived mark exists.
  bool GetExists() const { return HasBox() ? GetBoxedExists() : ValuePart(word) != 0; }

  /// Returns the inline value, or the instance that the owner's model has under the number, or
  /// null. The caller does not own it.
  IfcUnknown* GetInstance() { return _GetInstance(); }
  /// Returns the same instance for reading.
  const IfcUnknown* GetInstance() const { return Resolve(); }

  /// Returns the inline value that this attribute owns, or null. A borrowed value is not owned. The
  /// value stays owned by this attribute.
  const IfcUnknown* GetInlineValue() const;

  /// Parses `#n` or an inline value. The owner's model makes the instance of an inline value. Any
  /// other text leaves the attribute unset and the cursor where it is. An inline value has the same
  /// effect if the owner has no model, or is itself an inline value.
  const char* Parse(const char* text);
  /// Writes `#n`, the inline value, `*` for a derived mark, or `$` if the attribute is unset. An
  /// inline value writes what its own Write does: typed values write their closing parenthesis,
  /// entities do not.
  std::ostream& Write(std::ostream& out) const;

 protected:
  IfcUnknown* _GetInstance() { return Resolve(); }

 private:
  struct State;

  // The state in one word, whose two lowest bits say what it holds:
  //  - 1 or 3: bits 1 to 31 are the number.
  //  - 0: bits 2 to 31 are the distance to the inline value, or 0 in an unset attribute.
  //  - 2: the rest of the word is a pointer to a State, the box.
  // Without a box, the upper 32 bits are the distance to the owner. Both distances are signed, from
  // this object, and in units of pointers; 0 means null. Instances, their owners and their inline
  // values are seldom far from each other. A box holds what does not fit: large distances and
  // numbers, or an inline value together with a number or in an unset attribute.
  static constexpr std::uint64_t kBoxMark = 2;
  static constexpr std::uint64_t kLargestNumber = 0x7FFFFFFF;
  static constexpr int kOwnerShift = 32;

  static std::uint32_t ValuePart(std::uint64_t bits) { return static_cast<std::uint32_t>(bits); }
  static std::size_t NumberPart(std::uint64_t bits) { return ValuePart(bits) >> 1; }
  bool HasNumber() const { return (word & 1) != 0; }
  bool HasBox() const { return (word & 3) == kBoxMark; }
  bool HasValueOrBox() const { return (word & 1) == 0 && ValuePart(word) != 0; }

  // The distance to an object. It is 0 for null, too.
  std::ptrdiff_t DistanceTo(const IfcUnknown* object) const {
    const auto bytes = static_cast<std::ptrdiff_t>(reinterpret_cast<std::uintptr_t>(object) -
                                                   reinterpret_cast<std::uintptr_t>(this));
    return object == nullptr ? 0 : bytes / static_cast<std::ptrdiff_t>(sizeof(void*));
  }
  static bool IsOwnerDistance(std::ptrdiff_t distance) {
    return distance == static_cast<std::int32_t>(distance);
  }
  static std::uint64_t OwnerBits(std::ptrdiff_t distance) {
    return static_cast<std::uint64_t>(distance) << kOwnerShift;
  }

  // For an unset reference without an owner.
  void SetFirstOwner(IfcUnknown* holder) {
    const std::ptrdiff_t distance = DistanceTo(holder);
    if (IsOwnerDistance(distance)) {
      word = OwnerBits(distance);
    } else {
      MakeFarOwner(holder);
    }
  }
  // For an unset reference.
  void SetFirstNumber(std::size_t number) {
    if (number <= kLargestNumber && !HasBox()) {
      word |= (number << 1) | 1;
    } else {
      SetNumber(number);
    }
  }

  State GetState() const;
  void SetState(const State& state) const;
  std::uint64_t WordOf(const State& state) const;
  State* GetBox() const;
  IfcUnknown* AtDistance(std::ptrdiff_t distance) const;
  std::size_t GetBoxedNumber() const;
  bool GetBoxedExists() const;
  IfcUnknown* GetOwner() const;
  IfcUnknown* GetValue() const;
  IfcUnknown* Resolve() const;
  void MakeFarOwner(IfcUnknown* holder);
  void SetNumber(std::size_t number);
  void DropValue() const noexcept;
  void Unset();
  void Destroy() noexcept;
  const char* ParseInline(const char* text, const char* name);

  mutable std::uint64_t word = 0;  // mutable, because a copy takes the inline value
};

/// The key by which a set finds an equal reference.
inline std::size_t ElementKey(const MEMBER& member) { return static_cast<std::size_t>(member); }

}  // namespace KelIFC

#endif  // KELIFC_CORE_MEMBER_H_
