#ifndef KELIFC_GEO_VERSION_H_
#define KELIFC_GEO_VERSION_H_

#include <string_view>

namespace KelIFC {

/// A version of the library, for the test of compatibility.
struct VersionRecord {
  double major = 0.0;
  double build = 0.0;
  double servicePack = 0.0;
  bool isDebug = false;  ///< not compared
};

/// Reads "MAJOR.MINOR.BUILD" or "MAJOR.MINOR.PACK.BUILD". A text with fewer than three non-empty
/// parts means version 15.47, build 1273. Non-numeric text reads as 0.
VersionRecord ParseVersionText(std::string_view text);

/// Returns the version that this library reports, with its service pack.
VersionRecord GetOwnVersion();

/// Returns true if `own` is at least as new as `other`. The major version is compared first, then
/// the service pack, then the build. A newer service pack does not outweigh an older build.
bool IsCompatible(const VersionRecord& own, const VersionRecord& other);

}  // namespace KelIFC

#endif  // KELIFC_GEO_VERSION_H_
