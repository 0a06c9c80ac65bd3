#include "kelifc/server/load_options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "kelifc/server/ifc_server.h"

#include "tests/server/load_text.h"
#include "tests/server/probe.h"
#include "tests/server/temp_file.h"

namespace KelIFC {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const STEP_DIALECT kDialects[] = {STEP_DIALECT_CLASSIC, STEP_DIALECT_ISO};

/// A model with so many instances, each in a line of its own.
std::string ModelOf(std::size_t count) {
  std::string text = HeadOf("IFC2X3");
  for (std::size_t n = 1; n <= count; ++n) {
    text += "#" + std::to_string(n) + "=IFCCARTESIANPOINT((1.,2.,3.));\n";
  }
  return text + "ENDSEC;END-ISO-10303-21;\n";
}

/// The result of a load with limits, which leaves no model if one is reached.
int LoadWith(const LoadLimits& limits, const std::string& text,
             STEP_DIALECT dialect = STEP_DIALECT_ISO) {
  LoadOptions options = OptionsFor(dialect);
  options.limits = limits;
  IfcServer server;
  const int result = server.LoadIfcMemory(text.data(), text.size(), options);
  if (result != 0) {
    EXPECT_TRUE(server.GetItems().empty());
    EXPECT_EQ(server.GetNumberCount(), 0U);
    EXPECT_EQ(server.GetDialect(), STEP_DIALECT_CLASSIC);
  }
  return result;
}

TEST(LoadOptions, LimitALoadByDefault) {
  const LoadOptions options;
  EXPECT_EQ(options.dialect, STEP_DIALECT_CLASSIC);
  EXPECT_EQ(options.limits.maxBytes, 8589934592U);
  EXPECT_EQ(options.limits.maxInstances, 134217728U);
  EXPECT_EQ(options.limits.maxStatementBytes, 268435456U);
  EXPECT_EQ(options.limits.maxMemoryBytes, 17179869184U);
}

TEST(LoadOptions, CanLeaveOutTheReportInTheClassicDialect) {
  const std::string text = ModelOf(3) + "#3=IFCDIRECTION((1.,0.));";
  for (const STEP_DIALECT dialect : kDialects) {
    LoadOptions options = OptionsFor(dialect);
    options.report = false;
    IfcServer server;
    ASSERT_EQ(server.LoadIfcMemory(text.data(), text.size(), options), 0);
    const bool isReported = dialect == STEP_DIALECT_ISO;
    EXPECT_EQ(server.GetNumberCount(), 3U);
    EXPECT_EQ(server.GetLoadReport().statements, isReported ? 4U : 0U);
    EXPECT_EQ(server.GetLoadFindings().IsEmpty(), !isReported);
    EXPECT_EQ(server.GetSourceLine(2), isReported ? 3U : 0U);
    EXPECT_EQ(server.CheckModel(), isReported);
  }
}

TEST(LoadOptions, NameALaterReleaseWithoutAReport) {
  const std::string text = HeadOf("IFC4");
  LoadOptions options;
  options.report = false;
  IfcServer server;
  EXPECT_EQ(server.LoadIfcMemory(text.data(), text.size(), options),
            LOAD_RESULT_UNSUPPORTED_RELEASE);
  EXPECT_EQ(server.GetFileSchema(), "IFC4");
  EXPECT_FALSE(server.GetLoadReport().failure);
}

TEST(LoadOptions, LimitTheLengthOfTheFile) {
  const std::string text = ModelOf(10);
  for (const STEP_DIALECT dialect : kDialects) {
    LoadLimits limits;
    limits.maxBytes = text.size();
    EXPECT_EQ(LoadWith(limits, text, dialect), 0);
    limits.maxBytes = text.size() - 1;
    EXPECT_EQ(LoadWith(limits, text, dialect), 4);
    limits.maxBytes = 0;
    EXPECT_EQ(LoadWith(limits, text, dialect), 0);
  }
}

TEST(LoadOptions, LimitTheNumberOfInstances) {
  for (const STEP_DIALECT dialect : kDialects) {
    LoadLimits limits;
    limits.maxInstances = 10;
    EXPECT_EQ(LoadWith(limits, ModelOf(10), dialect), 0);
    EXPECT_EQ(LoadWith(limits, ModelOf(11), dialect), 4);
  }
}

TEST(LoadOptions, LimitTheInstancesThatClassesAdd) {
  // Reading a placement in the plane adds a direction.
  const std::string text = HeadOf("IFC2X3") +
                           "#1=IFCCARTESIANPOINT((1.,2.));#2=IFCDIRECTION((1.,0.));"
                           "#3=IFCAXIS2PLACEMENT2D(#1,#2);";
  LoadLimits limits;
  limits.maxInstances = 4;
  EXPECT_EQ(LoadWith(limits, text), 0);
  limits.maxInstances = 3;
  EXPECT_EQ(LoadWith(limits, text), 4);
}

TEST(LoadOptions, LimitTheLengthOfAStatement) {
  const std::string longName(1000000, 'x');
  const std::string text = HeadOf("IFC2X3") + "#1=IFCFOO('" + longName + "');";
  for (const STEP_DIALECT dialect : kDialects) {
    LoadLimits limits;
    limits.maxStatementBytes = longName.size() + 13;
    EXPECT_EQ(LoadWith(limits, text, dialect), 0);
    limits.maxStatementBytes = longName.size() + 12;
    EXPECT_EQ(LoadWith(limits, text, dialect), 4);
    limits.maxStatementBytes = 100;
    EXPECT_EQ(LoadWith(limits, text, dialect), 4);
    EXPECT_EQ(LoadWith(limits, HeadOf("IFC2X3") + "#1=IFCFOO('" + longName, dialect), 4);
  }
}

TEST(LoadOptions, DoNotLimitComments) {
  LoadLimits limits;
  limits.maxStatementBytes = 100;
  const std::string text = HeadOf("IFC2X3") + "#1=IFCFOO(/*" + std::string(1000000, '*') + "*/1);";
  EXPECT_EQ(LoadWith(limits, text), 0);
}

TEST(LoadOptions, LimitTheMemoryOfTheModel) {
  const std::string text = ModelOf(20000);
  for (const STEP_DIALECT dialect : kDialects) {
    LoadLimits limits;
    limits.maxMemoryBytes = 100000;
    EXPECT_EQ(LoadWith(limits, text, dialect), 4);
    EXPECT_EQ(LoadWith(limits, ModelOf(10), dialect), 0);
    limits.maxMemoryBytes = 100000000;
    EXPECT_EQ(LoadWith(limits, text, dialect), 0);
  }
}

TEST(LoadOptions, DoNotLimitLoadIfcFile) {
  const TempFile file(ModelOf(5));
  IfcServer server;
  LoadOptions options;
  options.limits.maxInstances = 1;
  EXPECT_EQ(server.LoadIfc(file.GetPath(), options), 4);
  EXPECT_EQ(server.LoadIfcFile(file.GetPath()), 0);
}

TEST(LoadOptions, LetTheHandlerCancel) {
  const std::string text = ModelOf(40000);
  for (const std::uint64_t limit : {std::uint64_t{0}, static_cast<std::uint64_t>(text.size())}) {
    IfcServer server;
    server.SetProgressHandler([limit](std::uint64_t done, std::uint64_t) { return done <= limit; });
    EXPECT_EQ(LoadIso(server, text), 5);
    EXPECT_TRUE(server.GetItems().empty());
    EXPECT_EQ(server.GetDialect(), STEP_DIALECT_CLASSIC);
  }
}

TEST(LoadOptions, HaveNoEffectOnProgress) {
  const std::string text = ModelOf(40000);
  std::vector<std::uint64_t> steps;
  IfcServer server;
  server.SetProgressHandler([&](std::uint64_t done, std::uint64_t total) {
    EXPECT_EQ(total, 2 * text.size());
    steps.push_back(done);
    return true;
  });
  EXPECT_EQ(LoadIso(server, text), 0);
  ASSERT_GT(steps.size(), 4U);
  EXPECT_EQ(steps.back(), 2 * text.size());
}

TEST(LoadOptions, HoldForFilesStreamsAndMemory) {
  const std::string text = ModelOf(3) + "/* '' */";
  const TempFile file(text);
  const LoadOptions options = OptionsFor(STEP_DIALECT_ISO);
  IfcServer server;
  EXPECT_EQ(server.LoadIfc(file.GetPath(), options), 0);
  EXPECT_THAT(NumbersOf(server), ElementsAre(1, 2, 3));
  std::istringstream stream("not the model" + text);
  stream.ignore(13);
  EXPECT_EQ(server.LoadIfcStream(stream, options), 0);
  EXPECT_THAT(NumbersOf(server), ElementsAre(1, 2, 3));
  EXPECT_EQ(server.LoadIfcMemory(text.data(), text.size(), options), 0);
  EXPECT_THAT(NumbersOf(server), ElementsAre(1, 2, 3));
  EXPECT_EQ(server.GetDialect(), STEP_DIALECT_ISO);
}

TEST(LoadOptions, ReportASourceThatCannotBeRead) {
  const LoadOptions options = OptionsFor(STEP_DIALECT_ISO);
  IfcServer server;
  server.AddItem(new Probe);
  EXPECT_EQ(server.LoadIfc(nullptr, options), 1);
  EXPECT_TRUE(server.GetItems().empty());
  EXPECT_EQ(server.LoadIfc("/no/such/file.ifc", options), 1);
  EXPECT_EQ(server.LoadIfc("/dev/null", options), 1);
  std::istringstream broken("ISO-10303-21;");
  broken.setstate(std::ios::badbit);
  EXPECT_EQ(server.LoadIfcStream(broken, options), 1);
  EXPECT_EQ(server.LoadIfcMemory(nullptr, 0, options), 2);
  EXPECT_EQ(server.LoadIfcMemory(nullptr, 5, options), 2);
}

TEST(LoadOptions, LimitAStreamBeforeAllOfItIsCopied) {
  LoadOptions options = OptionsFor(STEP_DIALECT_ISO);
  options.limits.maxBytes = 1000;
  std::istringstream stream(ModelOf(100));
  IfcServer server;
  EXPECT_EQ(server.LoadIfcStream(stream, options), 4);
}

}  // namespace
}  // namespace KelIFC
