#include "kelifc/server/schema_table.h"

namespace KelIFC {
namespace {

struct SchemaRow {
  std::string_view schema;
  IFC_RELEASE release;
};

// The order counts: saving takes the first row of a release.
constexpr SchemaRow kSchemaTable[] = {
    {"IFC20_LONGFORM", IFC_RELEASE_20}, {"IFC151", IFC_RELEASE_151},
    {"IFC2X_FINAL", IFC_RELEASE_2X},    {"IFC2X2_FINAL", IFC_RELEASE_2X2},
    {"IFC2X3", IFC_RELEASE_2X3},        {"IFC2X3_FINAL", IFC_RELEASE_2X3},
};

}  // namespace

IFC_RELEASE FindRelease(std::string_view schema) {
  for (const SchemaRow& row : kSchemaTable) {
    if (row.schema == schema) return row.release;
  }
  return IFC_RELEASE_NONE;
}

std::string_view GetSchemaString(IFC_RELEASE release) {
  for (const SchemaRow& row : kSchemaTable) {
    if (row.release == release) return row.schema;
  }
  return {};
}

}  // namespace KelIFC
