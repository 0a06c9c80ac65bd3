#ifndef KELIFC_SERVER_LOAD_OPTIONS_H_
#define KELIFC_SERVER_LOAD_OPTIONS_H_

#include <cstdint>
#include <optional>

namespace KelIFC {

/// The rules by which strings and statements of a STEP file are read and written.
enum STEP_DIALECT : std::int32_t {
  /// The rules of this library: a backslash escapes a quote or a backslash, `\X\hh` is a byte, and
  /// a text is bytes without an encoding. A comment is within one line.
  STEP_DIALECT_CLASSIC = 0,
  /// The rules of ISO 10303-21: quotes are doubled, all its escapes are read, and the text of an
  /// attribute is UTF-8. Comments, blanks and line ends can separate any two tokens.
  STEP_DIALECT_ISO = 1,
};

/// The limits of a load. A load that exceeds one ends with LOAD_RESULT_LIMIT_REACHED. 0 means no
/// limit.
struct LoadLimits {
  /// The length of the file in bytes. The default is 8 GiB.
  std::uint64_t maxBytes = std::uint64_t{8} << 30;

  /// The number of instances in the model, including those that classes add while they are parsed.
  /// The default is 134,217,728.
  std::uint64_t maxInstances = std::uint64_t{1} << 27;

  /// The length of one statement in bytes, without comments and line ends. The default is 256 MiB.
  std::uint64_t maxStatementBytes = std::uint64_t{256} << 20;

  /// The memory of the model in bytes. The load estimates it, too high rather than too low, from
  /// the blocks of instances and the length of the statements, and checks it for each block of the
  /// file. The default is 16 GiB.
  std::uint64_t maxMemoryBytes = std::uint64_t{16} << 30;
};

/// How IfcServer::LoadIfc, LoadIfcStream and LoadIfcMemory read a model.
struct LoadOptions {
  /// The rules by which the file is read.
  STEP_DIALECT dialect = STEP_DIALECT_CLASSIC;

  /// The sizes at which the load stops.
  LoadLimits limits;

  /// The number of threads that the load can use, the thread of the caller included; 0 means one
  /// for each processor. The model does not depend on it. Handlers run on the thread of the caller.
  /// A load of a small source, or by a class that is derived from IfcServer, uses one thread.
  unsigned threads = 1;

  /// True if statements of entities that the release does not know are kept as IfcOther in all
  /// releases. If it is not set, the dialect of ISO 10303-21 keeps them, and the classic dialect
  /// keeps them as LoadIfcFile does: in 2x2 and 2x3 only.
  std::optional<bool> keepUnknown;

  /// False if the host needs no report. Then a load in the classic dialect collects none, which
  /// saves 16 bytes for each instance: GetLoadReport and GetStatementPlace return empty values, and
  /// CheckModel returns false. The dialect of ISO 10303-21 always collects the report.
  bool report = true;
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_LOAD_OPTIONS_H_
