#ifndef KELIFC_SERVER_SAVE_OPTIONS_H_
#define KELIFC_SERVER_SAVE_OPTIONS_H_

#include <cstdint>

namespace KelIFC {

/// The result of IfcServer::SaveIfc, which returns it as an int. The numbers are fixed.
enum SAVE_RESULT : std::int32_t {
  SAVE_RESULT_SAVED = 0,         ///< the file was written as a whole
  SAVE_RESULT_CANNOT_WRITE = 1,  ///< the file cannot be created, written to its end, or replaced
  SAVE_RESULT_NO_RELEASE = 2,    ///< the model has no release to be saved in
};

/// How IfcServer::SaveIfc writes a model. There is nothing to choose yet.
struct SaveOptions {};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_SAVE_OPTIONS_H_
