#ifndef EXPORT_SAF_WRITE_MEMBER_H_
#define EXPORT_SAF_WRITE_MEMBER_H_

#include "kelifc/building/building.h"

#include "export/saf/saf_writer.h"

namespace KelIFC::exporting::saf {

/// Writes a row of "StructuralCurveMember", and one of "StructuralCurveMemberVarying" for a tapered
/// member. Writes nothing and returns the reason if the element is no member or does not fit.
Obstacle WriteMember(SafWriter& writer, const BuildingElement& element);

}  // namespace KelIFC::exporting::saf

#endif  // EXPORT_SAF_WRITE_MEMBER_H_
