#ifndef KELIFC_GEO_STOREY_NUMBER_H_
#define KELIFC_GEO_STOREY_NUMBER_H_

#include "kelifc/platform/com_types.h"

namespace KelIFC {

/// The number of a storey without a number, and the storey number of an element that belongs to no
/// storey.
inline constexpr SHORT kNoStoreyNumber = 32767;

}  // namespace KelIFC

#endif  // KELIFC_GEO_STOREY_NUMBER_H_
