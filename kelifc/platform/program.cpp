#include "kelifc/platform/program.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>

#include "kelifc/platform/com_text.h"
#else
#include <unistd.h>
#endif

namespace KelIFC {

#ifdef _WIN32

bool IsTerminal(std::FILE* stream) { return _isatty(_fileno(stream)) != 0; }

void SetBinary(std::FILE* stream) { _setmode(_fileno(stream), _O_BINARY); }

std::filesystem::path PathOfArgument(std::string_view name) { return WidePath(name); }

#else

bool IsTerminal(std::FILE* stream) { return isatty(fileno(stream)) != 0; }

void SetBinary(std::FILE* /*stream*/) {}

std::filesystem::path PathOfArgument(std::string_view name) { return name; }

#endif

}  // namespace KelIFC
