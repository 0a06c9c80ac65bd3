#ifndef KELIFC_SCHEMA_BODY_EDITING_H_
#define KELIFC_SCHEMA_BODY_EDITING_H_

// What an editor includes before a file of bodies, so that it can resolve the names in it. Nothing
// else includes this header: schemac copies the bodies into the namespace of each release.

#include "kelifc/schema/bodies.h"
#include "kelifc/schema/ifc2x3.h"

using namespace KelIFC2x3;

#endif  // KELIFC_SCHEMA_BODY_EDITING_H_
