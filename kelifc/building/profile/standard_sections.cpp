#include "kelifc/building/profile/standard_sections.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <optional>
#include <span>
#include <utility>

#include "kelifc/building/profile/parameter_table.h"

namespace KelIFC::building {

namespace {

#include "kelifc/building/profile/dimension_tables.inl"

using enum ProfileParameter;

constexpr double kMillimetre = 1e-3;
constexpr double kSquareCentimetre = 1e-4;

// How far sizes may be from those of the tables, in metres. Without fillets there is less evidence,
// so the tolerance is smaller. A wall of a hollow section is thin, so its tolerance is smaller,
// too.
constexpr double kLengthTolerance = 0.5e-3;
constexpr double kSharpLengthTolerance = 0.3e-3;
constexpr double kWallTolerance = 0.25e-3;
constexpr double kFilletTolerance = 1e-3;

using Values = std::initializer_list<std::pair<ProfileParameter, double>>;

ProfileParameters Millimetres(Values values) {
  ProfileParameters parameters = {};
  for (const auto& [parameter, value] : values) {
    ValueOf(parameters, parameter) = value * kMillimetre;
  }
  return parameters;
}

// A size in millimetres, rounded to a hundredth: "100", "6.3".
std::string TextOfSize(double metres) {
  std::array<char, 32> text = {};
  const double size = std::round(metres / kMillimetre * 100.0) / 100.0;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), size).ptr;
  return {text.data(), end};
}

using Sections = std::vector<StandardSection>;

void AddIRows(Sections& sections) {
  for (const IRow& row : kIRows) {
    sections.push_back(
        {row.series + TextOfSize(row.number * kMillimetre), ProfileShape::kI,
         Millimetres({{kH, row.h}, {kB, row.b}, {kTw, row.tw}, {kTf, row.tf}, {kR, row.r}}),
         row.area * kSquareCentimetre});
  }
}

void AddSlopeRows(Sections& sections, ProfileShape shape, std::span<const SlopeRow> rows) {
  for (const SlopeRow& row : rows) {
    ProfileParameters parameters = Millimetres(
        {{kH, row.h}, {kB, row.b}, {kTw, row.tw}, {kTf, row.tf}, {kR, row.r}, {kR1, row.r1}});
    ValueOf(parameters, kSlope) = std::atan(row.slope);
    sections.push_back({row.series + TextOfSize(row.h * kMillimetre), shape, parameters,
                        row.area * kSquareCentimetre});
  }
}

void Add(Sections& sections, ProfileShape shape, const ProfileParameters& parameters, double area) {
  sections.push_back({DesignationOf(shape, parameters), shape, parameters, area});
}

void AddSizeRows(Sections& sections) {
  for (const SizeRow& row : kAngleRows) {
    for (const auto& [t, area] : row.thicknesses) {
      if (t == 0.0) continue;
      Add(sections, ProfileShape::kL,
          Millimetres({{kH, row.h}, {kB, row.b}, {kT, t}, {kR, row.r}, {kR1, row.r / 2.0}}),
          area * kSquareCentimetre);
    }
  }
  for (const SizeRow& row : kHollowRows) {
    for (const auto& [t, area] : row.thicknesses) {
      if (t == 0.0) continue;
      Add(sections, ProfileShape::kHollowRectangle,
          Millimetres({{kH, row.h}, {kB, row.b}, {kT, t}, {kR, 1.5 * t}, {kR1, t}}),
          area * kSquareCentimetre);
    }
  }
}

void AddTubeRows(Sections& sections) {
  for (const TubeRow& row : kTubeRows) {
    for (const double t : row.thicknesses) {
      if (t == 0.0) continue;
      Add(sections, ProfileShape::kHollowCircle, Millimetres({{kD, row.d}, {kT, t}}),
          std::numbers::pi * t * (row.d - t) * kMillimetre * kMillimetre);
    }
  }
}

// The larger leg or side becomes h; an I with equal flanges becomes symmetric.
void MakeCanonical(ProfileShape& shape, ProfileParameters& parameters) {
  double& h = ValueOf(parameters, kH);
  double& b = ValueOf(parameters, kB);
  if ((shape == ProfileShape::kL || shape == ProfileShape::kHollowRectangle) && h < b) {
    std::swap(h, b);
  }
  const auto differ = [&parameters](ProfileParameter one, ProfileParameter other) {
    return !(std::abs(ValueOf(parameters, one) - ValueOf(parameters, other)) < 1e-4);
  };
  if (shape == ProfileShape::kAsymmetricI && !differ(kB, kB1) && !differ(kTf, kTf1) &&
      !differ(kR, kR1)) {
    shape = ProfileShape::kI;
    ValueOf(parameters, kR1) = 0.0;  // of an I, this is the radius of the edges
  }
}

// The largest difference of the lengths other than radii; none if one exceeds its tolerance.
std::optional<double> Difference(const StandardSection& section,
                                 const ProfileParameters& parameters, double tolerance) {
  const bool isHollow = section.shape == ProfileShape::kHollowRectangle ||
                        section.shape == ProfileShape::kHollowCircle;
  double largest = 0.0;
  for (const ProfileParameter parameter : {kH, kB, kD, kT, kTw, kTf}) {
    const double allowed =
        isHollow && parameter == kT ? std::min(tolerance, kWallTolerance) : tolerance;
    const double difference =
        std::abs(ValueOf(parameters, parameter) - ValueOf(section.parameters, parameter));
    if (!(difference <= allowed)) return std::nullopt;
    largest = std::max(largest, difference);
  }
  return largest;
}

}  // namespace

const std::vector<StandardSection>& StandardSections() {
  static const std::vector<StandardSection> sections = [] {
    Sections list;
    AddIRows(list);
    AddSlopeRows(list, ProfileShape::kI, kTaperedIRows);
    AddSlopeRows(list, ProfileShape::kU, kURows);
    AddSizeRows(list);
    AddTubeRows(list);
    return list;
  }();
  return sections;
}

const StandardSection* FindStandardSection(std::string_view designation) {
  for (const StandardSection& section : StandardSections()) {
    if (section.designation == designation) return &section;
  }
  return nullptr;
}

const StandardSection* FindStandardSection(ProfileShape shape,
                                           const ProfileParameters& parameters) {
  ProfileParameters sizes = parameters;
  MakeCanonical(shape, sizes);
  const double fillet = ValueOf(sizes, kR);
  const bool isSharp = HasParameter(shape, kR) && fillet == 0.0;
  const double tolerance = isSharp ? kSharpLengthTolerance : kLengthTolerance;
  const StandardSection* nearest = nullptr;
  double smallest = 0.0;
  for (const StandardSection& section : StandardSections()) {
    if (section.shape != shape) continue;
    if (!isSharp && !(std::abs(fillet - ValueOf(section.parameters, kR)) <= kFilletTolerance)) {
      continue;
    }
    const auto difference = Difference(section, sizes, tolerance);
    if (difference && (nearest == nullptr || *difference < smallest)) {
      nearest = &section;
      smallest = *difference;
    }
  }
  return nearest;
}

bool HasSizesOf(const StandardSection& section, ProfileShape shape,
                const ProfileParameters& parameters) {
  ProfileParameters sizes = parameters;
  MakeCanonical(shape, sizes);
  return section.shape == shape && Difference(section, sizes, kLengthTolerance).has_value();
}

std::string DesignationOf(ProfileShape shape, const ProfileParameters& parameters) {
  const std::string t = TextOfSize(ValueOf(parameters, kT));
  if (shape == ProfileShape::kHollowCircle) {
    return "CHS" + TextOfSize(ValueOf(parameters, kD)) + "x" + t;
  }
  const std::string h = TextOfSize(ValueOf(parameters, kH));
  const std::string b = TextOfSize(ValueOf(parameters, kB));
  const char* series = shape == ProfileShape::kL ? "L" : h == b ? "SHS" : "RHS";
  return series + h + "x" + b + "x" + t;
}

}  // namespace KelIFC::building
