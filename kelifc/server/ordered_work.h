#ifndef KELIFC_SERVER_ORDERED_WORK_H_
#define KELIFC_SERVER_ORDERED_WORK_H_

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <mutex>
#include <thread>
#include <vector>

namespace KelIFC {

/// Work on a sequence of pieces by several threads. Each piece goes through three stages:
///  - Fill: any thread, one piece after the other, in order;
///  - Work: any thread, several pieces at the same time;
///  - Merge: the thread that calls Run, one piece after the other, in order.
/// A piece has a slot between Fill and Merge. A slot is used again after that, so the memory for
/// pieces does not depend on their number.
class OrderedWork {
 public:
  OrderedWork(const OrderedWork&) = delete;
  OrderedWork& operator=(const OrderedWork&) = delete;

  /// Returns the number of threads for an operation that can use `allowed` threads; 0 means one for
  /// each processor. There is a limit of 64.
  static unsigned ChooseThreads(unsigned allowed);

  /// Does the work on `threads` threads, of which one is that of the caller. If the system starts
  /// fewer threads, these do all the work. Returns after the other threads have ended: true after
  /// the last piece, false if Merge returned false. Throws what a stage throws, when the piece is
  /// to be merged.
  bool Run(unsigned threads);

  /// The blocks that the other threads have allocated from arenas, in bytes. Only Merge may ask.
  std::uint64_t GetArenaBytes();

 protected:
  /// Each thread has a few slots, so that no thread waits for a piece that takes longer.
  static constexpr std::size_t kSlotsPerThread = 4;

  OrderedWork() = default;
  virtual ~OrderedWork();

  /// Prepares the slot for the next piece. Returns false if there is no next piece.
  virtual bool Fill(std::size_t slot) = 0;
  /// Works on the piece in a slot. It must not change what other threads use.
  virtual void Work(std::size_t slot) = 0;
  /// Uses the result. Returns false to stop; then pieces that are not merged yet are left as they
  /// are.
  virtual bool Merge(std::size_t slot) = 0;

 private:
  struct Slot {
    bool isDone = false;
    std::exception_ptr error;
  };

  void StartThreads(unsigned count);
  void Stop();
  void RunThread();
  bool Claim(std::size_t& slot);
  void WorkOn(std::size_t slot);
  bool MergeAll();
  bool MergeNext(std::unique_lock<std::mutex>& lock);

  std::mutex mutex;
  std::condition_variable changed;
  std::vector<Slot> slots;
  std::size_t filled = 0;  // pieces that were filled, and that were merged
  std::size_t merged = 0;
  bool hasEnded = false;  // there is no further piece
  bool isStopped = false;
  std::uint64_t arenaBytes = 0;
  std::vector<std::thread> threads;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_ORDERED_WORK_H_
