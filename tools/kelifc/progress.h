#ifndef TOOLS_KELIFC_PROGRESS_H_
#define TOOLS_KELIFC_PROGRESS_H_

#include <cstdint>

namespace command {

/// A bar on standard error that tells how far the reading of a file has come. It shows only where
/// standard error is a terminal and the file is above 20 MB, and it is gone when it is destroyed.
class ProgressBar {
 public:
  explicit ProgressBar(std::uint64_t fileBytes);
  ~ProgressBar();
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  bool IsShown() const { return shown; }

  /// `done` of `total` bytes are read, over all passes. Draws at most once per percent.
  void Update(std::uint64_t done, std::uint64_t total);

 private:
  bool shown;
  int percent = -1;
};

}  // namespace command

#endif  // TOOLS_KELIFC_PROGRESS_H_
