#ifndef TOOLS_KELIFC_FAILURE_H_
#define TOOLS_KELIFC_FAILURE_H_

#include <stdexcept>
#include <string>

namespace command {

/// What the process ends with. Scripts rely on the values.
enum class Status {
  kDone = 0,
  kFile = 1,            ///< a file cannot be opened, created or written to its end
  kNoModel = 2,         ///< not a STEP file, or of an unknown schema
  kNotConvertible = 3,  ///< of a release that has no structure conversion
  kUsage = 64,          ///< wrong usage
  kMissing = 69,        ///< a component that this build lacks
};

/// Ends the command: `main` prints "kelifc: " and the message as one line and exits with the
/// status.
class Failure : public std::runtime_error {
 public:
  Failure(Status status, const std::string& file, const std::string& cause)
      : Failure(status, file + ": " + cause) {}

  /// For a message that names its file itself.
  Failure(Status status, const std::string& message)
      : std::runtime_error(message), status(status) {}

  Status GetStatus() const { return status; }

 private:
  Status status;
};

}  // namespace command

#endif  // TOOLS_KELIFC_FAILURE_H_
