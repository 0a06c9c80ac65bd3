#include <array>
#include <typeindex>
#include <typeinfo>
#include <unordered_map>

#include "kelifc/core/bounding_box.h"
#include "kelifc/core/cartesian_point.h"
#include "kelifc/core/length_measure.h"
#include "kelifc/core/parameter_value.h"
#include "kelifc/core/unit_assignment.h"
#include "kelifc/schema/entity_tables.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

namespace {

/// The descriptions of a class by release. All of them are the same for a class of one release.
using Descriptions = std::array<const EntityDescription*, IFC_RELEASE_2X3 + 1>;
using TypeIndex = std::unordered_map<std::type_index, Descriptions>;

constexpr const EntityTables* kTables[] = {&kTables151, &kTables20, &kTables2x, &kTables2x2,
                                           &kTables2x3};

/// Adds a class that all releases share.
template <class Type>
void AddCoreClass(TypeIndex& index) {
  Descriptions descriptions;
  for (int release = IFC_RELEASE_151; release <= IFC_RELEASE_2X3; ++release) {
    descriptions[static_cast<std::size_t>(release)] =
        FindEntity(static_cast<IFC_RELEASE>(release), Type::GetItemName());
  }
  descriptions[IFC_RELEASE_NONE] = descriptions.back();
  index.emplace(typeid(Type), descriptions);
}

TypeIndex MakeIndex() {
  TypeIndex index;
  AddCoreClass<IfcCartesianPoint>(index);
  AddCoreClass<IfcBoundingBox>(index);
  AddCoreClass<IfcUnitAssignment>(index);
  AddCoreClass<IfcLengthMeasure>(index);
  AddCoreClass<IfcParameterValue>(index);
  for (const EntityTables* tables : kTables) {
    for (const EntityType& type : tables->types) {
      index[*type.type].fill(type.entity);
    }
  }
  return index;
}

IFC_RELEASE ReleaseOf(const IfcUnknown& instance) {
  IfcServer* const server = const_cast<IfcUnknown&>(instance).GetServer();
  const IFC_RELEASE release = server == nullptr ? IFC_RELEASE_NONE : server->GetRelease();
  return release >= IFC_RELEASE_NONE && release <= IFC_RELEASE_2X3 ? release : IFC_RELEASE_NONE;
}

}  // namespace

const EntityDescription* DescribeInstance(const IfcUnknown& instance) {
  static const TypeIndex index = MakeIndex();
  const auto found = index.find(typeid(instance));
  if (found == index.end()) return nullptr;
  const Descriptions& descriptions = found->second;
  if (descriptions.front() == descriptions[IFC_RELEASE_151]) return descriptions.front();
  return descriptions[ReleaseOf(instance)];
}

}  // namespace KelIFC
