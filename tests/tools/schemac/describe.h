#ifndef KELIFC_TESTS_TOOLS_SCHEMAC_DESCRIBE_H_
#define KELIFC_TESTS_TOOLS_SCHEMAC_DESCRIBE_H_

#include <gtest/gtest.h>

#include <string>

#include "tools/schemac/bodies.h"
#include "tools/schemac/emitters.h"
#include "tools/schemac/parser.h"
#include "tools/schemac/resolver.h"

namespace schemac {

inline constexpr std::size_t k151 = 0;
inline constexpr std::size_t k20 = 1;
inline constexpr std::size_t k2x = 2;
inline constexpr std::size_t k2x2 = 3;
inline constexpr std::size_t k2x3 = 4;

/// Returns a description of one family `f` with this body, and with this code that is written by
/// hand.
inline Description Describe(const std::string& body, const std::string& code = "") {
  Description description;
  ParseDescription("f.schema", "family f : A family\n" + body, description);
  ParseBodies("f.inl", code, description);
  return description;
}

/// The model of one release for a body, with the description to which the model refers.
struct Resolved {
  explicit Resolved(const std::string& body, std::size_t release = k2x3)
      : description(Describe(body)), model(Resolve(description, release)) {}

  /// The same with code that is written by hand. The code must be complete.
  Resolved(const std::string& body, const std::string& code, std::size_t release = k2x3)
      : description(Describe(body, code)), model(Resolve(description, release)) {
    AttachBodies(description, model);
  }

  std::string Header() const {
    Files files;
    EmitHeader(model, description.families.front(), files);
    return files.begin()->second;
  }

  std::string Source() const {
    Files files;
    EmitSource(model, description.families.front(), files);
    return files.begin()->second;
  }

  Description description;
  ReleaseModel model;
};

/// Returns the error for a body, or an empty text if the body is accepted.
inline std::string Refusal(const std::string& body, std::size_t release = k2x3) {
  try {
    Resolved resolved(body, release);
    resolved.Header();
    resolved.Source();
  } catch (const DescriptionError& error) {
    return error.what();
  }
  return "";
}

inline bool Holds(const std::string& text, const std::string& piece) {
  return text.find(piece) != std::string::npos;
}

}  // namespace schemac

#endif  // KELIFC_TESTS_TOOLS_SCHEMAC_DESCRIBE_H_
