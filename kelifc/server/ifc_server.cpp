#include "kelifc/server/ifc_server.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <new>
#include <utility>

#include "kelifc/core/detail/prefetch.h"
#include "kelifc/core/memory/load_arena.h"
#include "kelifc/core/step_file_schema.h"
#include "kelifc/core/text/write_tolerance.h"
#include "kelifc/core/unknown.h"
#include "kelifc/server/release_tables.h"

// The registry of instances. Loading, saving and the creation of instances by name are in other
// files.

namespace KelIFC {
namespace {

// A file writes this number and all higher ones with a minus sign.
constexpr std::uint64_t kFirstNegative = std::uint64_t{1} << 63;

template <class Project>
Project FindProject(const Mvector<IfcUnknown*>& items, Project (*asProject)(const IfcUnknown*)) {
  for (const IfcUnknown* item : items) {
    if (Project project = asProject(item)) return project;
  }
  return nullptr;
}

// The same for a release whose projects are at `roots`, as all its instances of IfcRoot are.
template <class Project>
Project FindProject(const Mvector<IfcUnknown*>& items, const std::vector<std::uint32_t>& roots,
                    Project (*asProject)(const IfcUnknown*)) {
  for (const std::uint32_t position : roots) {
    if (Project project = asProject(items[position])) return project;
  }
  return nullptr;
}

// The last item is destroyed first.
void DestroyItems(Mvector<IfcUnknown*>& items) {
  const BulkFree scope;
  for (std::size_t i = items.size(); i > 0; --i) delete std::exchange(items[i - 1], nullptr);
}

}  // namespace

bool GuidLess::operator()(const _GUID& a, const _GUID& b) const {
  if (a.Data1 != b.Data1) return a.Data1 < b.Data1;
  if (a.Data2 != b.Data2) return a.Data2 < b.Data2;
  if (a.Data3 != b.Data3) return a.Data3 < b.Data3;
  return std::memcmp(a.Data4, b.Data4, sizeof a.Data4) < 0;
}

IfcServer::IfcServer() = default;
IfcServer::IfcServer(const IfcServer&) = default;
IfcServer& IfcServer::operator=(const IfcServer&) = default;
IfcServer::~IfcServer() { IfcServer::Reset(); }

IFC_RELEASE IfcServer::GetRelease() { return release; }
void IfcServer::SetRelease(IFC_RELEASE value) { release = value; }
bool IfcServer::GetSupportsFillings() const { return supportsFillings; }
void IfcServer::SetSupportsFillings(bool value) { supportsFillings = value; }
double IfcServer::GetEps() const { return eps; }

double IfcServer::SetEps(double value) {
  SetWriteTolerance(value);
  return std::exchange(eps, value);
}

const Mvector<IfcUnknown*>& IfcServer::GetItems() const { return items; }

void IfcServer::Reset() {
  load.parsed = nullptr;
  instanceIndex.Clear();
  productNumbers.Drop();
  if (mayRepeat) DropRepeatedSlots();
  DestroyItems(items);
  items = Mvector<IfcUnknown*>();  // frees the memory
  idToIndex.Clear();
  instanceIndex.Clear();  // a destructor may have built it again
  productNumbers = {};
  guidIndex = {};
  rootPositions = {};
  productPositions = {};
  productIds = {};
  places = {};
  source.reset();
  slotsWithoutGuid = 0;
  mayRepeat = false;
  dialect = STEP_DIALECT_CLASSIC;
  origin.reset();
}

// Keeps only the first slot of an instance that was registered twice. Allocates no memory: an
// instance that was visited is marked by a null server for the time of the call.
void IfcServer::DropRepeatedSlots() {
  for (IfcUnknown* item : items) {
    if (item != nullptr) item->SetServer(this);
  }
  for (IfcUnknown*& item : items) {
    if (item == nullptr) continue;
    if (item->GetServer() == nullptr) {
      item = nullptr;
    } else {
      item->SetServer(nullptr);
    }
  }
  for (IfcUnknown* item : items) {
    if (item != nullptr) item->SetServer(this);
  }
}

void IfcServer::InsertItem(std::size_t id, IfcUnknown* item) {
  if (item == nullptr || id == 0) return;
  Append(id, item);
}

std::size_t IfcServer::AddItem(IfcUnknown* item) {
  const std::size_t number = MakeNumber();
  Append(number, item);
  return number;
}

std::size_t IfcServer::MakeNumber() {
  const std::uint64_t highest = std::max(idToIndex.GetHighest(), load.highestNumber);
  if (highest + 1 != 0) return highest + 1;
  if (!load.isRunning) return idToIndex.GetLowestFree();
  return std::max(idToIndex.GetHighestBelow(kFirstNegative), load.highestOrdinary) + 1;
}

// If there is no memory, nothing is registered, and a new instance, which has no other owner, is
// destroyed.
void IfcServer::Append(std::size_t id, IfcUnknown* item) {
  const std::size_t position = items.size();
  try {
    FillSlot(id, item, ListedAsOf(item));
  } catch (const std::bad_alloc&) {
    DropSlot(position);
    if (item != nullptr && item->GetServer() == nullptr) delete item;
    throw;
  }
  if (id == load.parsedNumber) load.parsed = nullptr;
  if (item == nullptr) return;
  if (item->GetServer() != nullptr) mayRepeat = true;
  item->SetServer(this);
}

// The same for a new instance whose server is set already. Does not access the instance, which can
// still be in the cache of another processor.
void IfcServer::AppendNew(std::size_t id, std::unique_ptr<IfcUnknown> item, ListedAs listed) {
  const std::size_t position = items.size();
  try {
    FillSlot(id, item.get(), listed);
  } catch (const std::bad_alloc&) {
    DropSlot(position);
    throw;
  }
  static_cast<void>(item.release());
}

// The number is set last: its earlier meaning must not be lost if there is no memory.
void IfcServer::FillSlot(std::size_t id, IfcUnknown* item, ListedAs listed) {
  const auto position = static_cast<std::uint32_t>(items.size());
  productNumbers.Drop();
  items.push_back(item);
  if (listed != ListedAs::kNothing) rootPositions.push_back(position);
  if (listed == ListedAs::kProduct) {
    productIds.push_back(id);
    productPositions.push_back(position);
  }
  if (instanceIndex.IsBuilt()) {
    const std::uint32_t earlier = idToIndex.Find(id);
    if (earlier != detail::NumberIndex::kNone) instanceIndex.DropNumber(earlier);
    instanceIndex.Append(items.data(), id);
  }
  idToIndex.Set(id, position);
}

// Removes the last slot, which may be filled in part.
void IfcServer::DropSlot(std::size_t position) noexcept {
  for (std::vector<std::uint32_t>* list : {&rootPositions, &productPositions}) {
    if (!list->empty() && list->back() == position) list->pop_back();
  }
  productIds.resize(productPositions.size());
  items.resize(position);
  instanceIndex.Clear();
}

void IfcServer::BuildInstanceIndex() const {
  if (!instanceIndex.IsBuilt()) instanceIndex.Build(items.data(), items.size(), idToIndex);
}

std::size_t IfcServer::Find(const IfcUnknown* item) const {
  // A relationship looks up its own number while it is parsed. A load need not build the index for
  // that.
  if (item != nullptr && item == load.parsed && !mayRepeat) return load.parsedNumber;
  if (const std::uint64_t number = FindProductNumber(item)) {
    return static_cast<std::size_t>(number);
  }
  BuildInstanceIndex();
  const std::uint32_t position = instanceIndex.FindPosition(items.data(), item);
  return position == detail::InstanceIndex::kNone ? 0 : instanceIndex.GetNumber(position);
}

// Returns 0 if the table of products does not answer the question.
std::uint64_t IfcServer::FindProductNumber(const IfcUnknown* item) const {
  if (instanceIndex.IsBuilt() || mayRepeat || item == nullptr) return 0;
  if (productNumbers.IsNew()) {
    productNumbers.Build(items.data(), productPositions, productIds, idToIndex);
  }
  return productNumbers.Find(item);
}

std::size_t IfcServer::DeleteItem(const IfcUnknown* item) {
  productNumbers.Drop();
  BuildInstanceIndex();
  const std::uint32_t first = instanceIndex.FindPosition(items.data(), item);
  if (first == detail::InstanceIndex::kNone) return 0;
  const std::size_t number = instanceIndex.GetNumber(first);
  IfcUnknown* const doomed = items[first];
  if (doomed == load.parsed) load.parsed = nullptr;
  for (const std::uint32_t position : instanceIndex.Remove(items.data(), item)) {
    items[position] = nullptr;
  }
  instanceIndex.DropNumber(first);
  idToIndex.Erase(number);
  delete doomed;
  return number;
}

IfcUnknown* IfcServer::GetItem(std::size_t id) {
  const std::uint32_t position = idToIndex.Find(id);
  return position == detail::NumberIndex::kNone ? nullptr : items[position];
}

// Hosts rely on this overload to return null; all other code uses the non-const overload.
const IfcUnknown* IfcServer::GetItem(std::size_t) const { return nullptr; }

IfcUnknown* IfcServer::GetItem(const _GUID& guid) {
  if (IsNullGuid(guid)) return nullptr;
  if (guidIndex.IsEmpty()) BuildGuidIndex();
  const std::uint32_t position = guidIndex.Find(guid);
  return position == detail::GuidIndex::kNone ? nullptr : items[position];
}

// Of several instances with one identifier the first wins. A model without identifiers is searched
// again only after it has grown.
void IfcServer::BuildGuidIndex() {
  if (slotsWithoutGuid == items.size()) return;
  constexpr std::size_t kBatch = 16;
  constexpr std::size_t kWithText = 256;  // bytes of an instance and its identifier
  const std::size_t count = rootPositions.size();
  std::array<detail::GuidIndex::Entry, kBatch> found = {};
  detail::GuidIndex made(count);  // assigned when complete: an allocation can fail
  for (std::size_t begin = 0; begin < count; begin += kBatch) {
    const std::size_t end = std::min(begin + kBatch, count);
    for (std::size_t i = end; i < std::min(end + kBatch, count); ++i) {
      detail::PrefetchInstance(items[rootPositions[i]], kWithText);
    }
    detail::GuidIndex::Entry* last = found.data();
    for (std::size_t i = begin; i < end; ++i) {
      last->position = rootPositions[i];
      if (ReadGlobalGuid(items[last->position], last->guid)) ++last;
    }
    made.AddBatch(found.data(), last);
  }
  guidIndex = std::move(made);
  if (guidIndex.IsEmpty()) slotsWithoutGuid = items.size();
}

StatementPlace IfcServer::GetStatementPlace(std::size_t number) const {
  const std::uint32_t position = idToIndex.Find(number);  // kNone is beyond all places
  return position < places.size() ? places[position] : StatementPlace();
}

std::vector<std::uint64_t> IfcServer::GetNumbersByPosition() const {
  std::vector<std::uint64_t> numbers(items.size());
  if (mayRepeat) {
    for (std::size_t i = 0; i < items.size(); ++i) {
      if (items[i] != nullptr) numbers[i] = Find(items[i]);
    }
  } else {
    idToIndex.ForEach(
        [&](std::uint64_t number, std::uint32_t position) { numbers[position] = number; });
  }
  return numbers;
}

std::size_t IfcServer::GetNextNumber(std::size_t number) const { return idToIndex.GetNext(number); }

const KelIFC151::IfcProject* IfcServer::GetProject151() const {
  return FindProject(items, AsProject151);
}
const KelIFC20::IfcProject* IfcServer::GetProject20() const {
  return FindProject(items, AsProject20);
}
const KelIFC2x::IfcProject* IfcServer::GetProject2x() const {
  return FindProject(items, rootPositions, AsProject2x);
}
const KelIFC2x2::IfcProject* IfcServer::GetProject2x2() const {
  return FindProject(items, rootPositions, AsProject2x2);
}
const KelIFC2x3::IfcProject* IfcServer::GetProject2x3() const {
  return FindProject(items, rootPositions, AsProject2x3);
}

// The server owns the projects. A non-const server returns them as non-const.
KelIFC2x2::IfcProject* IfcServer::GetProject2x2() {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast)
  return const_cast<KelIFC2x2::IfcProject*>(std::as_const(*this).GetProject2x2());
}
KelIFC2x3::IfcProject* IfcServer::GetProject2x3() {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast)
  return const_cast<KelIFC2x3::IfcProject*>(std::as_const(*this).GetProject2x3());
}

void IfcServer::SetProgressHandler(ProgressHandler handler) {
  progressHandler = std::move(handler);
}

void IfcServer::SetErrorHandler(ErrorHandler handler) { errorHandler = std::move(handler); }

}  // namespace KelIFC
