#include <array>
#include <cstddef>
#include <cstdint>
#include <typeinfo>

#include "kelifc/core/references/cast_cache.h"
#include "kelifc/schema/ifc151.h"
#include "kelifc/schema/ifc20.h"
#include "kelifc/schema/ifc2x.h"
#include "kelifc/schema/ifc2x2.h"
#include "kelifc/schema/ifc2x3.h"
#include "kelifc/server/release_tables.h"

// What the server asks of the releases' classes besides their names.

namespace KelIFC {

namespace {

/// The identifier of an instance if it is a `Root`. The walks over a whole model ask for the class
/// of every instance, which the cache answers without a search per instance.
template <class Root>
bool ReadGuidOf(const IfcUnknown* instance, _GUID& guid) {
  thread_local CastCache<const Root> roots;
  const Root* root = roots.Cast(instance);
  if (root == nullptr) return false;
  guid = root->GetGlobalGUID();
  return true;
}

template <class Project>
const Project* AsProject(const IfcUnknown* instance) {
  thread_local CastCache<const Project> projects;
  return projects.Cast(instance);
}

template <class Product>
bool IsA(const IfcUnknown* instance) {
  return CachedCast<Product>(instance) != nullptr;
}

}  // namespace

// Asked of every instance that a load makes: the answers of the last classes stand ready.
bool IsProduct(const IfcUnknown* instance) {
  struct Answer {
    const std::type_info* type;
    bool isProduct;
  };
  constexpr std::size_t kAnswers = 64;
  thread_local std::array<Answer, kAnswers> answers = {};
  if (instance == nullptr) return false;
  const std::type_info* const type = &typeid(*instance);
  Answer& answer = answers[(reinterpret_cast<std::uintptr_t>(type) / 8) % kAnswers];
  if (answer.type != type) {
    const bool isProduct = IsA<KelIFC2x::IfcProduct>(instance) ||
                           IsA<KelIFC2x2::IfcProduct>(instance) ||
                           IsA<KelIFC2x3::IfcProduct>(instance);
    answer = {type, isProduct};
  }
  return answer.isProduct;
}

bool ReadGlobalGuid(const IfcUnknown* instance, _GUID& guid) {
  return ReadGuidOf<KelIFC2x::IfcRoot>(instance, guid) ||
         ReadGuidOf<KelIFC2x2::IfcRoot>(instance, guid) ||
         ReadGuidOf<KelIFC2x3::IfcRoot>(instance, guid);
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
