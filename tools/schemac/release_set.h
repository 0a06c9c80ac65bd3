#ifndef KELIFC_TOOLS_SCHEMAC_RELEASE_SET_H_
#define KELIFC_TOOLS_SCHEMAC_RELEASE_SET_H_

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace schemac {

/// What the generator knows about one schema release.
struct ReleaseInfo {
  std::string_view mark;       ///< as descriptions write it: "151"
  std::string_view title;      ///< as people write it: "1.5.1"
  std::string_view nameSpace;  ///< "KelIFC2x3"
  std::string_view folder;     ///< "ifc2x3"
  std::string_view suffix;     ///< ending of the names that belong to it: "2x3"
  std::string_view constant;   ///< its enumerator: "IFC_RELEASE_2X3"
};

inline constexpr std::size_t kReleaseCount = 5;
extern const std::array<ReleaseInfo, kReleaseCount> kReleases;  // in the order of publication

/// The first release that has the label and identifier classes and both forms of a getter.
inline constexpr std::size_t kFirstWithLabels = 3;

/// A set of releases.
class ReleaseSet {
 public:
  static constexpr ReleaseSet All() { return ReleaseSet((1U << kReleaseCount) - 1); }
  static constexpr ReleaseSet None() { return ReleaseSet(0); }

  /// Reads "all", "2x3", "2x..", "..20", "2x..2x2" or a list of these with commas. Returns nullopt
  /// for any other text.
  static std::optional<ReleaseSet> Read(std::string_view text);

  constexpr bool Has(std::size_t release) const { return (bits >> release & 1U) != 0; }
  constexpr bool IsEmpty() const { return bits == 0; }
  constexpr bool Contains(ReleaseSet other) const { return (other.bits & ~bits) == 0; }
  constexpr ReleaseSet operator&(ReleaseSet other) const { return ReleaseSet(bits & other.bits); }
  constexpr ReleaseSet operator|(ReleaseSet other) const { return ReleaseSet(bits | other.bits); }
  constexpr bool operator==(const ReleaseSet&) const = default;

 private:
  explicit constexpr ReleaseSet(unsigned value) : bits(value) {}

  unsigned bits;
};

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_RELEASE_SET_H_
