#include "tools/kelifc/message.h"

#include <algorithm>
#include <cstdio>

#include "tools/kelifc/text.h"

namespace command {

void PrintMessage(std::string message) {
  std::replace(message.begin(), message.end(), '\n', ' ');
  std::fprintf(stderr, "kelifc: %s\n", Visible(message).c_str());
}

}  // namespace command
