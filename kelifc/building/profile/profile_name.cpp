#include "kelifc/building/profile/profile_name.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "kelifc/building/profile/parameter_table.h"
#include "kelifc/core/text/ascii.h"

namespace KelIFC::building {

namespace {

using enum ProfileParameter;

// Reads letters and numbers of a name from left to right. Blanks, hyphens and underscores between
// them do not count.
class NameReader {
 public:
  explicit NameReader(std::string_view name) : rest(name) {}

  // Letters in upper case, up to the next number. A sign of multiplication is no letter.
  std::string Letters() {
    std::string letters;
    for (;; rest.remove_prefix(1)) {
      SkipSeparators();
      if (rest.empty() || !ascii::IsLetter(rest.front())) return letters;
      letters += ascii::ToUpperCase(rest.front());
    }
  }

  // One letter that no other letter follows; 0 if there is none.
  char SingleLetter() {
    SkipSeparators();
    if (rest.empty() || !ascii::IsLetter(rest.front())) return 0;
    if (rest.size() > 1 && ascii::IsLetter(rest[1])) return 0;
    const char letter = ascii::ToUpperCase(rest.front());
    rest.remove_prefix(1);
    return letter;
  }

  // A number, with a point or a comma before its fraction.
  std::optional<double> Number() {
    SkipSeparators();
    if (rest.empty() || !ascii::IsDigit(rest.front())) return std::nullopt;
    constexpr double kMost = 1e6;  // no size is larger
    double value = 0.0;
    for (; !rest.empty() && ascii::IsDigit(rest.front()); rest.remove_prefix(1)) {
      value = std::min(kMost, value * 10.0 + (rest.front() - '0'));
    }
    if (rest.size() < 2 || (rest[0] != '.' && rest[0] != ',') || !ascii::IsDigit(rest[1]))
      return value;
    rest.remove_prefix(1);
    double numerator = 0.0;
    double divisor = 1.0;
    for (; !rest.empty() && ascii::IsDigit(rest.front()); rest.remove_prefix(1)) {
      if (divisor >= 1e6) continue;
      numerator = numerator * 10.0 + (rest.front() - '0');
      divisor *= 10.0;
    }
    return value + numerator / divisor;
  }

  // Numbers with signs of multiplication between them; at most four.
  std::vector<double> Numbers() {
    std::vector<double> numbers;
    for (auto number = Number(); number; number = Number()) {
      numbers.push_back(*number);
      if (numbers.size() == 4 || !Times()) break;
    }
    return numbers;
  }

  bool IsAtEnd() {
    SkipSeparators();
    return rest.empty();
  }

 private:
  void SkipSeparators() {
    while (!rest.empty() && (rest.front() == ' ' || rest.front() == '-' || rest.front() == '_' ||
                             rest.front() == '\t')) {
      rest.remove_prefix(1);
    }
  }

  // Skips x, *, / or the sign of multiplication in UTF-8 if a number follows.
  bool Times() {
    const std::string_view before = rest;
    SkipSeparators();
    for (const std::string_view sign : {"x", "X", "*", "/", "\xC3\x97"}) {
      if (rest.substr(0, sign.size()) != sign) continue;
      rest.remove_prefix(sign.size());
      SkipSeparators();
      if (!rest.empty() && ascii::IsDigit(rest.front())) return true;
      break;
    }
    rest = before;
    return false;
  }

  std::string_view rest;
};

enum class Series { kI, kU, kAngle, kBox, kTube, kBoxOrTube };

struct SeriesName {
  std::string_view letters;
  Series series;
  std::string_view standard;  // the letters of the tables, for I and U
};

constexpr SeriesName kSeriesNames[] = {
    {"HEA", Series::kI, "HEA"},      {"IPBL", Series::kI, "HEA"},
    {"HEB", Series::kI, "HEB"},      {"IPB", Series::kI, "HEB"},
    {"HEM", Series::kI, "HEM"},      {"IPBV", Series::kI, "HEM"},
    {"IPE", Series::kI, "IPE"},      {"IPN", Series::kI, "IPN"},
    {"INP", Series::kI, "IPN"},      {"UPN", Series::kU, "UPN"},
    {"UNP", Series::kU, "UPN"},      {"U", Series::kU, "UPN"},
    {"UPE", Series::kU, "UPE"},      {"L", Series::kAngle, "L"},
    {"LNP", Series::kAngle, "L"},    {"SHS", Series::kBox, ""},
    {"RHS", Series::kBox, ""},       {"QRO", Series::kBox, ""},
    {"RRO", Series::kBox, ""},       {"HFSHS", Series::kBox, ""},
    {"HFRHS", Series::kBox, ""},     {"CHS", Series::kTube, ""},
    {"RO", Series::kTube, ""},       {"ROR", Series::kTube, ""},
    {"HFCHS", Series::kTube, ""},    {"TUBE", Series::kBoxOrTube, ""},
    {"HSS", Series::kBoxOrTube, ""}, {"ROHR", Series::kBoxOrTube, ""},
};

const SeriesName* FindSeries(std::string_view letters) {
  for (const SeriesName& name : kSeriesNames) {
    if (name.letters == letters) return &name;
  }
  return nullptr;
}

std::optional<StandardSection> Known(const std::string& designation) {
  const StandardSection* section = FindStandardSection(designation);
  if (section == nullptr) return std::nullopt;
  return *section;
}

// A section of sizes in millimetres, with its area if the tables have it.
std::optional<StandardSection> Sized(ProfileShape shape, double h, double b, double t) {
  StandardSection section;
  section.shape = shape;
  const double smaller = std::min(h, b);
  if (!(t > 0.0 && (shape == ProfileShape::kL ? 1.0 : 2.0) * t < smaller)) return std::nullopt;
  if (shape == ProfileShape::kHollowCircle) {
    ValueOf(section.parameters, kD) = h * 1e-3;
  } else {
    ValueOf(section.parameters, kH) = std::max(h, b) * 1e-3;
    ValueOf(section.parameters, kB) = smaller * 1e-3;
  }
  ValueOf(section.parameters, kT) = t * 1e-3;
  section.designation = DesignationOf(shape, section.parameters);
  if (auto known = Known(section.designation)) return known;
  return section;
}

std::optional<StandardSection> SectionOf(const SeriesName& name, const std::vector<double>& n) {
  const bool isTube =
      name.series == Series::kTube || (name.series == Series::kBoxOrTube && n.size() == 2);
  if (isTube) {
    if (n.size() != 2) return std::nullopt;
    return Sized(ProfileShape::kHollowCircle, n[0], n[0], n[1]);
  }
  const ProfileShape shape =
      name.series == Series::kAngle ? ProfileShape::kL : ProfileShape::kHollowRectangle;
  if (n.size() == 2) return Sized(shape, n[0], n[0], n[1]);
  if (n.size() == 3) return Sized(shape, n[0], n[1], n[2]);
  return std::nullopt;
}

}  // namespace

std::optional<StandardSection> ParseProfileName(std::string_view name) {
  NameReader reader(name);
  std::string letters = reader.Letters();
  const std::vector<double> numbers = reader.Numbers();
  if (numbers.empty()) return std::nullopt;
  if (letters == "HE") {  // HE 220 B
    const char letter = reader.SingleLetter();
    if (letter != 0) letters += letter;
  }
  const SeriesName* series = FindSeries(letters);
  if (series == nullptr) return std::nullopt;
  if (series->series != Series::kI && series->series != Series::kU) {
    return SectionOf(*series, numbers);
  }
  if (numbers.size() != 1 || numbers[0] != static_cast<double>(static_cast<int>(numbers[0]))) {
    return std::nullopt;
  }
  return Known(std::string(series->standard) + std::to_string(static_cast<int>(numbers[0])));
}

std::optional<std::array<double, 2>> ParseTwoNumbers(std::string_view name) {
  NameReader reader(name);
  const std::vector<double> numbers = reader.Numbers();
  if (numbers.size() != 2 || !reader.IsAtEnd()) return std::nullopt;
  return std::array<double, 2>{numbers[0], numbers[1]};
}

}  // namespace KelIFC::building
