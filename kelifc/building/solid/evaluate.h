#ifndef KELIFC_BUILDING_SOLID_EVALUATE_H_
#define KELIFC_BUILDING_SOLID_EVALUATE_H_

#include <cstddef>
#include <vector>

#include "kelifc/building/solid/body.h"
#include "kelifc/building/solid/made_mesh.h"
#include "kelifc/building/solid/operation_cache.h"

namespace KelIFC::building {

/// The evaluation of the items of one body. It counts the points that it makes and the items that
/// it visits, so that maps of maps end at the limit.
class Evaluation {
 public:
  /// `done` keeps the results of boolean operations; it may be null.
  Evaluation(const BodyLimits& someLimits, OperationCache* done)
      : limits(someLimits), operations(done) {}

  /// Adds items to a body. Items that cannot be made are left out; the body is not exact then.
  /// Returns false if none can be made, or a limit is reached.
  bool Add(const std::vector<SolidPointer>& items, const Transform3& map, std::size_t depth,
           EvaluatedBody& body);

  /// Why the first item that could not be made could not.
  Unreadable Fault() const { return fault; }

 private:
  bool AddOne(const Solid& solid, const Transform3& map, std::size_t depth, EvaluatedBody& body);
  bool AddMade(MadeMesh made, const Solid& solid, EvaluatedBody& body);
  bool AddMapped(const MappedItems& form, const Transform3& map, std::size_t depth,
                 EvaluatedBody& body);
  bool AddBoolean(const Solid& solid, const BooleanResult& form, const Transform3& map,
                  std::size_t depth, EvaluatedBody& body);
  bool OperateOnce(const BooleanResult& form, std::size_t depth, EvaluatedBody& body);
  bool Reuse(const DoneOperation& done, EvaluatedBody& body);
  bool Operate(const BooleanResult& form, std::size_t depth, EvaluatedBody& body);
  bool CombineWith(const SolidPointer& second, BooleanOperation operation, std::size_t depth,
                   EvaluatedBody& body);
  bool CutByHalfSpace(const HalfSpace& cutter, bool keepsInside, EvaluatedBody& body);
  bool Refuse(LossReason reason, std::size_t at);
  std::size_t PointsLeft() const;

  BodyLimits limits;
  OperationCache* operations = nullptr;
  bool isOperating = false;  // within an operation whose result will be kept
  std::size_t pointCount = 0;
  std::size_t visits = 0;
  bool isOverLimit = false;
  bool hasFault = false;
  Unreadable fault{LossReason::kNoItems, 0};
};

}  // namespace KelIFC::building

#endif  // KELIFC_BUILDING_SOLID_EVALUATE_H_
