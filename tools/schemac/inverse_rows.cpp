#include "tools/schemac/inverse_rows.h"

#include <algorithm>

#include "tools/schemac/attribute_rows.h"

namespace schemac {

namespace {

/// Returns true if a class or one of its bases keeps an attribute that holds references.
bool KeepsReferences(const ReleaseModel& model, const ResolvedClass& type,
                     const std::string& attribute) {
  const auto rows = RowsOf(model, type);
  const bool isOwn = std::any_of(rows.begin(), rows.end(), [&](const AttributeRow& row) {
    return row.name == attribute && row.use == "kKept" && row.kind.rfind("kReference", 0) == 0;
  });
  return isOwn || std::any_of(type.bases.begin(), type.bases.end(), [&](const std::string& base) {
           const ResolvedClass* other = model.Find(base);
           return other != nullptr && KeepsReferences(model, *other, attribute);
         });
}

void Check(const ReleaseModel& model, const Inverse& inverse) {
  const ResolvedClass* entity = model.Find(inverse.entity);
  if (entity == nullptr) {
    throw DescriptionError(inverse.place, "unknown entity '" + inverse.entity + "'");
  }
  if (!KeepsReferences(model, *entity, inverse.attribute)) {
    throw DescriptionError(inverse.place,
                           inverse.entity + " keeps no references in '" + inverse.attribute + "'");
  }
}

}  // namespace

std::vector<InverseRow> InverseRowsOf(const ReleaseModel& model, const ResolvedClass& type) {
  std::vector<InverseRow> rows;
  for (const Inverse& inverse : type.entity->inverses) {
    if (!inverse.releases.Has(model.release)) continue;
    Check(model, inverse);
    rows.push_back({inverse.name, inverse.entity, inverse.attribute});
  }
  return rows;
}

}  // namespace schemac
