#ifndef TOOLS_KELIFC_MESSAGE_H_
#define TOOLS_KELIFC_MESSAGE_H_

#include <string>

namespace command {

/// Prints "kelifc: " and a message as one line on standard error. Line ends become blanks; other
/// control characters are shown as \xNN.
void PrintMessage(std::string message);

}  // namespace command

#endif  // TOOLS_KELIFC_MESSAGE_H_
