#ifndef KELIFC_SERVER_LOAD_OPTIONS_H_
#define KELIFC_SERVER_LOAD_OPTIONS_H_

#include <cstdint>
#include <optional>

namespace KelIFC {

/// The rules by which strings and statements of a STEP file are read and written.
enum STEP_DIALECT : std::int32_t {
  /// The rules of this library: a backslash escapes a quote or a backslash, `\X\hh` is a byte, and
  /// a text is bytes without an encoding. A comment stands on one line.
  STEP_DIALECT_CLASSIC = 0,
  /// The rules of ISO 10303-21: quotes are doubled, all of its escapes are read, and the text of an
  /// attribute is UTF-8. Comments, blanks and line ends stand between any two tokens.
  STEP_DIALECT_ISO = 1,
};

/// What a load may take before it ends with LOAD_RESULT_LIMIT_REACHED. 0 means no limit.
struct LoadLimits {
  /// The length of the file. The default is 8 GiB.
  std::uint64_t maxBytes = std::uint64_t{8} << 30;

  /// The number of instances in the model, those included that classes add while they are read. The
  /// default is 134,217,728.
  std::uint64_t maxInstances = std::uint64_t{1} << 27;

  /// The length of one statement, without comments and line ends. The default is 256 MiB.
  std::uint64_t maxStatementBytes = std::uint64_t{256} << 20;

  /// The memory of the model. It is estimated, rather too high than too low, from the blocks of
  /// instances and from the length of the statements, and looked at for each block of the file. The
  /// default is 16 GiB.
  std::uint64_t maxMemoryBytes = std::uint64_t{16} << 30;
};

/// How IfcServer::LoadIfc, LoadIfcStream and LoadIfcMemory read a model.
struct LoadOptions {
  STEP_DIALECT dialect = STEP_DIALECT_CLASSIC;

  LoadLimits limits;

  /// How many threads the load may use; 0 means one for each processor. The model does not depend
  /// on it. A load uses one thread at present.
  unsigned threads = 0;

  /// Whether statements of entities that the release does not know are kept as IfcOther in all
  /// releases. If it is not set, they are kept in the dialect of ISO 10303-21. In the classic one
  /// they are kept as LoadIfcFile does it: in 2x2 and 2x3 only.
  std::optional<bool> keepUnknown;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_LOAD_OPTIONS_H_
