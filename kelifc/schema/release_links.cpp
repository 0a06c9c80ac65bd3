#include <array>
#include <cstddef>
#include <cstdint>
#include <typeinfo>

#include "kelifc/core/other.h"
#include "kelifc/core/references/cast_cache.h"
#include "kelifc/schema/ifc151.h"
#include "kelifc/schema/ifc20.h"
#include "kelifc/schema/ifc2x.h"
#include "kelifc/schema/ifc2x2.h"
#include "kelifc/schema/ifc2x3.h"
#include "kelifc/server/release_tables.h"

// The functions through which the server uses the classes of the releases.

namespace KelIFC {

namespace {

/// Caches the results for the classes of the last calls, because a walk over a whole model asks
/// about every instance.
template <class Answer>
class AnswersByClass {
 public:
  /// Returns the result for the class of an instance. Calls `find` if the result is not cached.
  template <class Find>
  Answer Get(const IfcUnknown& instance, Find find) {
    const std::type_info* const type = &typeid(instance);
    const std::size_t slot = (reinterpret_cast<std::uintptr_t>(type) / 16) % kEntries;
    // The copy needs the address of a thread-local object only once.
    const Entry entry = entries[slot];
    if (entry.type == type) return entry.answer;
    const Answer answer = find(&instance);
    entries[slot] = {type, answer};
    return answer;
  }

 private:
  static constexpr std::size_t kEntries = 256;
  struct Entry {
    const std::type_info* type = nullptr;
    Answer answer = {};
  };
  std::array<Entry, kEntries> entries = {};
};

template <class Root>
_GUID GuidOf(const IfcUnknown* instance) {
  return CachedCast<Root>(instance)->GetGlobalGUID();
}

using GuidReader = _GUID (*)(const IfcUnknown*);

template <class Project>
const Project* AsProject(const IfcUnknown* instance) {
  thread_local CastCache<const Project> projects;
  return projects.Cast(instance);
}

template <class Product>
bool IsA(const IfcUnknown* instance) {
  return CachedCast<Product>(instance) != nullptr;
}

/// Returns the function that reads the identifier of a class, or null for a class without an
/// identifier.
GuidReader FindGuidReader(const IfcUnknown* instance) {
  if (IsA<KelIFC2x::IfcRoot>(instance)) return GuidOf<KelIFC2x::IfcRoot>;
  if (IsA<KelIFC2x2::IfcRoot>(instance)) return GuidOf<KelIFC2x2::IfcRoot>;
  if (IsA<KelIFC2x3::IfcRoot>(instance)) return GuidOf<KelIFC2x3::IfcRoot>;
  return nullptr;
}

ListedAs FindListedAs(const IfcUnknown* instance) {
  const bool isProduct = IsA<KelIFC2x::IfcProduct>(instance) ||
                         IsA<KelIFC2x2::IfcProduct>(instance) ||
                         IsA<KelIFC2x3::IfcProduct>(instance);
  if (isProduct) return ListedAs::kProduct;
  const bool isRoot = FindGuidReader(instance) != nullptr || IsA<IfcOther>(instance);
  return isRoot ? ListedAs::kRoot : ListedAs::kNothing;
}

}  // namespace

ListedAs ListedAsOf(const IfcUnknown* instance) {
  thread_local AnswersByClass<ListedAs> answers;
  return instance == nullptr ? ListedAs::kNothing : answers.Get(*instance, FindListedAs);
}

bool ReadGlobalGuid(const IfcUnknown* instance, _GUID& guid) {
  thread_local AnswersByClass<GuidReader> readers;
  if (instance == nullptr) return false;
  const GuidReader read = readers.Get(*instance, FindGuidReader);
  if (read == nullptr) return false;
  guid = read(instance);
  return true;
}

const KelIFC151::IfcProject* AsProject151(const IfcUnknown* instance) {
  return AsProject<KelIFC151::IfcProject>(instance);
}
const KelIFC20::IfcProject* AsProject20(const IfcUnknown* instance) {
  return AsProject<KelIFC20::IfcProject>(instance);
}
const KelIFC2x::IfcProject* AsProject2x(const IfcUnknown* instance) {
  return AsProject<KelIFC2x::IfcProject>(instance);
}
const KelIFC2x2::IfcProject* AsProject2x2(const IfcUnknown* instance) {
  return AsProject<KelIFC2x2::IfcProject>(instance);
}
const KelIFC2x3::IfcProject* AsProject2x3(const IfcUnknown* instance) {
  return AsProject<KelIFC2x3::IfcProject>(instance);
}

}  // namespace KelIFC
