#include "tools/kelifc/progress.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "kelifc/platform/program.h"

#include "tools/kelifc/failure.h"

namespace command {
namespace {

constexpr std::uint64_t kLargeFile = 20'000'000;
constexpr int kBarWidth = 40;

}  // namespace

bool IsLargeFile(std::uint64_t bytes) { return bytes > kLargeFile; }

void ThrowIfInterrupted() {
  if (KelIFC::IsInterrupted()) throw Failure(Status::kInterrupted, "interrupted");
}

ProgressBar::ProgressBar(std::string_view task, bool isWanted)
    : task(task), shown(isWanted && KelIFC::IsTerminal(stderr)) {}

ProgressBar::~ProgressBar() {
  if (shown) std::fputs("\r\033[K", stderr);
}

void ProgressBar::Update(std::uint64_t done, std::uint64_t total) {
  if (!shown || total == 0) return;
  const int now = static_cast<int>(std::min(done, total) * 100 / total);
  if (now == percent) return;
  percent = now;
  std::string bar(kBarWidth, '.');
  std::fill_n(bar.begin(), percent * kBarWidth / 100, '#');
  std::fprintf(stderr, "\r%.*s [%s] %3d %%", static_cast<int>(task.size()), task.data(),
               bar.c_str(), percent);
  std::fflush(stderr);
}

KelIFC::ProgressHandler ProgressBar::GetHandler() {
  return [this](std::uint64_t done, std::uint64_t total) {
    Update(done, total);
    return !KelIFC::IsInterrupted();
  };
}

}  // namespace command
