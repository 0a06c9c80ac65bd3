#ifndef KELIFC_SERVER_MADE_STATEMENT_H_
#define KELIFC_SERVER_MADE_STATEMENT_H_

#include <cstddef>
#include <cstdint>
#include <memory>

#include "kelifc/core/unknown.h"
#include "kelifc/server/release_tables.h"
#include "kelifc/server/report_collector.h"
#include "kelifc/server/statement_place.h"

namespace KelIFC {

/// A numbered statement of the first pass whose instance is not registered yet.
struct MadeStatement {
  std::unique_ptr<IfcUnknown> made;  ///< null if the statement is left out
  std::size_t number = 0;            ///< of the instance
  StatementPlace place;              ///< in the source
  std::uint32_t column = 0;          ///< of the place
  StatedAs kind = StatedAs::kNothing;
  ListedAs listed = ListedAs::kNothing;  ///< in which lists the registry has the instance
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_MADE_STATEMENT_H_
