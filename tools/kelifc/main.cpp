#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <exception>
#include <string>

#include "tools/kelifc/commands.h"
#include "tools/kelifc/failure.h"
#include "tools/kelifc/output.h"

namespace {

using command::Status;

/// The options of the subcommands. Parsing fills those of the one that the command line names.
struct Request {
  command::StructureOptions structure;
  command::InfoOptions info;
  command::SaveOptions save;
};

/// The options that all subcommands have. Returns the option of the dialect.
CLI::Option* DescribeReading(CLI::App& subcommand, command::Reading& reading) {
  CLI::Option* const dialect =
      subcommand
          .add_option("--dialect", reading.dialect,
                      "the rules for strings and statements: classic or iso (default: classic)")
          ->option_text("NAME")
          ->check([](const std::string& name) {
            return name == "classic" || name == "iso" ? ""
                                                      : "the dialect is neither classic nor iso";
          });
  subcommand.add_option("--threads", reading.threads, "use N threads (default: one per processor)")
      ->option_text("N")
      ->check(CLI::Range(1U, 1024U, "N"));
  subcommand.add_flag("--quiet", reading.quiet, "no messages but failures, no progress bar");
  subcommand.add_flag("--no-progress", reading.hidesProgress, "no progress bar");
  return dialect;
}

/// A faithful save reads the model by the rules of ISO 10303-21.
void DescribeFaithful(CLI::App& save, command::SaveOptions& options, CLI::Option* dialect) {
  save.add_flag("--faithful", options.faithful,
                "write what was not changed as it is in MODEL.ifc; implies --dialect iso");
  save.callback([&options, dialect] {
    if (!options.faithful) return;
    if (dialect->count() != 0 && options.reading.dialect == "classic") {
      throw CLI::ValidationError("--faithful", "a faithful save needs --dialect iso");
    }
    options.reading.dialect = "iso";
  });
}

void Describe(CLI::App& app, Request& request) {
  app.set_version_flag("--version", std::string("kelifc ") + KELIFC_VERSION);
  app.allow_windows_style_options(false);  // an argument that begins with a slash is a path
  app.require_subcommand(1);
  constexpr auto kModel = "MODEL.ifc";
  constexpr auto kModelHelp = "the model to read; - means standard input";

  CLI::App* structure = app.add_subcommand("structure", "the converted building structure");
  structure->add_flag("--json", request.structure.json, "print one JSON object instead of a table");
  structure
      ->add_option("--output", request.structure.output, "write to FILE instead of standard output")
      ->option_text("FILE")
      ->check([](const std::string& file) { return file.empty() ? "FILE is empty" : ""; });
  DescribeReading(*structure, request.structure.reading);
  structure->add_option(kModel, request.structure.model, kModelHelp)->required()->option_text(" ");

  CLI::App* info = app.add_subcommand("info", "what the file holds");
  info->add_flag("--json", request.info.json, "print one JSON object instead of a table");
  info->add_flag("--report", request.info.report, "print what is wrong in the file, too");
  DescribeReading(*info, request.info.reading);
  info->add_option(kModel, request.info.model, kModelHelp)->required()->option_text(" ");

  CLI::App* save = app.add_subcommand("save", "load and write back");
  DescribeFaithful(*save, request.save, DescribeReading(*save, request.save.reading));
  save->add_option(kModel, request.save.model, kModelHelp)->required()->option_text(" ");
  save->add_option("OUT.ifc", request.save.output, "the file to write")
      ->required()
      ->option_text(" ");
}

void Run(const CLI::App& app, const Request& request) {
  if (app.got_subcommand("structure")) RunStructure(request.structure);
  if (app.got_subcommand("info")) RunInfo(request.info);
  if (app.got_subcommand("save")) RunSave(request.save);
}

int Fail(Status status, std::string message) {
  std::replace(message.begin(), message.end(), '\n', ' ');
  std::fprintf(stderr, "kelifc: %s\n", message.c_str());
  return static_cast<int>(status);
}

int RunMain(int argc, char** argv) {
  CLI::App app("Reads, shows and writes IFC building models", "kelifc");
  Request request;
  Describe(app, request);
  try {
    app.parse(argc, argv);
    Run(app, request);
  } catch (const CLI::ParseError& e) {
    if (e.get_exit_code() != 0)
      return Fail(Status::kUsage, std::string(e.what()) + "; see kelifc --help");
    // Help and version are exceptions too. exit() writes the text that they stand for.
    std::ostringstream text;
    app.exit(e, text, text);
    command::WriteOutput("", text.str());
  }
  return static_cast<int>(Status::kDone);
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return RunMain(argc, argv);
  } catch (const command::Failure& e) {
    return Fail(e.GetStatus(), e.what());
  } catch (const std::exception& e) {
    return Fail(Status::kFile, e.what());
  }
}
