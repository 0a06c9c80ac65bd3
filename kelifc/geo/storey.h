#ifndef KELIFC_GEO_STOREY_H_
#define KELIFC_GEO_STOREY_H_

#include <string>

#include "kelifc/geo/class_bases.h"
#include "kelifc/geo/fields.h"
#include "kelifc/geo/storey_number.h"
#include "kelifc/platform/guid.h"

namespace KelIFC {

/// A storey. The conversion fills it. What a host writes to it does not change the model.
class CoGeoStorey : public CoGeoStoreyBase {
 public:
  HRESULT get_Height(double* out) override { return GetField(height, out); }
  HRESULT put_Height(double value) override { return PutField(value, &height); }
  HRESULT get_Number(SHORT* out) override { return GetField(number, out); }
  HRESULT get_Name(BSTR* out) override { return GiveModelText(name, dialect, out); }
  HRESULT put_Name(BSTR text) override { return PutModelText(text, dialect, &name); }
  HRESULT get_Level(double* out) override { return GetField(level, out); }

  double level = 0.0;   ///< in the unit of the file
  double height = 0.0;  ///< in the unit of the file
  std::string name;
  STEP_DIALECT dialect = STEP_DIALECT_CLASSIC;  ///< of the name
  SHORT number = kNoStoreyNumber;
  _GUID guid = {};  ///< of the instance in the model; no operation returns it

 protected:
  ~CoGeoStorey() = default;
};

}  // namespace KelIFC

#endif  // KELIFC_GEO_STOREY_H_
