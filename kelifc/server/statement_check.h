#ifndef KELIFC_SERVER_STATEMENT_CHECK_H_
#define KELIFC_SERVER_STATEMENT_CHECK_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "kelifc/server/detail/number_index.h"
#include "kelifc/server/load_options.h"
#include "kelifc/server/load_report.h"
#include "kelifc/server/release.h"
#include "kelifc/server/statements.h"
#include "kelifc/server/value_walk.h"

namespace KelIFC {

class ScanBuffer;
struct AttributeDescription;
struct EntityDescription;

/// Compares the statements of a file with each other and with the attributes of their entities, for
/// a load report. It takes the file twice.
class StatementCheck {
 public:
  /// Adds to `target`, which must outlive the check.
  StatementCheck(IFC_RELEASE schema, STEP_DIALECT notation, LoadReport& target);

  /// Takes a statement in the first pass: notes its number and its entity.
  void NoteStatement(const Assignment& statement);

  /// Takes a statement in the second pass: notes references to numbers that no statement has, and
  /// attributes that cannot be read as what the schema says. Of an attribute that holds a list the
  /// first bad element counts.
  void CheckStatement(const ScanBuffer& scanner, const Assignment& statement);

 private:
  // An entity that occurs in the file.
  struct Entity {
    std::string name;
    const EntityDescription* description = nullptr;  // null if the release does not have it
  };

  std::uint32_t FindOrAdd(const char* text);
  bool IsStated(std::size_t number) const;
  bool Fits(const FoundValue& value, const AttributeDescription& attribute) const;
  bool FitsAsElement(const FoundValue& value, const AttributeDescription& attribute) const;
  bool LeadsTo(const FoundValue& value, const AttributeDescription& attribute) const;

  IFC_RELEASE release;
  STEP_DIALECT dialect;
  LoadReport& report;
  std::vector<Entity> entities;
  std::unordered_map<std::string, std::uint32_t> positions;  // in `entities`, by name
  detail::NumberIndex stated;                                // from a number to that position
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_STATEMENT_CHECK_H_
