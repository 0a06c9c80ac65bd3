#ifndef KELIFC_IMPORT_INSTANCES_H_
#define KELIFC_IMPORT_INSTANCES_H_

#include <cstdint>
#include <vector>

#include "kelifc/core/cast_cache.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

/// The instances of a class of products, those of its subclasses among them, in the order of the
/// registry.
template <class Class>
std::vector<const Class*> CollectInstances(const IfcServer& server) {
  std::vector<const Class*> found;
  CastCache<const Class> cast;
  for (const std::uint32_t position : server.GetProductPositions()) {
    if (const Class* instance = cast.Cast(server.GetItems()[position])) found.push_back(instance);
  }
  return found;
}

/// Beams and members alike, in the order of the registry.
template <class Release>
std::vector<const typename Release::IfcBuildingElement*> CollectBeamsAndMembers(
    const IfcServer& server) {
  std::vector<const typename Release::IfcBuildingElement*> found;
  CastCache<const typename Release::IfcBeam> asBeam;
  CastCache<const typename Release::IfcMember> asMember;
  for (const std::uint32_t position : server.GetProductPositions()) {
    const IfcUnknown* const item = server.GetItems()[position];
    if (const auto* beam = asBeam.Cast(item)) {
      found.push_back(beam);
    } else if (const auto* member = asMember.Cast(item)) {
      found.push_back(member);
    }
  }
  return found;
}

}  // namespace KelIFC

#endif  // KELIFC_IMPORT_INSTANCES_H_
