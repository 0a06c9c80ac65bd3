#include "kelifc/server/piece_writer.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>

#include "kelifc/server/ifc_server.h"
#include "kelifc/server/save_options.h"

#include "tests/server/load_text.h"
#include "tests/server/probe.h"
#include "tests/server/temp_file.h"
#include "tests/server/threads/model_text.h"

// A save on several threads has the same results as on one.

namespace KelIFC {
namespace {

const STEP_DIALECT kDialects[] = {STEP_DIALECT_CLASSIC, STEP_DIALECT_ISO};
constexpr std::size_t kMany = 9 * PieceWriter::kInstances + 77;

/// A model with so many statements, with gaps between their numbers.
std::string ModelOf(std::size_t count) {
  std::string text = HeadOf("IFC2X3");
  for (std::size_t i = 0; i < count; ++i) {
    const std::string number = std::to_string(3 * i + 1);
    switch (i % 3) {
      case 0:
        text += "#" + number + "=IFCCARTESIANPOINT((" + number + ".,2.5E-3));\n";
        break;
      case 1:
        text += "#" + number + "=IFCPROPERTYSINGLEVALUE('a','it''s',IFCLABEL('\\X\\E4'),$);\n";
        break;
      default:
        text += "#" + number + "=IFCFOO('raw',#" + number + ",\"0A\");\n";
    }
  }
  return text + "ENDSEC;\nEND-ISO-10303-21;\n";
}

LoadedModel LoadModelOf(std::size_t count, STEP_DIALECT dialect = STEP_DIALECT_CLASSIC) {
  return LoadText(ModelOf(count), OptionsFor(dialect));
}

/// The result of a save, and the calls of the progress handler, which stops the save at one of
/// them.
std::string ProgressOf(IfcServer& server, unsigned threads, std::size_t mostCalls) {
  const TempFile file;
  std::ostringstream calls;
  std::size_t count = 0;
  SaveOptions options;
  options.threads = threads;
  options.progress = [&](std::uint64_t done, std::uint64_t total) {
    calls << done << '/' << total << '\n';
    return ++count < mostCalls;
  };
  server.SetErrorHandler([](const std::string&) {});
  calls << "result " << server.SaveIfc(file.GetPath(), options) << '\n';
  return calls.str();
}

int SaveOnThreads(IfcServer& server) {
  const TempFile file;
  SaveOptions options;
  options.threads = 3;
  server.SetErrorHandler([](const std::string&) {});
  return server.SaveIfc(file.GetPath(), options);
}

TEST(PieceWriter, WritesTheSameFileOnAnyNumberOfThreads) {
  for (const STEP_DIALECT dialect : kDialects) {
    for (const std::size_t count : {kMany, 8 * PieceWriter::kInstances}) {
      const LoadedModel model = LoadModelOf(count, dialect);
      const std::string expected = SavedData(*model.server, false);
      for (const unsigned threads : {2U, 3U, 7U}) {
        EXPECT_EQ(FirstDifference(SavedData(*model.server, false, threads), expected), "")
            << threads << " threads, dialect " << dialect;
      }
    }
  }
}

TEST(PieceWriter, LeavesOutDeletedInstances) {
  const LoadedModel model = LoadModelOf(kMany);
  for (std::size_t i = 0; i < kMany; i += 5) {
    model.server->DeleteItem(model.server->GetItem(3 * i + 1));
  }
  const std::string expected = SavedData(*model.server, false);
  EXPECT_EQ(FirstDifference(SavedData(*model.server, false, 3), expected), "");
}

TEST(PieceWriter, WritesStatementsThatAreLongerThanThePieces) {
  const LoadedModel model = LoadModelOf(kMany);
  for (std::size_t i = 1; i < 25; ++i) {
    model.server->InsertItem(std::size_t{6000} + 3 * i, new Probe(std::string(100000, 'x')));
  }
  const std::string expected = SavedData(*model.server, false);
  EXPECT_EQ(FirstDifference(SavedData(*model.server, false, 3), expected), "");
}

TEST(PieceWriter, ReportsTheSameProgressOnAnyNumberOfThreads) {
  const LoadedModel model = LoadModelOf(kMany);
  for (const std::size_t mostCalls : {1U, 2U, 3U, 100U}) {
    const std::string expected = ProgressOf(*model.server, 1, mostCalls);
    EXPECT_EQ(ProgressOf(*model.server, 2, mostCalls), expected);
    EXPECT_EQ(ProgressOf(*model.server, 3, mostCalls), expected);
  }
}

/// An instance that cannot be written.
class Unwritable : public Probe {
 public:
  std::ostream& Write(std::ostream& out) const override {
    out.setstate(std::ios::badbit);
    return out;
  }
};

TEST(PieceWriter, FailsIfAnInstanceCannotBeWritten) {
  for (const STEP_DIALECT dialect : kDialects) {
    const LoadedModel model = LoadModelOf(kMany, dialect);
    EXPECT_EQ(SaveOnThreads(*model.server), SAVE_RESULT_SAVED);
    model.server->InsertItem(kMany, new Unwritable());
    EXPECT_EQ(SaveOnThreads(*model.server), SAVE_RESULT_CANNOT_WRITE);
  }
}

/// An instance whose statement is not made.
class Throwing : public Probe {
 public:
  std::ostream& Write(std::ostream&) const override { throw std::runtime_error("write"); }
};

TEST(PieceWriter, ThrowsWhatAnInstanceThrows) {
  const LoadedModel model = LoadModelOf(kMany);
  model.server->InsertItem(kMany, new Throwing());
  EXPECT_THROW(SaveOnThreads(*model.server), std::runtime_error);
}

/// An instance that notes whether another thread writes it.
class Watching : public Probe {
 public:
  explicit Watching(bool& isForeign) : foreign(isForeign) {}
  std::ostream& Write(std::ostream& out) const override {
    foreign = foreign || std::this_thread::get_id() != caller;
    return Probe::Write(out);
  }

 private:
  std::thread::id caller = std::this_thread::get_id();
  bool& foreign;
};

class DerivedServer : public IfcServer {};

TEST(PieceWriter, IsNotUsedForAServerWithOperationsOfAHost) {
  bool isForeign = false;
  DerivedServer server;
  server.SetRelease(IFC_RELEASE_2X3);
  for (std::size_t i = 1; i <= kMany; ++i) server.InsertItem(i, new Watching(isForeign));
  EXPECT_EQ(SaveOnThreads(server), SAVE_RESULT_SAVED);
  EXPECT_FALSE(isForeign);
}

}  // namespace
}  // namespace KelIFC
