#include "kelifc/building/element_enums.h"

#include <array>
#include <cstddef>

#include "kelifc/building/profile.h"

namespace KelIFC {

namespace {

/// The text of an enumerator from a table in the order of the enumerators; empty for a value
/// without one.
template <std::size_t kCount, class E>
std::string_view TextIn(const std::array<std::string_view, kCount>& texts, E value) {
  const auto at = static_cast<std::size_t>(value);
  return at < kCount ? texts[at] : std::string_view();
}

constexpr std::array<std::string_view, 3> kElementKinds = {"member", "surface", "body"};

constexpr std::array<std::string_view, 9> kBodySources = {"extrusion",  "tapered",       "revolved",
                                                          "swept-disk", "swept-curve",   "boolean",
                                                          "brep",       "surface-model", "multi"};

constexpr std::array<std::string_view, 11> kLossReasons = {
    "no-representation",   "no-items", "unsupported-item",
    "unsupported-profile", "dangling", "cycle",
    "degenerate",          "open",     "self-intersecting",
    "not-finite",          "limit"};

constexpr std::array<std::string_view, 3> kCurveForms = {"line", "arc", "polyline"};

constexpr std::array<std::string_view, 15> kProfileShapes = {"arbitrary",
                                                             "rectangle",
                                                             "rounded-rectangle",
                                                             "hollow-rectangle",
                                                             "circle",
                                                             "hollow-circle",
                                                             "ellipse",
                                                             "trapezium",
                                                             "I",
                                                             "asymmetric-I",
                                                             "U",
                                                             "L",
                                                             "T",
                                                             "Z",
                                                             "C"};

constexpr std::array<std::string_view, 3> kOpeningKinds = {"void", "door", "window"};

constexpr std::array<std::string_view, kProfileParameterCount> kParameters = {
    "h", "b", "b1", "d", "t", "tw", "tf", "tf1", "c", "r", "r1", "slope", "offset"};

}  // namespace

std::string_view TextOf(ElementKind kind) { return TextIn(kElementKinds, kind); }
std::string_view TextOf(BodySource source) { return TextIn(kBodySources, source); }
std::string_view TextOf(LossReason reason) { return TextIn(kLossReasons, reason); }
std::string_view TextOf(CurveForm form) { return TextIn(kCurveForms, form); }
std::string_view TextOf(ProfileShape shape) { return TextIn(kProfileShapes, shape); }
std::string_view TextOf(OpeningKind kind) { return TextIn(kOpeningKinds, kind); }
std::string_view TextOf(ProfileParameter parameter) { return TextIn(kParameters, parameter); }

}  // namespace KelIFC
