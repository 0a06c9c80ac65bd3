#ifndef KELIFC_BUILDING_BUILD_READING_KEY_H_
#define KELIFC_BUILDING_BUILD_READING_KEY_H_

#include <string>

#include "kelifc/building/build/idealise_direct.h"
#include "kelifc/building/build/idealise_reading.h"

namespace KelIFC::building::idealising {

/// Makes a text that holds, bit for bit, everything on which the search for the best reading of a
/// subject depends. Subjects with equal keys have equal readings in local coordinates. Returns
/// false if the body, or what it is made from, is so large that its key should not be kept. `key`
/// must be empty.
bool MakeReadingKey(const Subject& subject, const EvaluatedBody& body, const SingleSolid& single,
                    std::string& key);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_READING_KEY_H_
