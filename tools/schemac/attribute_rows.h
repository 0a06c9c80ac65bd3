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
  std::string reader;   ///< the AttributeReader of a value that the class keeps
  std::string setting;  ///< the AttributeWriter of such a value
  std::string pointer;  ///< the constant of `Kept` that the reader uses; empty for none
  std::string member;   ///< the data member that it points to
};

/// The name of the constant that points to the data member of `attribute`. `Kept` in
/// kelifc/schema/value_reader.h contains these constants.
std::string PointerName(const std::string& attribute);

/// Returns the number of attributes in a statement of a class. Returns 0 for a name that the
/// release does not have.
std::size_t PositionCount(const ReleaseModel& model, std::string_view name);

/// Returns the attributes that a class adds. Its positions in a statement come first. The
/// attributes that are in no statement follow, if a getter returns them.
std::vector<AttributeRow> RowsOf(const ReleaseModel& model, const ResolvedClass& type);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_ATTRIBUTE_ROWS_H_
