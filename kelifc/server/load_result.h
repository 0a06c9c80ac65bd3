#ifndef KELIFC_SERVER_LOAD_RESULT_H_
#define KELIFC_SERVER_LOAD_RESULT_H_

#include <cstdint>

namespace KelIFC {

/// The result of IfcServer::LoadIfcFile, which returns it as an int. The numbers are fixed.
enum LOAD_RESULT : std::int32_t {
  LOAD_RESULT_LOADED = 0,          ///< the model was loaded
  LOAD_RESULT_CANNOT_OPEN = 1,     ///< no file that can be read, or the progress handler stopped
  LOAD_RESULT_NO_STEP_FILE = 2,    ///< the file does not begin as a STEP file
  LOAD_RESULT_UNKNOWN_SCHEMA = 3,  ///< the schema is unknown, and the server has no release
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_LOAD_RESULT_H_
