#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <typeinfo>
#include <utility>

#include "kelifc/core/memory/load_arena.h"
#include "kelifc/core/step_file_schema.h"
#include "kelifc/platform/memory_watch.h"
#include "kelifc/platform/path.h"
#include "kelifc/server/block_ends.h"
#include "kelifc/server/block_size.h"
#include "kelifc/server/content_hash.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/model_origin.h"
#include "kelifc/server/model_source.h"
#include "kelifc/server/ordered_work.h"
#include "kelifc/server/piece_maker.h"
#include "kelifc/server/piece_parser.h"
#include "kelifc/server/report_collector.h"
#include "kelifc/server/reserve_huge.h"
#include "kelifc/server/scan_buffer.h"
#include "kelifc/server/statements.h"

namespace KelIFC {
namespace {

// Models have one statement per 50 to 60 bytes, and the registry allocates memory for that number.
// The unused part is address space, not memory. The bound exists because a file can claim any size.
constexpr std::uint64_t kBytesPerStatement = 40;
constexpr std::uint64_t kMostExpected = std::uint64_t{1} << 24;

// The memory that the registry needs for each instance.
constexpr std::uint64_t kBytesPerSlot = 12;

// A limit of 0 means no limit.
constexpr bool Exceeds(std::uint64_t value, std::uint64_t limit) {
  return limit != 0 && value > limit;
}

}  // namespace

int IfcServer::LoadIfcFile(const char* path) {
  ForgetLoad();
  if (path == nullptr || !IsRegularFile(path)) return LOAD_RESULT_CANNOT_OPEN;
  const int result = LoadFrom(FileSource(path), LoadState());
  if (result == LOAD_RESULT_CANCELLED) return LOAD_RESULT_CANNOT_OPEN;
  return result == LOAD_RESULT_UNSUPPORTED_RELEASE ? LOAD_RESULT_UNKNOWN_SCHEMA : result;
}

int IfcServer::LoadIfc(const char* path, const LoadOptions& options) {
  ForgetLoad();
  if (path == nullptr || !IsRegularFile(path)) return LOAD_RESULT_CANNOT_OPEN;
  return LoadWithOptions(std::make_shared<FileSource>(path), options);
}

int IfcServer::LoadIfcMemory(const void* data, std::size_t size, const LoadOptions& options) {
  ForgetLoad();
  const std::size_t count = data == nullptr ? 0 : size;
  const int result = LoadWithOptions(std::make_shared<MemorySource>(data, count), options);
  if (origin != nullptr) KeepSource(std::make_shared<CopiedSource>(data, size));
  return result;
}

int IfcServer::LoadIfcStream(std::istream& in, const LoadOptions& options) {
  ForgetLoad();
  const std::uint64_t most = options.limits.maxBytes;
  const auto spooled = std::make_shared<SpooledSource>(in, most == 0 ? UINT64_MAX : most);
  switch (spooled->GetState()) {
    case SpooledSource::State::kTooLong:
      return LOAD_RESULT_LIMIT_REACHED;
    case SpooledSource::State::kFailed:
      return LOAD_RESULT_CANNOT_OPEN;
    case SpooledSource::State::kWhole:
      break;
  }
  return LoadWithOptions(spooled, options);
}

void IfcServer::ForgetLoad() {
  Reset();
  fileSchema.clear();
  report = LoadReport();
  dialect = STEP_DIALECT_CLASSIC;
}

// Replaces a source that does not outlive the load.
void IfcServer::KeepSource(std::shared_ptr<const ModelSource> kept) {
  auto changed = std::make_shared<ModelOrigin>(*origin);
  changed->source = kept;
  origin = std::move(changed);
  source = std::move(kept);
}

IfcServer::LoadState IfcServer::MakeLoadState(const LoadOptions& options, std::uint64_t size) {
  LoadState initial;
  initial.dialect = options.dialect;
  initial.limits = options.limits;
  initial.isReported = options.report || options.dialect == STEP_DIALECT_ISO;
  initial.keepsUnknown = options.keepUnknown.value_or(options.dialect == STEP_DIALECT_ISO);
  initial.hash = initial.isReported ? &sourceHash : nullptr;
  initial.threads = CountThreads(options, size);
  return initial;
}

int IfcServer::LoadWithOptions(std::shared_ptr<const ModelSource> model,
                               const LoadOptions& options) {
  SetRelease(IFC_RELEASE_NONE);
  if (Exceeds(model->GetSize(), options.limits.maxBytes)) return LOAD_RESULT_LIMIT_REACHED;
  LoadState initial = MakeLoadState(options, model->GetSize());
  LoadReport unused;
  LoadReport& noted = initial.isReported ? report : unused;
  ReportCollector collector(noted);
  // Whether threads can parse the model depends on what is found in it.
  if (initial.isReported || initial.threads > 1) {
    initial.findings = &noted.findings;
    initial.collector = &collector;
  }
  std::shared_ptr<ModelOrigin> made;
  if (options.dialect == STEP_DIALECT_ISO) made = std::make_shared<ModelOrigin>();
  initial.origin = made.get();
  const int result = LoadFrom(*model, initial);
  if (result != LOAD_RESULT_LOADED) return result;
  if (initial.isReported) EndReport(collector, std::move(model));
  dialect = options.dialect;
  if (made == nullptr) return result;
  made->source = source;
  made->keepsUnknown = initial.keepsUnknown;
  origin = std::move(made);
  return result;
}

// Completes the report of a load, and keeps what a check of the model needs.
void IfcServer::EndReport(ReportCollector& collector, std::shared_ptr<const ModelSource> model) {
  try {
    collector.EndLoad(*this);
  } catch (...) {
    Reset();
    throw;
  }
  source = std::move(model);
}

int IfcServer::LoadFrom(const ModelSource& model, const LoadState& initial) {
  struct LoadEnd {  // runs also if an allocation fails
    LoadState& load;
    ~LoadEnd() { load = LoadState(); }
  } const end{load};
  load = initial;
  load.isRunning = true;
  try {
    const int result = LoadPasses(model);
    if (!load.isStopped && !load.isBeyondLimit) return result;
  } catch (...) {
    Reset();
    throw;
  }
  Reset();
  return load.isStopped ? LOAD_RESULT_CANCELLED : LOAD_RESULT_LIMIT_REACHED;
}

int IfcServer::LoadPasses(const ModelSource& model) {
  MakeRoom(model.GetSize());
  // A build that watches memory allocates each instance on its own, so that it finds each access
  // outside an instance.
  std::optional<LoadArena> memory;
  if (!kIsMemoryWatched) load.memory = &memory.emplace();
  std::unique_ptr<std::istream> in = model.Open();
  if (!in) return LOAD_RESULT_CANNOT_OPEN;
  schemaRecord.reset();
  headerSeen = false;
  MakeInstances(*in);
  if (load.isStopped || load.isBeyondLimit) return LOAD_RESULT_CANNOT_OPEN;
  if (!headerSeen) return LOAD_RESULT_NO_STEP_FILE;
  if (GetRelease() == IFC_RELEASE_NONE) {
    return load.isLaterSchema ? LOAD_RESULT_UNSUPPORTED_RELEASE : LOAD_RESULT_UNKNOWN_SCHEMA;
  }
  if (load.collector != nullptr) load.collector->EndFirstPass(*this);
  load.bytesBefore = load.bytesTotal / 2;
  load.bytesReported = 0;
  load.statementBytes = 0;
  load.threadBytesBefore = load.threadBytes;
  in = model.Open();
  if (!in) return LOAD_RESULT_CANNOT_OPEN;
  ScanSource(*in);
  return LOAD_RESULT_LOADED;
}

// Returns the number of threads for a load. The results of a load with narrow limits depend on
// where it checks them, so such a load uses one thread.
unsigned IfcServer::CountThreads(const LoadOptions& options, std::uint64_t size) const {
  constexpr std::uint64_t kLeastBlocks = 4;
  constexpr std::uint64_t kMemoryOfByte = 16;  // a model takes less for each byte of its source
  const LoadLimits& limits = options.limits;
  const std::uint64_t longest = PieceMaker::kMostBlocks * GetBlockSize();
  const bool isNarrow = Exceeds(longest, limits.maxStatementBytes) ||
                        Exceeds(kMemoryOfByte * size, limits.maxMemoryBytes);
  const bool isDerived = typeid(*this) != typeid(IfcServer);
  if (isDerived || isNarrow || size < kLeastBlocks * GetBlockSize()) return 1;
  return OrderedWork::ChooseThreads(options.threads);
}

// The first pass. With several threads, one thread reads the header.
void IfcServer::MakeInstances(std::istream& in) {
  if (load.threads > 1) load.cuts.emplace_back();
  ScanFile(in, this, true);
  const bool isHeader = load.threads > 1 && GetRelease() != IFC_RELEASE_NONE;
  if (!isHeader || load.isStopped || load.isBeyondLimit || load.stoppedAt.offset == 0) return;
  BlockEnds ends;
  ends.Restart(load.bytesReported, GetBlockSize());
  ends.Note(load.stoppedAt.offset);
  if (GoesOn(ends)) MakeOnThreads(in);
}

void IfcServer::MakeOnThreads(std::istream& in) {
  const auto seek = [&in](const SourcePosition& position) {
    in.clear();
    in.seekg(static_cast<std::streamoff>(position.offset));
  };
  seek(load.stoppedAt);
  const std::optional<SourcePosition> rest = PieceMaker(*this, in, load.stoppedAt).Make();
  if (!rest) return;
  seek(*rest);
  ScanFile(in, this, true, *rest);
}

// The second pass. It also notes what the server needs to read the source again.
void IfcServer::ScanSource(std::istream& in) {
  ModelOrigin* const target = load.origin;
  load.statedEnd = items.size();
  std::optional<IdRecorder> recorder;
  if (target != nullptr) {
    target->statedEnd = load.statedEnd;
    target->repeats = load.repeats;
    recorder.emplace(target->replacedIds, load.statementNumber);
  }
  if (load.hash == nullptr) {
    ScanInstances(in);
  } else {
    HashedInput hashed(in);
    ScanInstances(hashed);
    *load.hash = hashed.GetHash().GetValue();
  }
  if (target != nullptr) target->addedEnd = items.size();
}

void IfcServer::ScanInstances(std::istream& in) {
  if (CanParseOnThreads()) {
    PieceParser(*this, in).Parse();
  } else {
    ScanFile(in, this, false);
  }
}

// One thread parses
//  - a model of release 1.5.1, in which statements set attributes that other statements read,
//  - in the classic dialect, a model in which one instance parses several statements,
//  - a model whose numbers are so high that classes add instances with numbers among them,
//  - a source with a statement or a comment that is too long for the memory of a piece.
bool IfcServer::CanParseOnThreads() const {
  constexpr std::uint64_t kMostBytes = std::uint64_t{64} << 20;
  if (load.cuts.size() < 2 || release == IFC_RELEASE_151) return false;
  const bool isRepeated = load.findings->GetCount(LoadFinding::kRepeatedNumber) != 0;
  if (!IsIso() && (isRepeated || load.collector->HasMixedNumber())) return false;
  if (load.highestNumber != load.highestOrdinary) return false;
  std::uint64_t begin = 0;
  for (const SourcePosition& cut : load.cuts) {
    if (cut.offset - std::exchange(begin, cut.offset) > kMostBytes) return false;
  }
  return load.bytesTotal / 2 - std::min(begin, load.bytesTotal / 2) <= kMostBytes;
}

void IfcServer::MakeRoom(std::uint64_t fileSize) {
  load.bytesTotal = 2 * fileSize;
  const auto expected =
      static_cast<std::size_t>(std::min(fileSize / kBytesPerStatement, kMostExpected));
  ReserveHuge(items, expected);
  if (load.isReported) ReserveHuge(places, expected);
  idToIndex.Reserve(expected);
}

// Notes where a load with a report stops. A load that is cancelled stops at no fault of the file.
void IfcServer::NoteFailure(const SourcePlace& place) {
  if (load.isReported && !load.isStopped) report.failure = place;
}

// Called once for each block of the file. Checks the memory and reports the progress.
bool IfcServer::GoesOn(std::uint64_t bytesRead) {
  if (!load.isRunning) return true;
  load.bytesReported = bytesRead;
  load.isBeyondLimit = !IsWithinMemory();
  return !load.isBeyondLimit && ReportProgress(load.bytesReported);
}

// The same for the blocks of a piece.
bool IfcServer::GoesOn(const BlockEnds& ends) {
  for (const std::uint64_t end : ends.Get()) {
    const std::uint64_t bytesRead = std::min(end, load.bytesTotal / 2);
    if (bytesRead > load.bytesReported && !GoesOn(bytesRead)) return false;
  }
  return true;
}

bool IfcServer::ReportProgress(std::uint64_t bytesRead) {
  if (!progressHandler) return true;
  const std::uint64_t done = std::min(load.bytesBefore + bytesRead, load.bytesTotal);
  load.isStopped = !progressHandler(done, load.bytesTotal);
  return !load.isStopped;
}

// The texts of instances are outside the blocks. They are shorter than the statements from which
// they were read, so the length of the statements is counted for them, in the second pass only.
bool IfcServer::IsWithinMemory() const {
  const std::uint64_t blocks = load.memory == nullptr ? 0 : load.memory->GetBytes();
  const std::uint64_t texts = load.bytesBefore == 0 ? 0 : load.statementBytes;
  const std::uint64_t registry =
      kBytesPerSlot * items.size() + sizeof(StatementPlace) * places.size();
  const std::uint64_t taken = blocks + load.threadBytes + texts + registry;
  return !Exceeds(taken, load.limits.maxMemoryBytes);
}

}  // namespace KelIFC
