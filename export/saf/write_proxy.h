#ifndef EXPORT_SAF_WRITE_PROXY_H_
#define EXPORT_SAF_WRITE_PROXY_H_

#include "kelifc/building/building.h"

#include "export/saf/saf_writer.h"

namespace KelIFC::exporting::saf {

/// Writes the boundary of the body of an element to the sheets of "StructuralProxyElement". Writes
/// nothing and returns the reason if the element has no boundary or does not fit.
Obstacle WriteProxy(SafWriter& writer, const BuildingElement& element);

}  // namespace KelIFC::exporting::saf

#endif  // EXPORT_SAF_WRITE_PROXY_H_
