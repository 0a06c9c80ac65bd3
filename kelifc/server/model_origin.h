#ifndef KELIFC_SERVER_MODEL_ORIGIN_H_
#define KELIFC_SERVER_MODEL_ORIGIN_H_

#include <cstddef>
#include <cstdint>
#include <memory>
#include <unordered_map>

#include "kelifc/server/model_source.h"
#include "kelifc/server/replaced_ids.h"

namespace KelIFC {

/// What a faithful save needs to know of the load that made the model.
class ModelOrigin {
 public:
  std::shared_ptr<const ModelSource> source;

  // Positions in the registry: statements made the instances below the first one, and classes
  // added the instances from there to the second one.
  std::size_t statedEnd = 0;
  std::size_t addedEnd = 0;

  // By number, how many statements follow that have the same one.
  std::unordered_map<std::size_t, std::size_t> repeats;
  ReplacedIds replacedIds;
  bool keepsUnknown = true;  // statements without a class, as IfcOther
};

}  // namespace KelIFC

#endif  // KELIFC_SERVER_MODEL_ORIGIN_H_
