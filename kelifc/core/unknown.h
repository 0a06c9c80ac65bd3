#ifndef KELIFC_CORE_UNKNOWN_H_
#define KELIFC_CORE_UNKNOWN_H_

#include <cstddef>
#include <iosfwd>
#include <new>

#include "kelifc/core/detail/block_memory.h"
#include "kelifc/platform/export.h"

namespace KelIFC {

class IfcServer;

/// The root of all entity instances and of typed values. Parse makes an instance from a statement
/// and Write makes a statement from an instance; both begin with the attributes of the base class.
///
/// An instance that is registered in a model belongs to the model and has a pointer to it. Any
/// other instance belongs to the code that made it, and its pointer to the model is null unless
/// that code set it. IfcUnknown is not always the first base class: use only dynamic_cast to
/// convert between an instance and its other base classes.
class KELIFC_API IfcUnknown {
 public:
  /// Returns the name in the spelling of the schema.
  static const char* GetItemName();

  /// Returns the name of the class of this instance.
  virtual const char* GetStepName() const;
  virtual ~IfcUnknown();

  /// Parses the attributes from a statement, which starts at the entity name, and returns the
  /// cursor after the last attribute. IfcUnknown returns the position after the first `(`, or null
  /// if there is none; it does not read the name.
  virtual const char* Parse(const char* text) = 0;
  /// Writes the record without its closing parenthesis. IfcUnknown writes the name in upper case
  /// and `(`.
  virtual std::ostream& Write(std::ostream& out) const;
  /// Skips an attribute that a subtype has redeclared as derived: at a `*` it returns the position
  /// after the next comma, or null if there is none. Otherwise it skips white space only, and the
  /// next Parse reads the attribute.
  virtual const char* ParseDef(const char* text);

  /// Returns the model of the instance, or null.
  virtual IfcServer* GetServer();
  /// Returns the model for reading, or null.
  virtual const IfcServer* GetServer() const;
  /// Sets the pointer to the model and does not register the instance there. Null is allowed.
  virtual void SetServer(IfcServer* model);

  /// Allocates the memory of an instance; see detail/block_memory.h.
  static void* operator new(std::size_t size) { return detail::AllocateBlock(size); }
  static void* operator new(std::size_t size, const std::nothrow_t&) noexcept;
  static void* operator new(std::size_t, void* place) noexcept { return place; }
  static void operator delete(void* memory) noexcept { detail::FreeBlock(memory); }
  static void operator delete(void* memory, const std::nothrow_t&) noexcept {
    detail::FreeBlock(memory);
  }
  static void operator delete(void*, void*) noexcept {}

  /// A copy has the same model pointer but is not registered in the model. Copying an entity
  /// empties its source: inline values move to the copy. See MEMBER.
  IfcUnknown(const IfcUnknown&) = default;
  IfcUnknown& operator=(const IfcUnknown&) = default;

 protected:
  IfcUnknown() = default;

 private:
  IfcServer* server = nullptr;
};

}  // namespace KelIFC

#endif  // KELIFC_CORE_UNKNOWN_H_
