#ifndef KELIFC_TOOLS_SCHEMAC_MARKS_H_
#define KELIFC_TOOLS_SCHEMAC_MARKS_H_

#include <optional>

#include "tools/schemac/release_set.h"
#include "tools/schemac/token_reader.h"

namespace schemac {

// The ways in which a line names releases. Each function throws DescriptionError for any other
// text.

/// Reads releases: `2x..`.
ReleaseSet ReadReleases(TokenReader& in);

/// Reads a mark in brackets, `[2x..]`, if one comes next.
std::optional<ReleaseSet> ReadMark(TokenReader& in);

/// Reads the releases that follow a flag. Without releases, the flag applies to all of `whole`. A
/// release outside of `whole` is refused.
ReleaseSet ReadFlagReleases(TokenReader& in, ReleaseSet whole);

}  // namespace schemac

#endif  // KELIFC_TOOLS_SCHEMAC_MARKS_H_
