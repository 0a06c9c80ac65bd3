#ifndef KELIFC_SERVER_INSTANCE_WRITER_H_
#define KELIFC_SERVER_INSTANCE_WRITER_H_

#include <cstddef>
#include <cstdint>
#include <ostream>

#include "kelifc/server/text_stream.h"

namespace KelIFC {

class IfcServer;

/// Writes instances of a model as statements, in the dialect of the model.
class InstanceWriter {
 public:
  /// Instances are written in batches of at most so many.
  static constexpr std::size_t kBatch = 32;

  /// `model` must outlive this object.
  explicit InstanceWriter(IfcServer& model) : server(model) {}

  /// Writes the instances with the numbers [begin, end), at most kBatch. The memory of all of them
  /// is prefetched first: if the numbers of a model are in no order, each instance is somewhere
  /// else in memory.
  void WriteBatch(const std::uint64_t* begin, const std::uint64_t* end, std::ostream& out);

 private:
  void Write(std::uint64_t number, std::ostream& out);

  IfcServer& server;
  TextStream statement;  // in the notation of the values
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_INSTANCE_WRITER_H_
