#ifndef TOOLS_KELIFC_MODEL_FILE_H_
#define TOOLS_KELIFC_MODEL_FILE_H_

#include <cstdint>
#include <string>

#include "kelifc/kelifc.h"

namespace command {

/// Loads the model at `path` into `server`, with a progress bar where it is worth one.
/// Throws Failure: Status::kFile for what cannot be read, Status::kNoModel for what is no STEP
/// file or of no known schema.
void LoadModel(KelIFC::IfcServer& server, const std::string& path);

/// "1.5.1", "2.0", "2x", "2x2" or "2x3"; "" for no release.
const char* ReleaseText(KelIFC::IFC_RELEASE release);

}  // namespace command

#endif  // TOOLS_KELIFC_MODEL_FILE_H_
