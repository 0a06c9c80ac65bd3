#ifndef TOOLS_KELIFC_PROGRESS_H_
#define TOOLS_KELIFC_PROGRESS_H_

#include <cstdint>
#include <string_view>

#include "kelifc/kelifc.h"

#include "tools/kelifc/commands.h"

namespace command {

/// False if the user wants no progress bar.
inline bool AllowsBar(const Reading& reading) { return !reading.quiet && !reading.hidesProgress; }

/// True if a file is so large that loading it takes a while.
bool IsLargeFile(std::uint64_t bytes);

/// Throws Failure with Status::kInterrupted after Ctrl-C.
void ThrowIfInterrupted();

/// A bar on standard error that shows the progress of a task. The destructor removes it.
class ProgressBar {
 public:
  /// The bar is shown only if `isWanted` is set and standard error is a terminal. The view `task`,
  /// such as "reading", must live as long as the bar.
  ProgressBar(std::string_view task, bool isWanted);
  ~ProgressBar();
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  /// Shows that `done` of `total` steps of the task are done. Draws at most once for each percent.
  void Update(std::uint64_t done, std::uint64_t total);

  /// Returns a handler that calls Update, and that stops the task after Ctrl-C. It must not be
  /// called after the bar is destroyed.
  KelIFC::ProgressHandler GetHandler();

 private:
  std::string_view task;
  bool shown;
  int percent = -1;
};

}  // namespace command

#endif  // TOOLS_KELIFC_PROGRESS_H_
