#ifndef KELIFC_TESTS_IMPORT_RELEASE_TEST_H_
#define KELIFC_TESTS_IMPORT_RELEASE_TEST_H_

#include <gtest/gtest.h>

#include <string>

#include "kelifc/import/model/for_release.h"

#include "tests/geo/host.h"
#include "tests/geo/model_text.h"

namespace KelIFC {

/// The three releases that can be converted. A typed test of the conversion runs once for each of
/// them, with the same model text.
using ConvertedReleases = testing::Types<Release2x, Release2x2, Release2x3>;

inline const char* SchemaOf(Release2x) { return "IFC2X_FINAL"; }
inline const char* SchemaOf(Release2x2) { return "IFC2X2_FINAL"; }
inline const char* SchemaOf(Release2x3) { return "IFC2X3"; }

/// A test that loads models of one release. All objects must be released when it ends.
template <class Release>
class ReleaseTest : public HostTest {
 protected:
  static ComPtr<IIFCServer> Load(const std::string& data) {
    return LoadModel(SchemaOf(Release()), data);
  }
};

}  // namespace KelIFC

#endif  // KELIFC_TESTS_IMPORT_RELEASE_TEST_H_
