#ifndef KELIFC_GEO_VERSION_H_
#define KELIFC_GEO_VERSION_H_

#include <string_view>

namespace KelIFC {

/// A version of the library, as the test of compatibility sees it.
struct VersionRecord {
  double major = 0.0;
  double build = 0.0;
  double servicePack = 0.0;
  bool isDebug = false;  ///< takes no part in the test
};

/// Reads "MAJOR.MINOR.BUILD" or "MAJOR.MINOR.PACK.BUILD". A text of fewer than three pieces stands
/// for an old version, 15.47 build 1273. Numbers are read as far as they go.
VersionRecord ParseVersionText(std::string_view text);

/// The version that this library reports, with its service pack.
VersionRecord GetOwnVersion();

/// True if `own` is at least as new as `other`: a newer major version is, an older one, or an older
/// service pack, is not, and then the builds decide.
bool IsCompatible(const VersionRecord& own, const VersionRecord& other);

}  // namespace KelIFC

#endif  // KELIFC_GEO_VERSION_H_
