#include "kelifc/geo/fill.h"
#include "kelifc/import/model/all_releases.h"
#include "kelifc/import/model/for_release.h"
#include "kelifc/import/model/read_units.h"

namespace KelIFC {

double LengthScaleOf(IfcServer& server) {
  return ForRelease(server.GetRelease(), 1.0, [&](auto release) {
    return LengthScale(ReadUnits<decltype(release)>(ProjectOf(server, release)));
  });
}

}  // namespace KelIFC
