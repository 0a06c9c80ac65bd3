#include <CLI/CLI.hpp>
#include <exception>
#include <string>

#include "kelifc/platform/program.h"

#include "export/export.h"
#include "tools/kelifc/commands.h"
#include "tools/kelifc/failure.h"
#include "tools/kelifc/message.h"
#include "tools/kelifc/output.h"

namespace {

using command::Status;

/// The options of the subcommands. Parsing fills those of the one that the command line names.
struct Request {
  command::StructureOptions structure;
  command::InfoOptions info;
  command::SaveOptions save;
  command::ElementsOptions elements;
  command::AuditOptions audit;
  command::DiffOptions diff;
  command::ExportOptions exporting;
  command::ExportOptions view;
};

constexpr auto kModel = "MODEL.ifc";
constexpr auto kModelHelp = "the model to read; - means standard input";
constexpr auto kJsonHelp = "print one JSON object instead of a table";

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

void DescribeOutput(CLI::App& subcommand, std::string& output) {
  subcommand.add_option("--output", output, "write to FILE instead of standard output")
      ->option_text("FILE")
      ->check([](const std::string& file) { return file.empty() ? "FILE is empty" : ""; });
}

/// A subcommand that reads the building completely reads strings as published unless the user says
/// otherwise.
void DescribeComplete(CLI::App& subcommand, command::Reading& reading) {
  reading.dialect = "iso";
  DescribeReading(subcommand, reading)
      ->description("the rules for strings and statements: classic or iso (default: iso)");
}

void DescribeFailOnLoss(CLI::App& subcommand, bool& failOnLoss) {
  subcommand.add_flag("--fail-on-loss", failOnLoss, "exit with status 4 if something was lost");
}

void DescribeElements(CLI::App& app, command::ElementsOptions& options) {
  CLI::App* elements = app.add_subcommand("elements", "every structural element");
  CLI::Option* json = elements->add_flag("--json", options.json, kJsonHelp);
  CLI::Option* csv = elements->add_flag("--csv", options.csv, "print a row of CSV for each element")
                         ->excludes(json);
  elements
      ->add_flag("--csv-raw", options.csvRaw,
                 "with --csv: no apostrophe before text that a spreadsheet takes for a formula")
      ->needs(csv);
  elements->add_flag("--bodies", options.bodies,
                     "with --json: print the boundary of each body, too");
  DescribeOutput(*elements, options.output);
  DescribeFailOnLoss(*elements, options.failOnLoss);
  DescribeComplete(*elements, options.reading);
  elements->add_option(kModel, options.model, kModelHelp)->required()->option_text(" ");
}

void DescribeAudit(CLI::App& app, command::AuditOptions& options) {
  CLI::App* audit = app.add_subcommand("audit", "what was read, and what was lost and why");
  audit->add_flag("--json", options.json, kJsonHelp);
  audit->add_flag("--exports", options.exports, "count what each format of an export leaves out");
  DescribeOutput(*audit, options.output);
  DescribeFailOnLoss(*audit, options.failOnLoss);
  DescribeComplete(*audit, options.reading);
  audit->add_option(kModel, options.model, kModelHelp)->required()->option_text(" ");
}

void DescribeDiff(CLI::App& app, command::DiffOptions& options) {
  CLI::App* diff = app.add_subcommand("diff", "structural difference of two revisions");
  diff->add_flag("--json", options.json, kJsonHelp);
  DescribeComplete(*diff, options.reading);
  diff->add_option("OLD.ifc", options.oldModel, kModelHelp)->required()->option_text(" ");
  diff->add_option("NEW.ifc", options.newModel, "the model to compare with it")
      ->required()
      ->option_text(" ");
}

/// The formats of the option --to. The viewer page has a subcommand of its own.
std::vector<std::string> FormatNames() {
  std::vector<std::string> names;
  for (const KelIFC::ExportFormat& format : KelIFC::ExportFormats()) {
    if (format.name != command::kPageFormat) names.emplace_back(format.name);
  }
  return names;
}

std::string FormatHelp() {
  std::string help = "the format:";
  for (const std::string& name : FormatNames()) {
    const bool isMissing = !KelIFC::FindExportFormat(name)->missing.empty();
    help += " " + name + (isMissing ? " (not in this build)" : "");
  }
  return help;
}

/// An option of one format is wrong with another one.
void DescribeFormatOptions(CLI::App& exporting, command::ExportOptions& options) {
  CLI::Option* const raw = exporting.add_flag(
      "--csv-raw", options.csvRaw,
      "with csv: no apostrophe before text that a spreadsheet takes for a formula");
  CLI::Option* const tolerance =
      exporting
          .add_option("--node-tolerance", options.nodeTolerance,
                      "with saf: merge points that are up to MM millimetres apart (default: 1)")
          ->option_text("MM")
          ->check(CLI::Range(0.0, 1000.0, "MM"));
  exporting.callback([&options, raw, tolerance] {
    if (raw->count() != 0 && options.format != "csv") {
      throw CLI::ValidationError("--csv-raw", "it needs --to csv");
    }
    if (tolerance->count() != 0 && options.format != "saf") {
      throw CLI::ValidationError("--node-tolerance", "it needs --to saf");
    }
  });
}

void DescribeExportOutput(CLI::App& subcommand, std::string& output, const char* text,
                          const char* help) {
  subcommand.add_option("--output", output, help)
      ->option_text(text)
      ->check([text](const std::string& path) {
        return path.empty() ? text + std::string(" is empty") : std::string();
      });
}

void DescribeExport(CLI::App& app, command::ExportOptions& options) {
  CLI::App* exporting = app.add_subcommand("export", "write the building in another format");
  exporting->add_option("--to", options.format, FormatHelp())
      ->option_text("FORMAT")
      ->required()
      ->check(CLI::IsMember(FormatNames()));
  DescribeExportOutput(*exporting, options.output, "PATH",
                       "the file to write, with csv and svg the folder (default: the name of the "
                       "model, in the current folder)");
  DescribeFormatOptions(*exporting, options);
  DescribeFailOnLoss(*exporting, options.failOnLoss);
  DescribeComplete(*exporting, options.reading);
  exporting->add_option(kModel, options.model, kModelHelp)->required()->option_text(" ");
}

void DescribeView(CLI::App& app, command::ExportOptions& options) {
  options.format = command::kPageFormat;
  CLI::App* view = app.add_subcommand("view", "write a page that shows the building");
  DescribeExportOutput(*view, options.output, "FILE",
                       "the page to write (default: the name of the model, in the current folder)");
  DescribeFailOnLoss(*view, options.failOnLoss);
  DescribeComplete(*view, options.reading);
  view->add_option(kModel, options.model, kModelHelp)->required()->option_text(" ");
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
  CLI::App* structure = app.add_subcommand("structure", "the converted building structure");
  structure->add_flag("--json", request.structure.json, kJsonHelp);
  DescribeOutput(*structure, request.structure.output);
  DescribeReading(*structure, request.structure.reading);
  structure->add_option(kModel, request.structure.model, kModelHelp)->required()->option_text(" ");

  CLI::App* info = app.add_subcommand("info", "what the file holds");
  info->add_flag("--json", request.info.json, kJsonHelp);
  info->add_flag("--report", request.info.report, "print what is wrong in the file, too");
  DescribeReading(*info, request.info.reading);
  info->add_option(kModel, request.info.model, kModelHelp)->required()->option_text(" ");

  CLI::App* save = app.add_subcommand("save", "load and write back");
  DescribeFaithful(*save, request.save, DescribeReading(*save, request.save.reading));
  save->add_option(kModel, request.save.model, kModelHelp)->required()->option_text(" ");
  save->add_option("OUT.ifc", request.save.output, "the file to write")
      ->required()
      ->option_text(" ");

  DescribeElements(app, request.elements);
  DescribeAudit(app, request.audit);
  DescribeDiff(app, request.diff);
  DescribeExport(app, request.exporting);
  DescribeView(app, request.view);
}

void Run(const CLI::App& app, const Request& request) {
  if (app.got_subcommand("structure")) RunStructure(request.structure);
  if (app.got_subcommand("info")) RunInfo(request.info);
  if (app.got_subcommand("save")) RunSave(request.save);
  if (app.got_subcommand("elements")) RunElements(request.elements);
  if (app.got_subcommand("audit")) RunAudit(request.audit);
  if (app.got_subcommand("diff")) RunDiff(request.diff);
  if (app.got_subcommand("export")) RunExport(request.exporting);
  if (app.got_subcommand("view")) RunExport(request.view);
}

/// Prints the message and returns the exit status. Whatever fails after Ctrl-C was interrupted.
int Fail(Status status, const std::string& message) {
  if (KelIFC::IsInterrupted()) return static_cast<int>(Status::kInterrupted);
  command::PrintMessage(message);
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
  KelIFC::CatchInterrupts();
  try {
    return RunMain(argc, argv);
  } catch (const command::Failure& e) {
    return Fail(e.GetStatus(), e.what());
  } catch (const std::exception& e) {
    return Fail(Status::kFile, e.what());
  }
}
