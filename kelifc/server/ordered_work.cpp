#include "kelifc/server/ordered_work.h"

#include <algorithm>
#include <optional>
#include <system_error>
#include <utility>

#include "kelifc/core/memory/load_arena.h"
#include "kelifc/platform/memory_watch.h"

namespace KelIFC {

OrderedWork::~OrderedWork() = default;

unsigned OrderedWork::ChooseThreads(unsigned allowed) {
  constexpr unsigned kMostThreads = 64;
  return std::clamp(allowed == 0 ? std::thread::hardware_concurrency() : allowed, 1U, kMostThreads);
}

bool OrderedWork::Run(unsigned count) {
  slots = std::vector<Slot>(kSlotsPerThread * count);
  struct End {  // runs also if a stage throws
    OrderedWork& work;
    ~End() { work.Stop(); }
  } const end{*this};
  StartThreads(count - 1);
  return MergeAll();
}

std::uint64_t OrderedWork::GetArenaBytes() {
  const std::lock_guard lock(mutex);
  return arenaBytes;
}

void OrderedWork::StartThreads(unsigned count) {
  threads.reserve(count);
  try {
    while (threads.size() < count) threads.emplace_back([this] { RunThread(); });
  } catch (const std::system_error&) {
    // The system has no more threads. The pieces do not need them.
  }
}

// Ends the other threads.
void OrderedWork::Stop() {
  {
    const std::lock_guard lock(mutex);
    isStopped = true;
  }
  changed.notify_all();
  for (std::thread& thread : threads) thread.join();
  threads.clear();
}

void OrderedWork::RunThread() {
  std::optional<LoadArena> memory;
  if (!kIsMemoryWatched) memory.emplace();
  std::uint64_t bytesBefore = 0;
  std::unique_lock lock(mutex);
  while (true) {
    std::size_t slot = 0;
    changed.wait(lock, [this] { return isStopped || hasEnded || filled - merged < slots.size(); });
    if (isStopped || !Claim(slot)) return;
    lock.unlock();
    WorkOn(slot);
    lock.lock();
    slots[slot].isDone = true;
    if (memory) arenaBytes += memory->GetBytes() - std::exchange(bytesBefore, memory->GetBytes());
    changed.notify_all();
  }
}

// Fills the next slot. The mutex is locked. An exception is thrown when the piece is to be merged.
bool OrderedWork::Claim(std::size_t& slot) {
  if (hasEnded || filled - merged == slots.size()) return false;
  slot = filled % slots.size();
  slots[slot] = Slot();
  try {
    hasEnded = !Fill(slot);
  } catch (...) {
    slots[slot].error = std::current_exception();
    hasEnded = true;
    ++filled;
    return true;
  }
  if (hasEnded) {
    changed.notify_all();
    return false;
  }
  ++filled;
  return true;
}

void OrderedWork::WorkOn(std::size_t slot) {
  if (slots[slot].error != nullptr) return;
  try {
    Work(slot);
  } catch (...) {
    slots[slot].error = std::current_exception();
  }
}

// The thread of the caller merges what is ready. While nothing is, it works like the others.
bool OrderedWork::MergeAll() {
  std::unique_lock lock(mutex);
  while (true) {
    std::size_t slot = 0;
    if (merged != filled && slots[merged % slots.size()].isDone) {
      if (!MergeNext(lock)) return false;
    } else if (Claim(slot)) {
      lock.unlock();
      WorkOn(slot);
      lock.lock();
      slots[slot].isDone = true;
    } else if (merged == filled) {
      return true;
    } else {
      changed.wait(lock, [this] { return slots[merged % slots.size()].isDone; });
    }
  }
}

bool OrderedWork::MergeNext(std::unique_lock<std::mutex>& lock) {
  const std::size_t slot = merged % slots.size();
  if (slots[slot].error != nullptr) std::rethrow_exception(slots[slot].error);
  lock.unlock();
  const bool goesOn = Merge(slot);
  lock.lock();
  ++merged;
  changed.notify_all();
  return goesOn;
}

}  // namespace KelIFC
