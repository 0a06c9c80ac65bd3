#include <array>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <typeinfo>

#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/unknown.h"
#include "kelifc/platform/file_replacement.h"
#include "kelifc/platform/path.h"
#include "kelifc/server/faithful_save.h"
#include "kelifc/server/file_header.h"
#include "kelifc/server/file_output.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/instance_writer.h"
#include "kelifc/server/iso_statement.h"
#include "kelifc/server/piece_writer.h"
#include "kelifc/server/progress_steps.h"
#include "kelifc/server/schema_table.h"

namespace KelIFC {
namespace {

// The results of SaveIfcFile.
constexpr int kSaved = 0;
constexpr int kCannotCreate = 1;

// The progress is reported once for so many instances.
constexpr std::uint64_t kReportedInstances = 4096;

// The header is the same for all models except for its three fields. The file name is written
// without any change.
void WriteHeader(std::ostream& out, std::string_view fileName, std::string_view schema) {
  out << "ISO-10303-21;\n"
         "HEADER;\n"
         "FILE_DESCRIPTION(('Merrow generated IFC file.'),'2;1');\n"
         "FILE_NAME('"
      << fileName << "','" << GetTimeStamp() << "',(''),('Halvern'),'" << GetPreprocessorVersion()
      << "','','');\n"
         "FILE_SCHEMA(('"
      << schema
      << "'));\n"
         "ENDSEC;\n"
         "DATA;\n"
      << std::flush;
}

// Returns a text as the header contains it between quotes. The classic dialect writes it without
// any change.
std::string GetHeaderText(std::string_view text, STEP_DIALECT dialect) {
  if (dialect == STEP_DIALECT_CLASSIC) return std::string(text);
  std::string quoted;
  AppendIsoString(quoted, text);
  return quoted.substr(1, quoted.size() - 2);
}

std::string DescribeFailure(const FileOutput& file) {
  const std::string reason = file.GetFailure();
  return "the file could not be written to its end" + (reason.empty() ? "" : ": " + reason);
}

}  // namespace

int IfcServer::SaveIfcFile(const char* path) {
  if (path == nullptr) return TellError("no name of a file to save to");
  const std::string place = std::string(path) + ": ";
  const std::string_view schema = GetSchemaString(GetRelease());
  if (schema.empty()) return TellError(place + "the model has no release to be saved in");
  FileOutput file(path);
  if (!file.IsOpen()) return TellError(place + GetLastSystemError());
  ProgressSteps unreported;
  WriteModel(file.GetStream(), GetFileName(path), schema, unreported, 1);
  if (!file.Close()) {
    TellError(place + DescribeFailure(file));
  } else if (!FileExists(path)) {
    TellError(place + "the file is gone");
  }
  return kSaved;
}

int IfcServer::SaveIfc(const char* path, const SaveOptions& options) {
  std::string reason;
  const std::string_view schema = GetSchemaString(GetRelease());
  int result = SAVE_RESULT_NO_RELEASE;
  if (path == nullptr) {
    TellError("no name of a file to save to");
    return SAVE_RESULT_CANNOT_WRITE;
  }
  if (schema.empty()) {
    reason = "the model has no release to be saved in";
  } else {
    result = SaveModel(path, schema, options, reason);
  }
  if (result != SAVE_RESULT_SAVED) TellError(std::string(path) + ": " + reason);
  return result;
}

// `reason` receives the cause of a failure.
int IfcServer::SaveModel(const char* path, std::string_view schema, const SaveOptions& options,
                         std::string& reason) {
  std::optional<FaithfulSave> faithful;
  if (options.faithful) {
    const int result = faithful.emplace(*this, options.progress).Prepare(reason);
    if (result != SAVE_RESULT_SAVED) return result;
  }
  FileReplacement target(path);
  reason = target.GetFailure();
  if (!target.IsGood()) return SAVE_RESULT_CANNOT_WRITE;
  // A faithful save copies the line ends of the source.
  FileOutput file(target.GetPath(), faithful ? std::ios::binary : std::ios::openmode{});
  reason = GetLastSystemError();
  if (!file.IsOpen()) return SAVE_RESULT_CANNOT_WRITE;
  if (faithful) {
    const int result = faithful->Write(file.GetStream(), GetFileName(path), reason);
    if (result != SAVE_RESULT_SAVED) return result;
  } else {
    ProgressSteps progress(options.progress, GetNumberCount(), kReportedInstances);
    WriteModel(file.GetStream(), GetFileName(path), schema, progress, CountThreads(options));
    reason = "the save was cancelled";
    if (progress.IsStopped()) return SAVE_RESULT_CANCELLED;
  }
  if (!file.Close()) {
    reason = DescribeFailure(file);
    return SAVE_RESULT_CANNOT_WRITE;
  }
  if (target.Commit()) return SAVE_RESULT_SAVED;
  reason = target.GetFailure();
  return SAVE_RESULT_CANNOT_WRITE;
}

// Returns the number of threads for a save. A derived server can replace operations that a save
// calls.
unsigned IfcServer::CountThreads(const SaveOptions& options) const {
  constexpr std::size_t kLeastPieces = 4;
  const bool isSmall = GetNumberCount() < kLeastPieces * PieceWriter::kInstances;
  if (isSmall || typeid(*this) != typeid(IfcServer)) return 1;
  return OrderedWork::ChooseThreads(options.threads);
}

void IfcServer::WriteModel(std::ostream& out, std::string_view fileName, std::string_view schema,
                           ProgressSteps& progress, unsigned threads) {
  WriteHeader(out, GetHeaderText(fileName, dialect), schema);
  if (threads > 1) {
    PieceWriter(*this, out, progress, threads).Write();
  } else {
    WriteInstances(out, progress);
  }
  detail::PutText(out, "ENDSEC;\nEND-ISO-10303-21;\n");
}

void IfcServer::WriteInstances(std::ostream& out, ProgressSteps& progress) {
  std::array<std::uint64_t, InstanceWriter::kBatch> batch = {};
  InstanceWriter writer(*this);
  std::uint64_t last = 0;
  std::uint64_t written = 0;
  for (std::size_t count = batch.size(); count == batch.size() && progress.Reach(written);) {
    count = 0;
    while (count < batch.size() && (last = idToIndex.GetNext(last)) != 0) batch[count++] = last;
    writer.WriteBatch(batch.data(), batch.data() + count, out);
    written += count;
  }
  progress.Reach(written);
}

void IfcServer::WriteInstance(std::ostream& out, std::uint64_t number) {
  const IfcUnknown* instance = IfcServer::GetItem(number);
  if (instance == nullptr) return;  // an earlier instance of the batch deleted it
  detail::PutReference(out, number, '=');
  instance->Write(out);
  detail::PutText(out, ");\n");
}

int IfcServer::TellError(const std::string& message) const {
  if (errorHandler) {
    errorHandler(message);
  } else {
    std::fprintf(stderr, "kelifc: %s\n", message.c_str());
  }
  return kCannotCreate;
}

}  // namespace KelIFC
