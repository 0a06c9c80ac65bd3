#ifndef EXPORT_SAF_WORKBOOK_FILE_H_
#define EXPORT_SAF_WORKBOOK_FILE_H_

#include <optional>
#include <string>

#include "kelifc/platform/memory_file.h"

#include "export/output_file.h"

namespace KelIFC::exporting::saf {

/// The file to which libxlsxwriter writes a workbook. It is in memory if the system allows that,
/// because libxlsxwriter prints messages of its own if a disk is full. Throws like OutputFile.
class WorkbookFile {
 public:
  /// The target stays as it was until Commit.
  explicit WorkbookFile(const std::string& target);

  /// The path for libxlsxwriter.
  const std::string& GetPath() const;

  /// Writes the target. The workbook must be closed. It is called once, at the end.
  void Commit();

 private:
  void CopyTo(OutputFile& copy) const;

  std::string target;
  MemoryFile memory;
  std::optional<OutputFile> output;  // set if the workbook is in memory
  std::optional<OutputPath> direct;  // set otherwise
};

}  // namespace KelIFC::exporting::saf

#endif  // EXPORT_SAF_WORKBOOK_FILE_H_
