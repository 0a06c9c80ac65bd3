#ifndef TOOLS_KELIFC_COMMANDS_H_
#define TOOLS_KELIFC_COMMANDS_H_

#include <string>

namespace command {

// The subcommands. A function that fails throws Failure. Paths are as the user gave them.

/// How a command reads its model.
struct Reading {
  std::string dialect = "classic";  ///< or "iso": the rules of ISO 10303-21
  bool quiet = false;               ///< no messages but failures, and no progress bar
  bool hidesProgress = false;       ///< no progress bar
  unsigned threads = 0;             ///< 0 means one for each processor
};

struct StructureOptions {
  Reading reading;
  std::string model;
  std::string output;  ///< a path; empty means standard output
  bool json = false;
};

/// Converts the model and prints the structure.
void RunStructure(const StructureOptions& options);

struct InfoOptions {
  Reading reading;
  std::string model;
  bool json = false;
  bool report = false;
};

/// Prints the release of the model, its schema string, and the number of instances of each class.
/// With `report`, prints what is wrong in the file, too.
void RunInfo(const InfoOptions& options);

struct SaveOptions {
  Reading reading;
  std::string model;
  std::string output;
  bool faithful = false;
};

/// Loads the model and writes it to `output`. With `faithful`, which needs the dialect "iso", what
/// was not changed is written as it stands in the source.
void RunSave(const SaveOptions& options);

struct ElementsOptions {
  Reading reading;
  std::string model;
  std::string output;  ///< a path; empty means standard output
  bool json = false;
  bool csv = false;
  bool csvRaw = false;  ///< cells of the CSV are not guarded against spreadsheets
  bool bodies = false;  ///< the JSON has the boundary of each body
  bool failOnLoss = false;
};

/// Reads the building completely and prints its elements.
void RunElements(const ElementsOptions& options);

struct AuditOptions {
  Reading reading;
  std::string model;
  std::string output;  ///< a path; empty means standard output
  bool json = false;
  bool exports = false;
  bool failOnLoss = false;
};

/// Reads the building completely and prints what was read and what was lost. With `exports`, prints
/// what each format of an export cannot hold, too.
void RunAudit(const AuditOptions& options);

struct DiffOptions {
  Reading reading;
  std::string oldModel;
  std::string newModel;
  bool json = false;
};

/// Reads two revisions of a building completely and prints what differs.
void RunDiff(const DiffOptions& options);

/// The name of the format that the subcommand `view` writes. It is not one of `export`.
inline constexpr const char* kPageFormat = "view";

struct ExportOptions {
  Reading reading;
  std::string model;
  std::string format;          ///< a name of KelIFC::ExportFormats()
  std::string output;          ///< a path; empty means the name of the model in the current folder
  double nodeTolerance = 1.0;  ///< in millimetres, for the format "saf"
  bool csvRaw = false;         ///< cells of the format "csv" are not guarded against spreadsheets
  bool failOnLoss = false;
};

/// Reads the building completely and writes it in a format. Prints what the format cannot hold.
void RunExport(const ExportOptions& options);

}  // namespace command

#endif  // TOOLS_KELIFC_COMMANDS_H_
