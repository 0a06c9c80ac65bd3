#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <thread>
#include <vector>

#include "kelifc/schema/ifc2x3.h"
#include "kelifc/server/block_size.h"
#include "kelifc/server/ifc_server.h"

#include "tests/server/load_text.h"
#include "tests/server/threads/model_text.h"

// A load on several threads has the same results as on one. The texts are short, so they are cut
// into pieces of a few bytes.

namespace KelIFC {
namespace {

/// The options that decide how a statement finds its instance.
struct Way {
  STEP_DIALECT dialect;
  bool report;
  std::vector<std::size_t> blockSizes;
};

const Way kWays[] = {{STEP_DIALECT_CLASSIC, true, {16, 100, 1000}},
                     {STEP_DIALECT_CLASSIC, false, {100}},
                     {STEP_DIALECT_ISO, true, {16, 100, 1000}}};
const char* const kSchemas[] = {"IFC151", "IFC20_LONGFORM", "IFC2X_FINAL", "IFC2X2_FINAL",
                                "IFC2X3"};
constexpr std::size_t kNoEnd = static_cast<std::size_t>(-1);

std::string DescriptionOf(LoadedModel& model, bool hasProgress) {
  if (!hasProgress) model.progress.clear();
  return Describe(model);
}

/// Expects the same results with one thread and with more, in each way to load a model.
void ExpectSame(const std::string& text, LoadOptions options = {}, std::size_t mostCalls = kNoEnd,
                bool hasProgress = true) {
  for (const auto& [dialect, report, blockSizes] : kWays) {
    options.dialect = dialect;
    options.report = report;
    for (const std::size_t size : blockSizes) {
      const BlockSizeScope scope(size);
      options.threads = 1;
      LoadedModel expected = LoadText(text, options, mostCalls);
      for (const unsigned threads : {2U, 3U}) {
        options.threads = threads;
        LoadedModel model = LoadText(text, options, mostCalls);
        EXPECT_EQ(FirstDifference(DescriptionOf(model, hasProgress),
                                  DescriptionOf(expected, hasProgress)),
                  "")
            << threads << " threads, blocks of " << size << " bytes, dialect " << dialect
            << ", report " << report;
        for (const bool faithful : {false, true}) {
          EXPECT_EQ(FirstDifference(SavedData(*model.server, faithful),
                                    SavedData(*expected.server, faithful)),
                    "");
        }
      }
    }
  }
}

/// The record of an entity that is rooted, up to the attributes of its own.
std::string Root(std::size_t number, const std::string& entity, const std::string& id) {
  const std::string identifier = std::string(22 - id.size(), '0') + id;
  return "#" + std::to_string(number) + "=" + entity + "('" + identifier + "',$,'n',$,";
}

std::string WallModel(const std::string& schema, std::size_t count) {
  std::string text = HeadOf(schema);
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t n = 10 * i + 1;
    const auto ref = [n](std::size_t offset) { return "#" + std::to_string(n + offset); };
    const std::string id = std::to_string(i);
    text += ref(0) + "=IFCCARTESIANPOINT((" + std::to_string(i) + ".,2.5E-3));\n";
    text += ref(1) + "=IFCDIRECTION((1.,0.));\r\n";
    text += ref(2) + "=IFCAXIS2PLACEMENT2D(" + ref(0) + "," + ref(1) + ");\n";
    text += Root(n + 3, "IFCWALL", "1" + id) + "$,$,$,'t;#" + id + "=');\n";
    text += Root(n + 4, "IFCOPENINGELEMENT", "2" + id) + "$,$,$,$);\n";
    text += Root(n + 5, "IFCDOOR", "3" + id) + "$,$,$,$,2.,1.);\n";
    // The relations refer to instances before and after them.
    text += Root(n + 6, "IFCRELVOIDSELEMENT", "4" + id) + ref(3) + "," + ref(4) + ");\n";
    text += Root(n + 7, "IFCRELFILLSELEMENT", "5" + id) + ref(4) + "," + ref(5) + ");\n";
    text += Root(n + 8, "IFCRELDEFINESBYPROPERTIES", "6" + id) + "(" + ref(3) + "," + ref(13) +
            "),$);\n";
    text += ref(9) + "=IFCPROPERTYSINGLEVALUE('a','b''c',IFCLABEL('it''s'),$);\n";
  }
  return text + "ENDSEC;\nEND-ISO-10303-21;\n";
}

TEST(Threads, LoadTheSameModelsOfAllReleases) {
  for (const char* const schema : kSchemas) ExpectSame(WallModel(schema, 12));
}

TEST(Threads, FillInverseAttributesAndAddInstances) {
  const BlockSizeScope scope(64);
  LoadOptions options;
  options.threads = 3;
  const LoadedModel model = LoadText(WallModel("IFC2X3", 12), options);
  auto* const wall = dynamic_cast<KelIFC2x3::IfcWall*>(model.server->GetItem(14));
  ASSERT_NE(wall, nullptr);
  EXPECT_EQ(wall->GetHasOpenings().GetSize(), 1U);
  EXPECT_EQ(wall->GetIsDefinedBy().GetSize(), 2U);
  EXPECT_TRUE(model.server->GetSupportsFillings());
  EXPECT_EQ(model.server->GetLoadReport().added, 12U);
}

TEST(Threads, LoadTheSameModelOfRepeatedNumbers) {
  std::string text = HeadOf("IFC2X3");
  for (int i = 0; i < 40; ++i) {
    text += "#" + std::to_string(i % 7 + 1) + "=IFCCARTESIANPOINT((" + std::to_string(i) + ".));\n";
    if (i % 5 == 0) text += "#" + std::to_string(i + 1) + "=IFCDIRECTION((1.,0.));";
  }
  ExpectSame(text);
}

TEST(Threads, LoadTheSameModelOfUnknownClasses) {
  for (const char* const schema : kSchemas) {
    std::string text = HeadOf(schema);
    for (int i = 1; i < 40; ++i) {
      const std::string number = "#" + std::to_string(i);
      text += number + (i % 3 == 0 ? "=IFCFOO(1,'a');\n" : "=IFCCARTESIANPOINT((1.,2.));\n");
      if (i % 13 == 0) text += number + "=IFCBAR((2.));\n";  // in use, or used before
    }
    ExpectSame(text);
    LoadOptions options;
    options.keepUnknown = true;
    ExpectSame(text, options);
  }
}

TEST(Threads, LoadPlacementsWhosePointsComeLater) {
  std::string text = HeadOf("IFC2X3");
  for (int i = 1; i < 30; ++i) {
    text += "#" + std::to_string(i) + "=IFCAXIS2PLACEMENT2D(#" + std::to_string(101 + i * 7 % 30) +
            ",$);\n";
    text += "#" + std::to_string(100 + i) + "=IFCCARTESIANPOINT((1.,2.));\n";
  }
  ExpectSame(text);
}

TEST(Threads, LoadCommentsAndStringsThatContainTheEndsOfStatements) {
  std::string text = HeadOf("IFC2X3");
  for (int i = 1; i < 30; ++i) {
    const std::string number = "#" + std::to_string(i);
    text += number + "=IFCPERSON('a;\n#7=b',/* ;\n#8=IFCFOO();\n */$,'it''s;',$,$,$,$,$);\n";
    text += "/* " + std::string(static_cast<std::size_t>(i) * 11, '*') + ";\n#9=X; */\n";
    text += "#" + std::to_string(100 + i) + "=IFCCARTESIANPOINT((1.,/* ;#5=A(); */2.));";
  }
  ExpectSame(text);
}

TEST(Threads, LoadStatementsWithoutEnds) {
  std::string text = HeadOf("IFC2X3");
  for (int i = 1; i < 30; ++i) {
    const std::string number = "#" + std::to_string(i);
    text += number + "=IFCCARTESIANPOINT((1.,2.))" + (i % 9 == 0 ? "\n" : ";\n");
    if (i % 11 == 0) text += "#" + std::to_string(100 + i) + "=IFCPERSON('open;\n";
  }
  // The scanner reads the begin of the next statement, which can be in the next block.
  ExpectSame(text, {}, kNoEnd, false);
}

TEST(Threads, LoadStringsWithBadEscapes) {
  std::string text = "\xEF\xBB\xBF" + HeadOf("IFC2X3");
  for (int i = 1; i < 150; ++i) {
    text += "\n  #" + std::to_string(i) + "=IFCPERSON('\\X\\zz','\\S\\'',$,$,$,$,$,$);";
  }
  ExpectSame(text);
}

TEST(Threads, LoadTruncatedFiles) {
  const std::string text = WallModel("IFC2X3", 3);
  for (std::size_t size = 0; size < text.size(); size += 293) ExpectSame(text.substr(0, size));
}

TEST(Threads, LoadFilesInOneLine) {
  std::string text = WallModel("IFC2X3", 6);
  std::erase(text, '\n');
  std::erase(text, '\r');
  ExpectSame(text);
}

TEST(Threads, LoadNumbersInNoOrder) {
  std::string text = HeadOf("IFC2X3");
  for (std::size_t i = 1; i < 100; ++i) {
    text += "#" + std::to_string(i * 7919 % 10007 * 1000) + "=IFCCARTESIANPOINT((1.,2.));\n";
  }
  text += "#18446744073709551615=IFCCARTESIANPOINT((1.,2.));\n#1=IFCAXIS2PLACEMENT2D(#7919000,$);";
  ExpectSame(text);
}

TEST(Threads, ReachTheSameLimits) {
  const std::string text = WallModel("IFC2X3", 12);
  for (std::uint64_t most : {1U, 60U, 119U, 120U, 121U, 131U, 132U}) {
    LoadOptions options;
    options.limits.maxInstances = most;
    ExpectSame(text, options, kNoEnd, false);
  }
  for (std::uint64_t most : {20U, 60U, 2000U}) {
    LoadOptions options;
    options.limits.maxStatementBytes = most;
    ExpectSame(text + "#999=IFCPERSON('" + std::string(2100, 'x') + "');", options);
  }
  for (std::uint64_t most : {100U, 20000U, 200000U, 10000000U}) {
    LoadOptions options;
    options.limits.maxMemoryBytes = most;
    ExpectSame(text, options);
  }
}

TEST(Threads, StopAtTheSameCallOfTheProgressHandler) {
  for (const std::size_t most : {1U, 2U, 5U, 20U, 50U}) {
    ExpectSame(WallModel("IFC2X3", 12), {}, most);
  }
}

TEST(Threads, ThrowWhatTheProgressHandlerThrows) {
  const BlockSizeScope scope(100);
  const std::string text = WallModel("IFC2X3", 12);
  LoadOptions options;
  options.threads = 3;
  IfcServer server;
  int calls = 0;
  server.SetProgressHandler([&calls](std::uint64_t, std::uint64_t) -> bool {
    if (++calls == 7) throw 7;
    return true;
  });
  EXPECT_THROW(server.LoadIfcMemory(text.data(), text.size(), options), int);
  EXPECT_TRUE(server.GetItems().empty());
}

TEST(Threads, CallTheProgressHandlerOnTheThreadOfTheCaller) {
  const BlockSizeScope scope(100);
  const std::string text = WallModel("IFC2X3", 12);
  LoadOptions options;
  options.threads = 3;
  IfcServer server;
  server.SetProgressHandler([caller = std::this_thread::get_id()](std::uint64_t, std::uint64_t) {
    return std::this_thread::get_id() == caller;
  });
  EXPECT_EQ(server.LoadIfcMemory(text.data(), text.size(), options), 0);
}

/// Notes on which threads its operations are called.
class DerivedServer : public IfcServer {
 public:
  using IfcServer::GetItem;
  IfcUnknown* InstantiateClass(const char* name) override {
    isForeign = isForeign || std::this_thread::get_id() != caller;
    ++made;
    return IfcServer::InstantiateClass(name);
  }
  IfcUnknown* GetItem(std::size_t number) override {
    isForeign = isForeign || std::this_thread::get_id() != caller;
    return IfcServer::GetItem(number);
  }

  std::thread::id caller = std::this_thread::get_id();
  std::size_t made = 0;
  bool isForeign = false;
};

TEST(Threads, DoNotCallOperationsThatAHostReplaced) {
  const BlockSizeScope scope(100);
  const std::string text = WallModel("IFC2X3", 12);
  LoadOptions options;
  options.threads = 3;
  DerivedServer server;
  EXPECT_EQ(server.LoadIfcMemory(text.data(), text.size(), options), 0);
  EXPECT_GE(server.made, 120U);
  EXPECT_FALSE(server.isForeign);
}

TEST(Threads, CanEachLoadAModel) {
  const std::string text = WallModel("IFC2X3", 12);
  LoadedModel model = LoadText(text, OptionsFor(STEP_DIALECT_ISO));
  const std::string expected = DescriptionOf(model, false);
  std::vector<std::string> found(3);
  std::vector<std::thread> threads;
  for (std::string& result : found) {
    threads.emplace_back([&result, &text] {
      const BlockSizeScope scope(100);
      LoadOptions options = OptionsFor(STEP_DIALECT_ISO);
      options.threads = 2;
      LoadedModel loaded = LoadText(text, options);
      result = DescriptionOf(loaded, false);
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (const std::string& result : found) EXPECT_EQ(FirstDifference(result, expected), "");
}

}  // namespace
}  // namespace KelIFC
