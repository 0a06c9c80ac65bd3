#ifndef KELIFC_TOOLS_SCHEMAC_ATTRIBUTE_ROWS_H_
#define KELIFC_TOOLS_SCHEMAC_ATTRIBUTE_ROWS_H_

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "tools/schemac/release_model.h"

namespace schemac {

/// One attribute in the table of attributes. The fields are those of AttributeDescription in
/// kelifc/schema/attribute_table.h; `kind` and `use` are enumerators.
struct AttributeRow {
  static constexpr int kNoPosition = -1;

  std::string name;
  std::string getter;
  std::string setter;
  std::string type;
  int position = kNoPosition;
  std::string kind = "kUnknown";
  std::string use = "kDropped";
  bool isRequired = false;
  bool isWritten = false;
  std::string reader;   ///< the AttributeReader of a value that is kept
  std::string pointer;  ///< the constant of `Kept` that the reader uses; empty for another value
  std::string member;   ///< the data member that it points to
};

/// The name of the constant that points to a data member for `attribute`, in `Kept` of
/// kelifc/schema/value_reader.h.
std::string PointerName(const std::string& attribute);

/// How many attributes a statement of a class has. 0 for a name that the release does not have.
std::size_t PositionCount(const ReleaseModel& model, std::string_view name);

/// The attributes that a class adds: its positions in a statement, then the attributes that are in
/// no statement and that a getter returns.
std::vector<AttributeRow> RowsOf(const ReleaseModel& model, const ResolvedClass& type);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_ATTRIBUTE_ROWS_H_
