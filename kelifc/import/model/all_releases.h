#ifndef KELIFC_IMPORT_MODEL_ALL_RELEASES_H_
#define KELIFC_IMPORT_MODEL_ALL_RELEASES_H_

// The entity classes of all three releases that can be converted, for sources that define templates
// over the releases.

#include "kelifc/import/model/release_2x.h"
#include "kelifc/import/model/release_2x2.h"
#include "kelifc/import/model/release_2x3.h"

#endif  // KELIFC_IMPORT_MODEL_ALL_RELEASES_H_
