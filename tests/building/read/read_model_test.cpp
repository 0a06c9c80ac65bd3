#include "kelifc/building/read/read_model.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "kelifc/core/unknown.h"

#include "tests/building/read/model_text.h"
#include "tests/model_files.h"

namespace KelIFC::building {
namespace {

// What all instances of a model write, in the order of their numbers.
std::string WrittenBy(IfcServer& server) {
  std::ostringstream out;
  for (std::size_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) {
    out << '#' << n << '=';
    if (const IfcUnknown* item = server.GetItem(n)) item->Write(out);
    out << '\n';
  }
  return out.str();
}

TEST(ReadModel, IsEmptyForOtherReleasesAndEmptyModels) {
  IfcServer server;
  EXPECT_TRUE(ReadModel(server, {}).products.empty());
  server.SetRelease(IFC_RELEASE_20);
  EXPECT_EQ(ReadModel(server, {}).head.release, IFC_RELEASE_NONE);
  server.SetRelease(IFC_RELEASE_2X3);
  EXPECT_TRUE(ReadModel(server, {}).products.empty());
}

TEST(ReadModel, ReadsModelsThatWereBuiltInMemory) {
  IfcServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  server.CreateItem("IFCWALL");
  const ModelFacts facts = ReadModel(server, {});
  ASSERT_EQ(facts.products.size(), 1U);
  EXPECT_EQ(facts.products[0].line, 0U);
  ASSERT_TRUE(facts.products[0].fault);
  EXPECT_EQ(facts.products[0].fault->reason, LossReason::kNoRepresentation);
}

TEST(ReadModel, SkipsDeletedInstances) {
  ReadText read = ReadData(CommonText() + ColumnText() +
                           "#30=IFCEXTRUDEDAREASOLID(#14,#11,#13,3000.);"
                           "#31=IFCCOLUMN('c',$,'C1',$,$,$,#21,'T');");
  read.server->DeleteItem(read.server->GetItem(std::size_t{31}));
  read.server->DeleteItem(read.server->GetItem(std::size_t{30}));
  const ModelFacts facts = ReadModel(*read.server, {});
  ASSERT_EQ(facts.products.size(), 1U);
  ASSERT_EQ(facts.products[0].items.size(), 1U);
  EXPECT_EQ(std::get<Unreadable>(facts.products[0].items[0]->form).reason, LossReason::kDangling);
}

TEST(ReadModel, ReadsRealModelsAndDoesNotChangeThem) {
  if (RealModels().empty()) GTEST_SKIP() << kNoRealModels;
  for (const std::filesystem::path& path : RealModels()) {
    IfcServer server;
    LoadOptions options;
    options.dialect = STEP_DIALECT_ISO;
    ASSERT_EQ(server.LoadIfc(path.string().c_str(), options), 0) << path;
    const std::string before = WrittenBy(server);
    const ModelFacts facts = ReadModel(server, {});
    EXPECT_EQ(WrittenBy(server), before) << path;
    const bool isRead = server.GetRelease() >= IFC_RELEASE_2X;
    EXPECT_EQ(facts.products.empty(), !isRead) << path;
    for (const ProductFacts& product : facts.products) {
      EXPECT_NE(product.items.empty(), !product.fault) << path << ' ' << product.id;
      EXPECT_TRUE(!product.items.empty() || product.hasProductParts) << path << product.id;
      for (const SolidPointer& item : product.items) {
        ASSERT_NE(item, nullptr);
        EXPECT_FALSE(std::holds_alternative<Unreadable>(item->form)) << path << ' ' << item->id;
      }
    }
  }
}

}  // namespace
}  // namespace KelIFC::building
