#ifndef KELIFC_SERVER_SAVE_OPTIONS_H_
#define KELIFC_SERVER_SAVE_OPTIONS_H_

#include <cstdint>

#include "kelifc/server/progress_handler.h"

namespace KelIFC {

/// The result of IfcServer::SaveIfc, which returns it as an int. The numbers are fixed.
enum SAVE_RESULT : std::int32_t {
  SAVE_RESULT_SAVED = 0,           ///< the file was written as a whole
  SAVE_RESULT_CANNOT_WRITE = 1,    ///< the file cannot be created, written to its end, or replaced
  SAVE_RESULT_NO_RELEASE = 2,      ///< the model has no release to be saved in
  SAVE_RESULT_NO_SOURCE = 3,       ///< a faithful save has no source, or cannot read it
  SAVE_RESULT_SOURCE_CHANGED = 4,  ///< the source is not what it was when the model was loaded
  SAVE_RESULT_CANCELLED = 5,       ///< the progress handler stopped the save
};

/// How IfcServer::SaveIfc writes a model.
struct SaveOptions {
  /// Copies what the host did not change from the source of the model: the header except for the
  /// name, the time and the preprocessor version of FILE_NAME, the statements of unchanged
  /// instances, and everything between the statements.
  ///  - The class of a changed instance writes its statement. The statement of a deleted instance
  ///    is left out. New instances follow at the end of the last data section, in ascending order
  ///    of their numbers.
  ///  - Instances that a class added during the load are written if the host changed them, or if a
  ///    statement that a class wrote refers to them.
  ///  - The model must have been loaded by LoadIfc, LoadIfcStream or LoadIfcMemory in the dialect
  ///    of ISO 10303-21. The source is read again, and must still have the same bytes.
  bool faithful = false;

  /// Receives the progress of the save: the instances that are written, or in a faithful save the
  /// bytes of the source that were read in two passes. If it returns false, the result is
  /// SAVE_RESULT_CANCELLED.
  ProgressHandler progress = {};

  /// The number of threads that the save can use, the thread of the caller included; 0 means one
  /// for each processor. The file does not depend on it. Handlers run on the thread of the caller.
  /// If it is not 1, IfcUnknown::Write of different instances can run at the same time, and must
  /// not change the model. A faithful save, a save of a small model, and a save by a class that is
  /// derived from IfcServer use one thread.
  unsigned threads = 1;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_SAVE_OPTIONS_H_
