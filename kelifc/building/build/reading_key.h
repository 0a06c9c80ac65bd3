#ifndef KELIFC_BUILDING_BUILD_READING_KEY_H_
#define KELIFC_BUILDING_BUILD_READING_KEY_H_

#include <string>

#include "kelifc/building/build/idealise_direct.h"
#include "kelifc/building/build/idealise_reading.h"

namespace KelIFC::building::idealising {

/// A text that holds, bit for bit, everything on which the search for the best reading of a subject
/// depends. Subjects with equal keys have equal readings in local coordinates. Empty if the body or
/// what it is made from is so large that its key should not be kept.
std::string ReadingKey(const Subject& subject, const EvaluatedBody& body,
                       const SingleSolid& single);

}  // namespace KelIFC::building::idealising

#endif  // KELIFC_BUILDING_BUILD_READING_KEY_H_
