#ifndef TOOLS_KELIFC_MODEL_FILE_H_
#define TOOLS_KELIFC_MODEL_FILE_H_

#include <cstdint>
#include <string>

#include "kelifc/kelifc.h"

namespace command {

/// Loads the model at `path` into `server`. Shows a progress bar if the file is large and standard
/// error is a terminal. Throws Failure with Status::kFile if the file cannot be read, and with
/// Status::kNoModel if it is not a STEP file or its schema is unknown.
void LoadModel(KelIFC::IfcServer& server, const std::string& path);

/// "1.5.1", "2.0", "2x", "2x2" or "2x3". "" for IFC_RELEASE_NONE.
const char* ReleaseText(KelIFC::IFC_RELEASE release);

}  // namespace command

#endif  // TOOLS_KELIFC_MODEL_FILE_H_
