#include <algorithm>
#include <cstdint>
#include <fstream>
#include <optional>

#include "kelifc/core/memory/load_arena.h"
#include "kelifc/core/step_file_schema.h"
#include "kelifc/platform/memory_watch.h"
#include "kelifc/platform/path.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/statements.h"

namespace KelIFC {
namespace {

// Models have a statement per 50 to 60 bytes, and room for the registry is made accordingly. What
// is not used of it is address space, not memory. A file may claim any size, hence the bound.
constexpr std::uint64_t kBytesPerStatement = 40;
constexpr std::uint64_t kMostExpected = std::uint64_t{1} << 24;

}  // namespace

int IfcServer::LoadIfcFile(const char* path) {
  Reset();
  fileSchema.clear();
  if (path == nullptr || !IsRegularFile(path)) return LOAD_RESULT_CANNOT_OPEN;
  struct LoadEnd {  // also where memory runs out in the middle
    LoadState& load;
    ~LoadEnd() { load = LoadState(); }
  } const end{load};
  load.isRunning = true;
  try {
    const int result = LoadPasses(path);
    if (!load.isStopped) return result;
  } catch (...) {
    Reset();
    throw;
  }
  Reset();
  return LOAD_RESULT_CANNOT_OPEN;
}

int IfcServer::LoadPasses(const char* path) {
  MakeRoom(GetFileSize(path));
  // Where memory is watched each block stands alone, so that none can be touched unseen.
  std::optional<LoadArena> memory;
  if (!kIsMemoryWatched) memory.emplace();
  std::ifstream file(path, std::ios::binary);
  if (!file) return LOAD_RESULT_CANNOT_OPEN;
  schemaRecord.reset();
  headerSeen = false;
  ScanFile(file, this, true);
  if (!headerSeen) return LOAD_RESULT_NO_STEP_FILE;
  if (GetRelease() == IFC_RELEASE_NONE) return LOAD_RESULT_UNKNOWN_SCHEMA;
  if (load.isStopped) return LOAD_RESULT_CANNOT_OPEN;
  load.bytesBefore = load.bytesTotal / 2;
  load.bytesReported = 0;
  std::ifstream again(path, std::ios::binary);
  if (!again) return LOAD_RESULT_CANNOT_OPEN;
  ScanFile(again, this, false);
  return LOAD_RESULT_LOADED;
}

void IfcServer::MakeRoom(std::uint64_t fileSize) {
  load.bytesTotal = 2 * fileSize;
  const auto expected =
      static_cast<std::size_t>(std::min(fileSize / kBytesPerStatement, kMostExpected));
  items.reserve(expected);
  idToIndex.Reserve(expected);
}

// Called for each statement, passes on what is news: once per block that was read.
bool IfcServer::ReportProgress(std::uint64_t bytesRead) {
  if (bytesRead == load.bytesReported || !load.isRunning) return true;
  load.bytesReported = bytesRead;
  if (!progressHandler) return true;
  const std::uint64_t done = std::min(load.bytesBefore + bytesRead, load.bytesTotal);
  load.isStopped = !progressHandler(done, load.bytesTotal);
  return !load.isStopped;
}

}  // namespace KelIFC
