#ifndef KELIFC_BUILDING_READ_CURVES_H_
#define KELIFC_BUILDING_READ_CURVES_H_

#include <optional>

#include "kelifc/building/read/path.h"
#include "kelifc/building/read/read_context.h"

namespace KelIFC::building {

/// The curve of an instance, in metres: lines and arcs exactly, other curves as chords with the
/// error kChordError. None, and `why`, if it cannot be read or has no ends, as an IfcLine.
///
/// A curve of the plane has z = 0. Angles of trims are in the unit of the project.
std::optional<Path> ReadCurve(ReadContext& context, const Instance& curve, Unreadable& why);

/// A closed curve in the plane of x and y.
std::optional<Contour> ReadContour(ReadContext& context, const Instance& curve, Unreadable& why);

/// The part of a directrix that a sweep uses. Two parameters that are the whole range of the curve,
/// and 0 and 1, mean all of it: many files count the parameter of any directrix from 0 to 1.
std::optional<SpaceCurve> ReadDirectrix(ReadContext& context, const Instance& solid,
                                        Unreadable& why);

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_READ_CURVES_H_
