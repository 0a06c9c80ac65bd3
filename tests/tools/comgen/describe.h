#ifndef KELIFC_TESTS_TOOLS_COMGEN_DESCRIBE_H_
#define KELIFC_TESTS_TOOLS_COMGEN_DESCRIBE_H_

#include <gtest/gtest.h>

#include <string>

#include "tools/comgen/emitters.h"
#include "tools/comgen/parser.h"
#include "tools/comgen/resolver.h"

namespace comgen {

/// Identifiers for the descriptions of tests.
inline const std::string kId1 = "{11111111-1111-1111-1111-11111111AAAA}";
inline const std::string kId2 = "{22222222-2222-2222-2222-22222222BBBB}";
inline const std::string kId3 = "{33333333-3333-3333-3333-33333333CCCC}";
inline const std::string kId4 = "{44444444-4444-4444-4444-44444444DDDD}";

/// The first line of every description in these tests. The body starts in line 2.
inline const std::string kLibrary =
    "library LIB {00000000-0000-0000-0000-000000000001} -- A library.\n";

/// Returns the resolved description of a library with this body.
inline Description Describe(const std::string& body) {
  Description description = ParseDescription("f.objects", kLibrary + body);
  Resolve(description);
  return description;
}

/// Returns the message of the error that a body causes, or "" if it is valid.
inline std::string Refusal(const std::string& body) {
  try {
    Describe(body);
  } catch (const schemac::DescriptionError& error) {
    return error.what();
  }
  return "";
}

/// Returns the one file that an emitter generates for a body.
inline std::string Emitted(void (*emit)(const Description&, Files&), const std::string& body) {
  Files files;
  emit(Describe(body), files);
  EXPECT_EQ(files.size(), 1U);
  return files.begin()->second;
}

/// The same for an emitter that writes a version.
inline std::string Emitted(void (*emit)(const Description&, const std::string&, Files&),
                           const std::string& body) {
  Files files;
  emit(Describe(body), "25.1", files);
  EXPECT_EQ(files.size(), 1U);
  return files.begin()->second;
}

}  // namespace comgen

#endif  // KELIFC_TESTS_TOOLS_COMGEN_DESCRIBE_H_
