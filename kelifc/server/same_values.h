#ifndef KELIFC_SERVER_SAME_VALUES_H_
#define KELIFC_SERVER_SAME_VALUES_H_

#include "kelifc/platform/export.h"

namespace KelIFC {

class IfcUnknown;

/// Returns true if both instances are of the same class and all their attributes have the same
/// values. It compares what is stored and never what is written: bytes of texts, bits of numbers,
/// numbers of references, elements of aggregates in their order, and for each value whether it is
/// set. Inline values are compared in the same way.
///
/// A class that the library does not define, such as one that a host derives, compares as
/// different. Attributes that no record holds, such as the inverse side of a relationship, are not
/// compared.
KELIFC_API bool HaveSameValues(const IfcUnknown& a, const IfcUnknown& b);

}  // namespace KelIFC

#endif  // KELIFC_SERVER_SAME_VALUES_H_
