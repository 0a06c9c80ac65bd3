#include "kelifc/building/solid/body.h"

#include <algorithm>

#include "kelifc/building/solid/evaluate.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

BodyResult EvaluateBody(const std::vector<SolidPointer>& items, const Transform3& placement,
                        const BodyLimits& limits, OperationCache* operations) {
  BodyResult result;
  Evaluation evaluation(limits, operations);
  EvaluatedBody& body = result.body;
  if (!evaluation.Add(items, placement, 0, body)) {
    result.body = EvaluatedBody();
    result.fault = evaluation.Fault();
    return result;
  }
  body.box = BoxOf(body.mesh);
  body.volume = VolumeOf(body.mesh);
  body.isClosed = IsClosed(body.mesh);
  return result;
}

}  // namespace KelIFC::building
