#ifndef KELIFC_CORE_UNKNOWN_H_
#define KELIFC_CORE_UNKNOWN_H_

#include <cstddef>
#include <iosfwd>
#include <new>

#include "kelifc/core/detail/block_memory.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

class IfcServer;

/// The root of all entity instances and of typed values. A statement becomes an instance through
/// Parse and an instance a statement through Write; both run from the base classes down.
///
/// An instance in a model belongs to the model and knows it; any other belongs to whoever made it,
/// and knows none. It is not always the first base: cross between an instance and its other bases
/// by dynamic_cast alone.
class KELIFC_API IfcUnknown {
 public:
  /// The name as the schema spells it.
  static const char* GetItemName();

  /// The name of the class of this instance.
  virtual const char* GetStepName() const;
  virtual ~IfcUnknown();

  /// Reads the attributes from a statement, from the entity name on, and gives the cursor behind
  /// the last one. Here: the position behind the first `(`, null if there is none; the name is not
  /// looked at.
  virtual const char* Parse(const char* text) = 0;
  /// Writes the record but for the parenthesis that closes it. Here: the name in upper case and
  /// `(`.
  virtual std::ostream& Write(std::ostream& out) const;
  /// Passes a position whose attribute a subtype has redeclared as derived: steps over `*` to
  /// behind the next comma, or to null. Anything else stays for the parse that follows, and the
  /// cursor only passes white space.
  virtual const char* ParseDef(const char* text);

  /// The model that the instance is in, or null.
  virtual IfcServer* GetServer();
  virtual const IfcServer* GetServer() const;
  virtual void SetServer(IfcServer* model);

  /// The memory of an instance; see detail/block_memory.h.
  static void* operator new(std::size_t size) { return detail::AllocateBlock(size); }
  static void* operator new(std::size_t size, const std::nothrow_t&) noexcept;
  static void* operator new(std::size_t, void* place) noexcept { return place; }
  static void operator delete(void* memory) noexcept { detail::FreeBlock(memory); }
  static void operator delete(void* memory, const std::nothrow_t&) noexcept {
    detail::FreeBlock(memory);
  }
  static void operator delete(void*, void*) noexcept {}

  /// A copy knows the same model, but is not in it.
  IfcUnknown(const IfcUnknown&) = default;
  IfcUnknown& operator=(const IfcUnknown&) = default;

 protected:
  IfcUnknown() = default;

 private:
  IfcServer* server = nullptr;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_UNKNOWN_H_
