#include "tools/schemac/marks.h"

namespace schemac {

namespace {

ReleaseSet ToReleases(const std::string& word, const Place& place) {
  const auto releases = ReleaseSet::Read(word);
  if (!releases) throw DescriptionError(place, "'" + word + "' does not name releases");
  return *releases;
}

}  // namespace

ReleaseSet ReadReleases(TokenReader& in) {
  const Place place = in.Here();
  return ToReleases(in.Word("releases"), place);
}

std::optional<ReleaseSet> ReadMark(TokenReader& in) {
  if (!in.Take("[")) return std::nullopt;
  const Place place = in.Here();
  const std::string word = in.Until("]");
  in.Expect("]");
  return ToReleases(word, place);
}

ReleaseSet ReadFlagReleases(TokenReader& in, ReleaseSet whole) {
  const Place place = in.Here();
  TokenReader ahead = in;
  if (ahead.AtEnd() || !ReleaseSet::Read(ahead.Word("releases"))) return whole;
  const ReleaseSet releases = ReadReleases(in);
  if (!whole.Contains(releases)) {
    throw DescriptionError(place, "a release that the entry does not have");
  }
  return releases;
}

}  // namespace schemac
