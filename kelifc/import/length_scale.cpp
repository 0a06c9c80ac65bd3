#include "kelifc/geo/fill.h"
#include "kelifc/import/families.h"
#include "kelifc/import/read_units.h"
#include "kelifc/import/releases.h"

namespace KelIFC {

double LengthScaleOf(IfcServer& server) {
  return ForRelease(server.GetRelease(), 1.0, [&](auto release) {
    return LengthScale(ReadUnits<decltype(release)>(ProjectOf(server, release)));
  });
}

}  // namespace KelIFC
