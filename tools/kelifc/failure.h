#ifndef TOOLS_KELIFC_FAILURE_H_
#define TOOLS_KELIFC_FAILURE_H_

#include <stdexcept>
#include <string>

namespace command {

/// The exit status of the process. Scripts rely on the values.
enum class Status {
  kDone = 0,
  kFile = 1,            ///< a file cannot be opened, created or written to its end
  kNoModel = 2,         ///< not a STEP file, or its schema is unknown
  kNotConvertible = 3,  ///< the release has no conversion
  kLost = 4,            ///< done, but something was lost, and the user asked for this status
  kUsage = 64,          ///< the command line is wrong
  kMissing = 69,        ///< this build lacks a component
  kInterrupted = 130,   ///< Ctrl-C
};

/// Thrown to end the command. `main` prints "kelifc: " and the message as one line on standard
/// error and exits with the status.
class Failure : public std::runtime_error {
 public:
  Failure(Status status, const std::string& file, const std::string& cause)
      : Failure(status, file + ": " + cause) {}

  /// For a message that already names the file.
  Failure(Status status, const std::string& message)
      : std::runtime_error(message), status(status) {}

  Status GetStatus() const { return status; }

 private:
  Status status;
};

}  // namespace command

#endif  // TOOLS_KELIFC_FAILURE_H_
