#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <optional>
#include <set>
#include <sstream>
#include <string>

#include "kelifc/core/cartesian_point.h"
#include "kelifc/core/global_id.h"
#include "kelifc/server/ifc_server.h"

#include "tests/faults/failing_allocation.h"
#include "tests/faults/small_model.h"
#include "tests/server/temp_file.h"

// A host may continue after an allocation failed. The model must be consistent then.

namespace KelIFC {
namespace {

using testing::IsSupersetOf;

std::set<std::size_t> NumbersOf(IfcServer& server) {
  std::set<std::size_t> numbers;
  for (std::size_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) {
    if (server.GetItem(n) != nullptr) numbers.insert(n);
  }
  return numbers;
}

std::string TextOf(IfcServer& server) {
  std::ostringstream text;
  for (const std::size_t n : NumbersOf(server)) server.GetItem(n)->Write(text << '#' << n << '=');
  return text.str();
}

/// Returns the result of a load, nothing if it threw std::bad_alloc.
std::optional<int> TryLoad(IfcServer& server, const char* path) {
  try {
    return server.LoadIfcFile(path);
  } catch (const std::bad_alloc&) {
    return std::nullopt;
  }
}

TEST(FaultyLoad, SkipsAnInstanceOrLeavesAnEmptyModel) {
  const TempFile file(SmallModel());
  IfcServer whole;
  ASSERT_EQ(whole.LoadIfcFile(file.GetPath()), 0);
  const std::set<std::size_t> all = NumbersOf(whole);
  const std::string text = TextOf(whole);
  int withoutSome = 0;
  for (std::size_t nth = 1; nth < 100000; ++nth) {
    IfcServer server;
    std::optional<int> result;
    {
      const FailingAllocation failing(nth, Shortage::kOne);
      result = TryLoad(server, file.GetPath());
    }
    const std::set<std::size_t> numbers = NumbersOf(server);
    if (!result) {
      ASSERT_TRUE(server.GetItems().empty()) << nth;
      ASSERT_TRUE(numbers.empty()) << nth;
    } else if (*result == 0) {
      ASSERT_THAT(all, IsSupersetOf(numbers)) << nth;
      if (numbers != all) ++withoutSome;
    }
    ASSERT_EQ(server.LoadIfcFile(file.GetPath()), 0) << nth;
    ASSERT_EQ(TextOf(server), text) << nth;
    if (FailingAllocation::GetCount() < nth) break;
  }
  EXPECT_GT(withoutSome, 0);
}

TEST(FaultyLoad, FreesAllMemory) {
  const TempFile file(SmallModel());
  SweepFailures([&] {
    IfcServer server;
    TryLoad(server, file.GetPath());
  });
}

/// The small model in the dialect of ISO 10303-21, with all that needs memory of its own there.
std::string IsoModel() {
  return SmallModel() +
         "#900=IFCMATERIAL('it''s \\X2\\20AC\\X0\\ \\bad \xE4');\n#900=IFCMATERIAL(\n/* twice */ "
         "'x');"
         "#901=(A('b')C(\"0FF\"));#902=IFCFOO('open);\n#903=IFCFOO(1);\n";
}

void TryLoadIso(IfcServer& server, const std::string& text) {
  LoadOptions options;
  options.dialect = STEP_DIALECT_ISO;
  try {
    std::istringstream stream(text);
    server.LoadIfcMemory(text.data(), text.size(), options);
    server.LoadIfcStream(stream, options);
  } catch (const std::bad_alloc&) {
  }
}

TEST(FaultyLoad, GivesAllMemoryBackInTheDialectOfIso) {
  const std::string text = IsoModel();
  SweepFailures([&] {
    IfcServer server;
    TryLoadIso(server, text);
  });
}

TEST(FaultySave, GivesAllMemoryBackInTheDialectOfIso) {
  const std::string text = IsoModel();
  const TempFile target;
  IfcServer server;
  server.SetErrorHandler([](const std::string&) {});
  TryLoadIso(server, text);
  ASSERT_EQ(server.GetDialect(), STEP_DIALECT_ISO);
  SweepFailures([&] {
    try {
      server.SaveIfcFile(target.GetPath());
    } catch (const std::bad_alloc&) {
    }
  });
}

TEST(FaultyReset, NeedsNoMemory) {
  const TempFile file(SmallModel());
  IfcServer server;
  server.LoadIfcFile(file.GetPath());
  server.AddItem(server.GetItem(std::size_t{7}));  // the same instance under a second number
  const FailingAllocation failing(1, Shortage::kFrom);
  server.Reset();
  EXPECT_EQ(FailingAllocation::GetCount(), 0u);
}

TEST(FaultySave, ReportsAFailureOrWritesTheWholeModel) {
  const TempFile source(SmallModel());
  const TempFile target;
  IfcServer server;
  server.LoadIfcFile(source.GetPath());
  std::size_t told = 0;
  server.SetErrorHandler([&](const std::string&) { ++told; });
  ASSERT_EQ(server.SaveIfcFile(target.GetPath()), 0);
  const std::size_t size = target.Read().size();
  std::size_t incomplete = 0;
  SweepFailures([&] {
    told = 0;
    bool isSaved = false;
    try {
      isSaved = server.SaveIfcFile(target.GetPath()) == 0 && told == 0;
    } catch (const std::bad_alloc&) {
    }
    // Reading the file back allocates as well. Its allocations must not fail.
    const FailingAllocation none(0, Shortage::kOne);
    if (isSaved && target.Read().size() != size) ++incomplete;
  });
  EXPECT_EQ(incomplete, 0u);
}

/// Changes of a model by its host.
class FaultyRegistry : public testing::Test {
 protected:
  void SetUp() override {
    const TempFile file(SmallModel());
    server.LoadIfcFile(file.GetPath());
    text = TextOf(server);
  }

  /// Calls an operation again and again until it succeeds. In each call one more allocation
  /// succeeds before all later ones fail. Expects that a call that fails leaves the model
  /// unchanged.
  template <class Operation>
  void RepeatUntilItSucceeds(Operation operation) {
    for (std::size_t nth = 1; nth < 100; ++nth) {
      const std::size_t before = CountLiveBlocks();
      try {
        const FailingAllocation failing(nth, Shortage::kFrom);
        operation();
        return;
      } catch (const std::bad_alloc&) {
      }
      ASSERT_LE(CountLiveBlocks(), before + kIndexBlocks);
      ASSERT_EQ(TextOf(server), text);
    }
    FAIL() << "never succeeds";
  }

  /// An index that a failed call has built may stay: it has at most so many blocks.
  static constexpr std::size_t kIndexBlocks = 4;

  IfcServer server;
  std::string text;
};

TEST_F(FaultyRegistry, AddsAnInstanceOrDestroysIt) {
  for (int i = 0; i < 3000; ++i) {
    std::size_t number = 0;
    RepeatUntilItSucceeds([&] { number = server.AddItem(new IfcCartesianPoint); });
    ASSERT_NE(number, 0u);
    ASSERT_EQ(server.Find(server.GetItem(number)), number);
    server.DeleteItem(server.GetItem(number));
  }
}

TEST_F(FaultyRegistry, InsertsAnInstanceOrKeepsTheOneWithThatNumber) {
  for (const std::size_t number : {std::size_t{12}, std::size_t{20}, SIZE_MAX}) {
    server.Find(nullptr);
    RepeatUntilItSucceeds([&] { server.InsertItem(number, new IfcCartesianPoint); });
    EXPECT_EQ(server.Find(server.GetItem(number)), number);
    text = TextOf(server);
  }
}

TEST_F(FaultyRegistry, KeepsItsInstanceIfASecondNumberForItFails) {
  IfcUnknown* const point = server.GetItem(std::size_t{7});
  for (std::size_t number = 2000; number < 4000; ++number) {
    RepeatUntilItSucceeds([&] { server.InsertItem(number, point); });
    ASSERT_EQ(server.Find(point), 7u);
    text = TextOf(server);
  }
}

TEST_F(FaultyRegistry, FindsAndDeletesAfterFailures) {
  std::size_t number = 0;
  RepeatUntilItSucceeds([&] { number = server.Find(server.GetItem(std::size_t{12})); });
  EXPECT_EQ(number, 12u);
  server.InsertItem(60, server.GetItem(std::size_t{13}));
  text = TextOf(server);
  RepeatUntilItSucceeds([&] { number = server.DeleteItem(server.GetItem(std::size_t{13})); });
  EXPECT_EQ(number, 13u);
  EXPECT_EQ(server.GetItem(std::size_t{60}), nullptr);
}

TEST_F(FaultyRegistry, FindsGlobalIdentifiersAfterFailures) {
  const char* const ids[] = {"0YvctVUKr0kugbFTf53O9L", "0YvctVUKr0kugbFTf53O9M"};
  for (const char* id : ids) {
    _GUID guid = {};
    ASSERT_TRUE(DecodeGlobalId64(id, guid));
    RepeatUntilItSucceeds([&] { ASSERT_NE(server.GetItem(guid), nullptr); });
  }
}

TEST_F(FaultyRegistry, CreatesAnItemByNameAfterFailures) {
  IfcUnknown* item = nullptr;
  RepeatUntilItSucceeds([&] {
    item = server.CreateItem("IFCWALL");
    if (item == nullptr) throw std::bad_alloc();
  });
  EXPECT_NE(server.Find(item), 0u);
}

}  // namespace
}  // namespace KelIFC
