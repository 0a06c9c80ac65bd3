#include "kelifc/geo/version.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>

#include "kelifc/core/text/ascii.h"
#include "kelifc/core/text/number_text.h"
#include "kelifc/server/reported_version.h"

namespace KelIFC {

namespace {

constexpr std::string_view kDebugMark = "debug";
constexpr double kServicePack = 5.0;

/// Numbers of versions are equal if they differ by less than this.
constexpr double kTolerance = 0.001;

using Pieces = std::array<std::string, 5>;

/// Returns the parts between the dots. The part after the fifth dot is ignored.
Pieces Split(std::string_view text) {
  Pieces pieces;
  for (std::string& piece : pieces) {
    const std::size_t dot = text.find('.');
    piece = text.substr(0, dot);
    if (dot == std::string_view::npos) break;
    text.remove_prefix(dot + 1);
  }
  return pieces;
}

double RealOf(const std::string& text) {
  const char* end = nullptr;
  return ReadReal(text.c_str(), &end);
}

double WholeOf(const std::string& text) {
  const char* end = nullptr;
  return ReadInteger(text.c_str(), &end);
}

bool IsDebugText(std::string_view text) {
  const std::string lower = ascii::ToLowerCase(text);
  const std::size_t at = lower.find(kDebugMark);
  return at != std::string::npos && at > 0;
}

}  // namespace

VersionRecord ParseVersionText(std::string_view text) {
  VersionRecord version = {15.47, 1273.0, 0.0, IsDebugText(text)};
  const Pieces pieces = Split(text);
  const auto isGiven = [](const std::string& piece) { return !piece.empty(); };
  const auto count = std::count_if(pieces.begin(), pieces.end(), isGiven);
  if (count >= 3) {
    version.major = RealOf(pieces[0] + "." + pieces[1]);
    version.build = WholeOf(*std::find_if(pieces.rbegin(), pieces.rend(), isGiven));
  }
  if (count >= 4) version.servicePack = RealOf(pieces[2]);
  return version;
}

VersionRecord GetOwnVersion() {
  VersionRecord version = ParseVersionText(kReportedVersion);
  version.servicePack = kServicePack;
  return version;
}

bool IsCompatible(const VersionRecord& own, const VersionRecord& other) {
  if (own.major > other.major + kTolerance) return true;
  if (other.major - kTolerance > own.major) return false;
  if (other.servicePack - kTolerance > own.servicePack) return false;
  return own.build >= other.build - kTolerance;
}

}  // namespace KelIFC
