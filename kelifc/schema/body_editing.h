#ifndef KELIFC_SCHEMA_BODY_EDITING_H_
#define KELIFC_SCHEMA_BODY_EDITING_H_

// The headers that an editor includes before an .inl file, so that it can resolve the names in the
// file. No source includes this header: schemac copies the bodies into the namespace of each
// release.

#include "kelifc/schema/bodies.h"
#include "kelifc/schema/ifc2x3.h"

using namespace KelIFC2x3;

#endif  // KELIFC_SCHEMA_BODY_EDITING_H_
