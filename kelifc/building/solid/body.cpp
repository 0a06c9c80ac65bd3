#include "kelifc/building/solid/body.h"

#include <utility>

#include "kelifc/building/solid/evaluate.h"
#include "kelifc/building/solid/made_mesh.h"
#include "kelifc/building/solid/vector_math.h"

namespace KelIFC::building {

namespace {

// Some files have an item for each face, or for some of the faces.
void CloseItems(EvaluatedBody& body) {
  Mesh closed = CloseShell(body.mesh);
  if (closed.IsEmpty()) return;
  body.mesh = std::move(closed);
  body.solidCount = 1;
  body.isClosed = true;
}

}  // namespace

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
  body.isClosed = IsClosed(body.mesh);
  if (!body.isClosed && body.isSurfaceModel && body.solidCount > 1) CloseItems(body);
  body.box = BoxOf(body.mesh);
  body.volume = VolumeOf(body.mesh);
  return result;
}

}  // namespace KelIFC::building
