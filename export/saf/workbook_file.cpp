#include "export/saf/workbook_file.h"

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

#include "export/export.h"

namespace KelIFC::exporting::saf {
namespace {

constexpr std::size_t kBlockSize = 1 << 16;

struct CloseFile {
  void operator()(std::FILE* file) const { std::fclose(file); }
};

}  // namespace

WorkbookFile::WorkbookFile(const std::string& target) : target(target) {
  if (memory.GetPath().empty()) {
    direct.emplace(target);
  } else {
    output.emplace(target);
  }
}

const std::string& WorkbookFile::GetPath() const {
  return direct ? direct->GetPath() : memory.GetPath();
}

void WorkbookFile::Commit() {
  if (direct) return direct->Commit();
  CopyTo(*output);
  output->Commit();
}

void WorkbookFile::CopyTo(OutputFile& copy) const {
  const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(memory.GetPath().c_str(), "rb"));
  std::string block(kBlockSize, '\0');
  std::size_t size = file ? kBlockSize : 0;
  while (size == kBlockSize) {
    size = std::fread(block.data(), 1, kBlockSize, file.get());
    copy.Write(std::string_view(block).substr(0, size));
  }
  if (!file || std::ferror(file.get()) != 0) {
    throw ExportError(ExportFailure::kFile, "cannot write " + target + ": the workbook is lost");
  }
}

}  // namespace KelIFC::exporting::saf
