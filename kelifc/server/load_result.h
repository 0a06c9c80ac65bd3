#ifndef KELIFC_SERVER_LOAD_RESULT_H_
#define KELIFC_SERVER_LOAD_RESULT_H_

#include <cstdint>

namespace KelIFC {

/// The result of a load, which returns it as an int. The numbers are fixed. Those from 4 on are
/// results of the loads with options only.
enum LOAD_RESULT : std::int32_t {
  LOAD_RESULT_LOADED = 0,          ///< the model was loaded
  LOAD_RESULT_CANNOT_OPEN = 1,     ///< no file that can be read, or the progress handler stopped
  LOAD_RESULT_NO_STEP_FILE = 2,    ///< the file does not begin as a STEP file
  LOAD_RESULT_UNKNOWN_SCHEMA = 3,  ///< the schema is unknown, and the server has no release
  LOAD_RESULT_LIMIT_REACHED = 4,   ///< the file exceeds a limit of the options
  LOAD_RESULT_CANCELLED = 5,       ///< the progress handler stopped the load
  LOAD_RESULT_UNSUPPORTED_RELEASE = 6,  ///< the release is a later one; GetFileSchema names it
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_LOAD_RESULT_H_
