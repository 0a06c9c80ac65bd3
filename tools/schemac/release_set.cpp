#include "tools/schemac/release_set.h"

namespace schemac {

const std::array<ReleaseInfo, kReleaseCount> kReleases = {{
    {"151", "1.5.1", "KelIFC151", "ifc151", "151", "IFC_RELEASE_151"},
    {"20", "2.0", "KelIFC20", "ifc20", "20", "IFC_RELEASE_20"},
    {"2x", "2x", "KelIFC2x", "ifc2x", "2x", "IFC_RELEASE_2X"},
    {"2x2", "2x2", "KelIFC2x2", "ifc2x2", "2x2", "IFC_RELEASE_2X2"},
    {"2x3", "2x3", "KelIFC2x3", "ifc2x3", "2x3", "IFC_RELEASE_2X3"},
}};

namespace {

std::optional<std::size_t> ReleaseOf(std::string_view mark) {
  for (std::size_t i = 0; i < kReleaseCount; ++i) {
    if (kReleases[i].mark == mark) return i;
  }
  return std::nullopt;
}

}  // namespace

std::optional<ReleaseSet> ReleaseSet::Read(std::string_view text) {
  if (text == "all") return All();
  if (const auto comma = text.find(','); comma != std::string_view::npos) {
    const auto first = Read(text.substr(0, comma));
    const auto rest = Read(text.substr(comma + 1));
    if (!first || !rest) return std::nullopt;
    return *first | *rest;
  }
  std::optional<std::size_t> from = 0;
  std::optional<std::size_t> to = kReleaseCount - 1;
  if (const auto dots = text.find(".."); dots != std::string_view::npos) {
    if (text.size() == 2) return std::nullopt;
    if (dots > 0) from = ReleaseOf(text.substr(0, dots));
    if (dots + 2 < text.size()) to = ReleaseOf(text.substr(dots + 2));
  } else {
    from = to = ReleaseOf(text);
  }
  if (!from || !to || *from > *to) return std::nullopt;
  unsigned bits = 0;
  for (std::size_t i = *from; i <= *to; ++i) bits |= 1U << i;
  return ReleaseSet(bits);
}

}  // namespace schemac
