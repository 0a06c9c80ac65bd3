#include <filesystem>
#include <string>
#include <system_error>

#include "kelifc/platform/program.h"

#include "tools/kelifc/commands.h"
#include "tools/kelifc/losses.h"
#include "tools/kelifc/message.h"
#include "tools/kelifc/model_file.h"
#include "tools/kelifc/progress.h"
#include "tools/kelifc/write_export.h"

namespace command {
namespace {

namespace fs = std::filesystem;

using KelIFC::ExportFormat;
using KelIFC::ExportOmission;
using KelIFC::ExportResult;

constexpr const char* kStandardInput = "-";
constexpr double kMillimetre = 1e-3;

/// Throws Failure if this build cannot write the format. It is called before the model is loaded.
const ExportFormat& RequireFormat(const std::string& name) {
  const ExportFormat* const format = KelIFC::FindExportFormat(name);
  if (format == nullptr) {
    throw Failure(Status::kMissing, name == kPageFormat ? "this build lacks the viewer page"
                                                        : "this build cannot write " + name);
  }
  if (!format->missing.empty()) {
    throw Failure(Status::kMissing,
                  "this build cannot write " + name + ": it lacks " + std::string(format->missing));
  }
  return *format;
}

/// The name of the model without its extensions: "house" for "models/house.ifc.gz".
std::string NameOf(const std::string& model) {
  fs::path name = KelIFC::PathOfArgument(model).filename();
  if (name.extension() == ".gz") name = name.stem();
  return name.stem().string();
}

/// What the user named; by default a file or a folder in the current folder, with the name of the
/// model.
std::string OutputOf(const ExportOptions& options, const ExportFormat& format) {
  if (!options.output.empty()) return options.output;
  if (options.model == kStandardInput) {
    throw Failure(Status::kUsage, "a model from standard input needs --output");
  }
  return NameOf(options.model) + std::string(format.extension);
}

/// Throws Failure if the export would replace the model.
void RequireOtherFile(const std::string& model, const std::string& output) {
  std::error_code error;
  if (model == kStandardInput) return;
  if (!fs::equivalent(KelIFC::PathOfArgument(model), KelIFC::PathOfArgument(output), error)) return;
  throw Failure(Status::kUsage, output, "the output is the model itself");
}

ExportResult WriteWithProgress(const KelIFC::Building& building, const ExportFormat& format,
                               const ExportOptions& options, const std::string& output) {
  constexpr std::size_t kManyElements = 10'000;
  constexpr std::uint64_t kSteps = 100;
  KelIFC::ExportOptions writing;
  writing.path = output;
  writing.source = options.model;
  writing.rawCells = options.csvRaw;
  writing.nodeTolerance = options.nodeTolerance * kMillimetre;
  ProgressBar bar("writing",
                  building.elements.size() > kManyElements && AllowsBar(options.reading));
  const KelIFC::ProgressHandler report = bar.GetHandler();
  writing.progress = [&report](double share) {
    return report(static_cast<std::uint64_t>(share * static_cast<double>(kSteps)), kSteps);
  };
  return WriteExport(building, format, writing);
}

void PrintOmissions(const std::string& output, const ExportResult& result) {
  for (const ExportOmission& omission : result.omissions) {
    PrintMessage(output + ": left out: " + omission.what + " (" + std::to_string(omission.count) +
                 ")");
  }
}

/// Throws Failure with Status::kLost if the output lacks elements.
void RequireAllElements(const std::string& output, const KelIFC::Building& building,
                        const ExportResult& result) {
  const std::size_t all = building.elements.size();
  if (result.elements >= all) return;
  throw Failure(Status::kLost, output,
                std::to_string(all - result.elements) + " of " + std::to_string(all) +
                    " elements were left out");
}

}  // namespace

void RunExport(const ExportOptions& options) {
  const ExportFormat& format = RequireFormat(options.format);
  const std::string output = OutputOf(options, format);
  RequireOtherFile(options.model, output);
  const KelIFC::Building building =
      LoadBuilding(options.model, options.reading, KelIFC::KeptBodies::kOfBodies);
  const ExportResult result = WriteWithProgress(building, format, options, output);
  if (!options.reading.quiet) PrintOmissions(output, result);
  if (options.failOnLoss) {
    RequireNoLoss(options.model, building);
    RequireAllElements(output, building, result);
  } else if (!options.reading.quiet && building.totals.lost > 0) {
    PrintMessage(options.model + ": " + LossText(building));
  }
}

}  // namespace command
