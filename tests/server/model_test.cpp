#include "kelifc/core/references/model.h"

#include <gtest/gtest.h>

#include "kelifc/server/ifc_server.h"

#include "tests/server/probe.h"

namespace KelIFC {
namespace {

TEST(Model, ReturnsNullWithoutAServer) {
  EXPECT_EQ(FindInstance(nullptr, 1), nullptr);
  EXPECT_EQ(FindNumber(nullptr, nullptr), 0u);
  const char* end = nullptr;
  EXPECT_EQ(ParseInstance(nullptr, "IFCCARTESIANPOINT(1)", &end), nullptr);
  Probe probe;
  EXPECT_EQ(AddInstance(nullptr, &probe), 0u);
}

TEST(Model, CallsTheOperationsOfTheServer) {
  IfcServer server;
  auto* probe = new Probe;
  EXPECT_EQ(AddInstance(&server, probe), 1u);
  EXPECT_EQ(FindInstance(&server, 1), probe);
  EXPECT_EQ(FindNumber(&server, probe), 1u);
  const char* text = "IFCCARTESIANPOINT(1)";
  const char* end = nullptr;
  const IfcUnknown* point = ParseInstance(&server, text, &end);
  EXPECT_NE(point, nullptr);
  EXPECT_EQ(end, text + 17);
  delete point;
}

}  // namespace
}  // namespace KelIFC
