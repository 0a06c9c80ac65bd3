#include "tools/kelifc/model_source.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <system_error>

#include "kelifc/platform/program.h"

#include "archive/packed_model.h"
#include "tools/kelifc/failure.h"

namespace command {
namespace {

namespace fs = std::filesystem;

/// The size of the file in bytes. Throws Failure if the first byte cannot be read. The load itself
/// does not report why a file cannot be read, and takes a folder for a file of the wrong kind.
/// Messages call the file `name`.
std::uint64_t SizeOfReadable(const std::string& name, const std::string& path) {
  std::error_code error;
  const fs::file_status status = fs::status(KelIFC::PathOfArgument(path), error);
  if (status.type() == fs::file_type::directory) {
    throw Failure(Status::kFile, name, std::strerror(EISDIR));
  }
  if (fs::exists(status) && !fs::is_regular_file(status)) {
    throw Failure(Status::kFile, name, "not a regular file");
  }
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"),
                                                             &std::fclose);
  if (file == nullptr) throw Failure(Status::kFile, name, std::strerror(errno));
  if (std::fgetc(file.get()) == EOF) {
    if (std::ferror(file.get()) != 0) throw Failure(Status::kFile, name, std::strerror(errno));
    throw Failure(Status::kNoModel, name, "the file is empty");
  }
  return fs::file_size(KelIFC::PathOfArgument(path), error);
}

}  // namespace

ModelSource::ModelSource(const std::string& name) : path(name) {
  try {
    if (name == "-") SpoolStandardInput();
    size = SizeOfReadable(name, path);
    if (KelIFC::archive::DetectFilePacking(path) == KelIFC::archive::Packing::kNone) return;
    Expand();
    size = SizeOfReadable(name, path);
  } catch (const KelIFC::archive::ArchiveError& refusal) {
    throw Failure(Status::kNoModel, name, refusal.what());
  } catch (const KelIFC::archive::NotBuilt& lack) {
    throw Failure(Status::kMissing, name, lack.what());
  } catch (const std::system_error& error) {
    throw Failure(Status::kFile, name, error.code().message());
  }
}

// A load reads its file twice, but standard input can be read only once.
void ModelSource::SpoolStandardInput() {
  path = MakeFolder().GetPath("input");
  std::ofstream spool(path, std::ios::binary);
  KelIFC::SetBinary(stdin);
  // Writing an empty input sets the failure bit, although nothing has failed.
  if (std::cin.peek() != std::char_traits<char>::eof()) spool << std::cin.rdbuf();
  spool.flush();
  if (!spool) throw std::system_error(errno, std::generic_category());
}

void ModelSource::Expand() {
  const std::string target = MakeFolder().GetPath("expanded");
  std::ofstream out(target, std::ios::binary);
  if (!out) throw std::system_error(errno, std::generic_category());
  KelIFC::archive::ExpandModel(path, out);
  path = target;
}

TemporaryFolder& ModelSource::MakeFolder() {
  if (folder == nullptr) folder = std::make_unique<TemporaryFolder>();
  return *folder;
}

}  // namespace command
