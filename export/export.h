#ifndef EXPORT_EXPORT_H_
#define EXPORT_EXPORT_H_

#include <cstddef>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "kelifc/building/building.h"

namespace KelIFC {

/// Why an export failed.
enum class ExportFailure {
  kFile,      ///< a file or a folder cannot be created or written
  kNotBuilt,  ///< this build lacks the component that the format needs
  kCancelled  ///< the progress function returned false
};

/// The exception of an export. `what()` names the file or the component, and the reason, in UTF-8.
/// If it is thrown, a file that existed before is unchanged.
class ExportError : public std::runtime_error {
 public:
  ExportError(ExportFailure failure, const std::string& message)
      : std::runtime_error(message), failure(failure) {}

  ExportFailure failure;  ///< why the export failed
};

/// How an export writes. The same building and the same options give the same bytes.
struct ExportOptions {
  std::string path;    ///< the file, or the folder of a format that writes several files
  std::string source;  ///< the path of the model as the user gave it; formats name it

  /// The CSV format writes a cell of text that a spreadsheet would calculate as it is. By default
  /// such a cell gets a leading apostrophe.
  bool rawCells = false;

  /// The largest distance of points that the SAF format merges into one node, in metres.
  double nodeTolerance = 1e-3;

  /// Called now and then with the finished share, from 0 to 1. The export ends with
  /// ExportFailure::kCancelled if it returns false. May be empty.
  std::function<bool(double)> progress;
};

/// A kind of information that a format cannot hold.
struct ExportOmission {
  std::string what;       ///< such as "elements without a solid", in UTF-8
  std::size_t count = 0;  ///< how often it was left out, at least 1
};

/// What an export wrote. `elements` and the omissions that are elements add up to all elements.
struct ExportResult {
  std::size_t elements = 0;               ///< how many elements the output holds
  std::vector<ExportOmission> omissions;  ///< what the format cannot hold
};

/// A format that a building can be exported to.
struct ExportFormat {
  std::string_view name;       ///< as the user names it, such as "glb"
  std::string_view extension;  ///< of the file, such as ".glb"; empty if a folder is written

  /// The component that this build lacks, such as "SQLite"; empty if the format can be written.
  std::string_view missing;

  /// Writes the building. Throws ExportError and std::bad_alloc. Null if `missing` is set.
  ExportResult (*write)(const Building& building, const ExportOptions& options);
};

/// All formats, also those that this build cannot write, in the order of the help text.
const std::vector<ExportFormat>& ExportFormats();

/// The format of a name, or null if there is none.
const ExportFormat* FindExportFormat(std::string_view name);

/// Writes the building in a format. Throws ExportError and std::bad_alloc.
ExportResult ExportBuilding(const Building& building, const ExportFormat& format,
                            const ExportOptions& options);

}  // namespace KelIFC

#endif  // EXPORT_EXPORT_H_
