#ifndef KELIFC_SERVER_REPORTED_VERSION_H_
#define KELIFC_SERVER_REPORTED_VERSION_H_

namespace KelIFC {

/// The version that the header of a saved file and the object model report. Hosts compare it, so it
/// does not change with the version of the package.
inline constexpr char kReportedVersion[] = "25.0.3857";

}  // namespace KelIFC

#endif  // KELIFC_SERVER_REPORTED_VERSION_H_
