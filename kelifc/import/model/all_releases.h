#ifndef KELIFC_IMPORT_MODEL_ALL_RELEASES_H_
#define KELIFC_IMPORT_MODEL_ALL_RELEASES_H_

// All three families of entity classes that can be converted, for sources that hold the bodies of
// templates over them.

#include "kelifc/import/model/release_2x.h"
#include "kelifc/import/model/release_2x2.h"
#include "kelifc/import/model/release_2x3.h"

#endif  // KELIFC_IMPORT_MODEL_ALL_RELEASES_H_
