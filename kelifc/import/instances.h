#ifndef KELIFC_IMPORT_INSTANCES_H_
#define KELIFC_IMPORT_INSTANCES_H_

#include <vector>

#include "kelifc/core/cast_cache.h"
#include "kelifc/server/ifc_server.h"

namespace KelIFC {

/// The instances of a class, those of its subclasses among them, in the order of the registry.
template <class Class>
std::vector<const Class*> CollectInstances(const IfcServer& server) {
  std::vector<const Class*> found;
  CastCache<const Class> cast;
  for (const IfcUnknown* item : server.GetItems()) {
    if (const Class* instance = cast.Cast(item)) found.push_back(instance);
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
  for (const IfcUnknown* item : server.GetItems()) {
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
