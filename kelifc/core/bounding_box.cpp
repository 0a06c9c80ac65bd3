#include "kelifc/core/bounding_box.h"

#include "kelifc/core/detail/text_out.h"
#include "kelifc/core/exception.h"
#include "kelifc/core/references/model.h"

namespace KelIFC {

IfcBoundingBox::IfcBoundingBox() = default;
IfcBoundingBox::~IfcBoundingBox() = default;
const char* IfcBoundingBox::GetItemName() { return "IfcBoundingBox"; }
const char* IfcBoundingBox::GetStepName() const { return GetItemName(); }

const char* IfcBoundingBox::Parse(const char* text) {
  text = corner.Parse(IfcUnknown::Parse(text));
  return zDim.Parse(yDim.Parse(xDim.Parse(text)));
}

std::ostream& IfcBoundingBox::Write(std::ostream& out) const {
  IfcUnknown::Write(out);
  corner.Write(out);
  for (const IfcLengthMeasure* measure : {&xDim, &yDim, &zDim}) {
    detail::PutChar(out, ',');
    measure->Write(out);
  }
  return out;
}

const IfcCartesianPoint* IfcBoundingBox::GetCorner() const {
  const auto* point = dynamic_cast<const IfcCartesianPoint*>(corner.GetInstance());
  if (point == nullptr) throw IfcException(CAUSE_MISSING_REFERENCE);
  return point;
}

IfcLengthMeasure IfcBoundingBox::GetXDim() const { return xDim; }
IfcLengthMeasure IfcBoundingBox::GetYDim() const { return yDim; }
IfcLengthMeasure IfcBoundingBox::GetZDim() const { return zDim; }
INTEGER IfcBoundingBox::GetDim() const { return GetCorner()->GetDim(); }

void IfcBoundingBox::SetCorner(IfcCartesianPoint* point) {
  const std::size_t number = FindNumber(GetServer(), point);
  if (number != 0) corner = number;
}

void IfcBoundingBox::SetXDim(IfcLengthMeasure measure) { xDim = measure; }
void IfcBoundingBox::SetYDim(IfcLengthMeasure measure) { yDim = measure; }
void IfcBoundingBox::SetZDim(IfcLengthMeasure measure) { zDim = measure; }

}  // namespace KelIFC
