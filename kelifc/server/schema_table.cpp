#include "kelifc/server/schema_table.h"

#include <string>

#include "kelifc/core/text/ascii.h"

namespace KelIFC {
namespace {

struct SchemaRow {
  std::string_view schema;
  IFC_RELEASE release;
};

// The order is important: a save uses the first row of a release.
constexpr SchemaRow kSchemaTable[] = {
    {"IFC20_LONGFORM", IFC_RELEASE_20}, {"IFC151", IFC_RELEASE_151},
    {"IFC2X_FINAL", IFC_RELEASE_2X},    {"IFC2X2_FINAL", IFC_RELEASE_2X2},
    {"IFC2X3", IFC_RELEASE_2X3},        {"IFC2X3_FINAL", IFC_RELEASE_2X3},
};

// The beginnings of the schema strings of later releases. IFC2X4 was the name of the draft of IFC4.
constexpr std::string_view kLaterSchemas[] = {"IFC4", "IFC2X4"};

// Returns the first word of a text, in upper case.
std::string FirstWord(std::string_view text) {
  std::string word;
  for (const char c : text) {
    if (c != ' ') {
      word += ascii::ToUpperCase(c);
    } else if (!word.empty()) {
      break;
    }
  }
  return word;
}

}  // namespace

IFC_RELEASE FindRelease(std::string_view schema) {
  for (const SchemaRow& row : kSchemaTable) {
    if (row.schema == schema) return row.release;
  }
  return IFC_RELEASE_NONE;
}

IFC_RELEASE FindReleaseInAnyCase(std::string_view schema) { return FindRelease(FirstWord(schema)); }

bool IsLaterSchema(std::string_view schema) {
  const std::string word = FirstWord(schema);
  for (const std::string_view later : kLaterSchemas) {
    if (word.compare(0, later.size(), later) == 0) return true;
  }
  return false;
}

std::string_view GetSchemaString(IFC_RELEASE release) {
  for (const SchemaRow& row : kSchemaTable) {
    if (row.release == release) return row.schema;
  }
  return {};
}

}  // namespace KelIFC
