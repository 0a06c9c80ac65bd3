#include "kelifc/server/instance_writer.h"

#include "kelifc/core/detail/prefetch.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/iso_statement.h"

namespace KelIFC {

void InstanceWriter::WriteBatch(const std::uint64_t* begin, const std::uint64_t* end,
                                std::ostream& out) {
  constexpr std::size_t kWritten = 256;  // bytes of an instance that are prefetched
  for (const std::uint64_t* number = begin; number != end; ++number) {
    detail::Prefetch(&server.items[server.idToIndex.Find(*number)]);
  }
  for (const std::uint64_t* number = begin; number != end; ++number) {
    detail::PrefetchInstance(server.items[server.idToIndex.Find(*number)], kWritten);
  }
  for (const std::uint64_t* number = begin; number != end; ++number) Write(*number, out);
}

void InstanceWriter::Write(std::uint64_t number, std::ostream& out) {
  if (server.dialect == STEP_DIALECT_CLASSIC) return server.WriteInstance(out, number);
  statement.Clear();
  server.WriteInstance(statement, number);
  if (!statement) out.setstate(std::ios::badbit);
  WriteIsoStatement(out, statement.GetText());
}

}  // namespace KelIFC
