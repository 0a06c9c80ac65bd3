#include "kelifc/platform/program.h"

#include <atomic>
#include <csignal>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>

#include "kelifc/platform/com_text.h"
#else
#include <unistd.h>
#endif

namespace KelIFC {
namespace {

std::atomic<bool> wasInterrupted = false;
static_assert(std::atomic<bool>::is_always_lock_free, "a signal handler uses it");

extern "C" void NoteInterrupt(int /*signal*/) { wasInterrupted = true; }

}  // namespace

bool IsInterrupted() { return wasInterrupted; }

#ifdef _WIN32

bool IsTerminal(std::FILE* stream) { return _isatty(_fileno(stream)) != 0; }

void SetBinary(std::FILE* stream) { _setmode(_fileno(stream), _O_BINARY); }

std::filesystem::path PathOfArgument(std::string_view name) { return WidePath(name); }

// Windows resets the handler when it calls it.
void CatchInterrupts() { std::signal(SIGINT, NoteInterrupt); }

#else

bool IsTerminal(std::FILE* stream) { return isatty(fileno(stream)) != 0; }

void SetBinary(std::FILE* /*stream*/) {}

std::filesystem::path PathOfArgument(std::string_view name) { return name; }

void CatchInterrupts() {
  struct sigaction action = {};
  if (sigaction(SIGINT, nullptr, &action) != 0 || action.sa_handler == SIG_IGN) return;
  action = {};
  action.sa_handler = NoteInterrupt;
  action.sa_flags = static_cast<int>(SA_RESETHAND);
  sigaction(SIGINT, &action, nullptr);
}

#endif

}  // namespace KelIFC
