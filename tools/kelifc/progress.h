#ifndef TOOLS_KELIFC_PROGRESS_H_
#define TOOLS_KELIFC_PROGRESS_H_

#include <cstdint>

namespace command {

/// A bar on standard error that shows the progress of a load. It is shown only if standard error is
/// a terminal and the file is larger than 20 MB. The destructor removes it.
class ProgressBar {
 public:
  explicit ProgressBar(std::uint64_t fileBytes);
  ~ProgressBar();
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  bool IsShown() const { return shown; }

  /// Shows that `done` of `total` bytes have been read, counted over all passes. Draws at most once
  /// for each percent.
  void Update(std::uint64_t done, std::uint64_t total);

 private:
  bool shown;
  int percent = -1;
};

}  // namespace command

#endif  // TOOLS_KELIFC_PROGRESS_H_
