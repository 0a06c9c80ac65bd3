#include "kelifc/building/element_solid.h"

#include <cstddef>
#include <vector>

#include "kelifc/building/build/idealise_solid.h"

namespace KelIFC {
namespace {

/// Profiles that are equal within 0.01 mm are one profile. So the ends of a wedge that touched can
/// overlap a little, in metres.
constexpr double kProfileSlack = 1e-4;

Mesh SolidOfMember(const Building& building, const MemberAxis& member) {
  const std::vector<BuildingProfile>& profiles = building.profiles;
  if (member.profile >= profiles.size()) return {};
  const BuildingProfile* end = nullptr;
  if (member.endProfile) {
    if (*member.endProfile >= profiles.size()) return {};
    end = &profiles[*member.endProfile];
  }
  return building::idealising::MakeMemberSolid(member, profiles[member.profile], end,
                                               kProfileSlack);
}

}  // namespace

Mesh SolidOf(const Building& building, const BuildingElement& element) {
  if (element.member) return SolidOfMember(building, *element.member);
  if (element.surface) return building::idealising::MakeSurfaceSolid(*element.surface);
  return element.body.mesh ? *element.body.mesh : Mesh();
}

}  // namespace KelIFC
