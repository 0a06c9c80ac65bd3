#ifndef KELIFC_TOOLS_SCHEMAC_DIAGNOSTICS_H_
#define KELIFC_TOOLS_SCHEMAC_DIAGNOSTICS_H_

#include <stdexcept>
#include <string>

namespace schemac {

/// A place in a description. Lines and columns count from 1.
struct Place {
  std::string file;
  int line = 0;
  int column = 0;
};

/// The error of a description that is refused. what() returns "file:line:column: error: message".
class DescriptionError : public std::runtime_error {
 public:
  DescriptionError(const Place& place, const std::string& message);
};

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_DIAGNOSTICS_H_
