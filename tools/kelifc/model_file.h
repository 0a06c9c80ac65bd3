#ifndef TOOLS_KELIFC_MODEL_FILE_H_
#define TOOLS_KELIFC_MODEL_FILE_H_

#include <cstdint>
#include <string>
#include <string_view>

#include "kelifc/kelifc.h"

#include "export/text.h"
#include "tools/kelifc/commands.h"
#include "tools/kelifc/model_source.h"

namespace command {

/// Loads the model at `path` into `server`. Shows a progress bar if the file is large, standard
/// error is a terminal, and `reading` allows it. Throws Failure with Status::kFile if the file
/// cannot be read, and with Status::kNoModel if it is not a STEP file, its schema cannot be read,
/// or a limit is reached. A load in the classic dialect without a report has no limits.
///
/// Returns the source of the model. A caller that lets the server read the source again keeps it
/// until then.
ModelSource LoadModel(KelIFC::IfcServer& server, const std::string& path, const Reading& reading);

/// The same, and collects the load report with all its checks. Both dialects have limits.
void LoadModelWithReport(KelIFC::IfcServer& server, const std::string& path,
                         const Reading& reading);

/// Why a load returned `code`, which is neither LOAD_RESULT_LOADED nor LOAD_RESULT_CANNOT_OPEN.
/// `schema` is the schema of the file in UTF-8.
std::string CauseOf(int code, const std::string& schema);

/// Throws Failure with Status::kNotConvertible if the release of a loaded model has no conversion.
void RequireConvertible(KelIFC::IfcServer& server, const std::string& path);

/// What becomes of a model from which a building was read. To free a large model takes a tenth of
/// the time of a load, and a command that ends soon need not do it.
enum class ReadModel { kFreed, kKeptUntilExit };

/// Loads the model at `path`, as LoadModel does, and reads the building. Throws Failure, too, with
/// Status::kNotConvertible if the release has none.
KelIFC::Building LoadBuilding(const std::string& path, const Reading& reading,
                              KelIFC::KeptBodies keptBodies, ReadModel model = ReadModel::kFreed);

/// Converts a text that the server returns, such as a schema or a name, to UTF-8.
std::string Utf8FromModel(const KelIFC::IfcServer& server, std::string_view text);

using KelIFC::exporting::ReleaseText;

}  // namespace command

#endif  // TOOLS_KELIFC_MODEL_FILE_H_
