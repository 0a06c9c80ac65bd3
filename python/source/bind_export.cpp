#include <string>
#include <tuple>

#include "export/export.h"
#include "python/source/bindings.h"
#include "python/source/define_class.h"
#include "python/source/errors.h"
#include "python/source/progress.h"
#include "python/source/whole_building_fields.h"

namespace KelIFC::python {

template <>
inline constexpr auto kDescribed<ExportOmission> =
    Describe("ExportOmission", "A kind of information that a format cannot hold.",
             Field{"what", &ExportOmission::what, "Such as 'elements without a solid'."},
             Field{"count", &ExportOmission::count, "How often it was left out."});

template <>
inline constexpr auto kDescribed<ExportResult> =
    Describe("ExportResult", "What an export wrote.",
             Field{"elements", &ExportResult::elements, "How many elements the output holds."},
             Field{"omissions", &ExportResult::omissions, "What the format cannot hold."});

namespace {

const ExportFormat& FormatOf(const std::string& name) {
  if (const ExportFormat* const format = FindExportFormat(name)) return *format;
  std::string names;
  for (const ExportFormat& format : ExportFormats()) names += " " + std::string(format.name);
  Raise(PyExc_ValueError, "no export format '" + name + "'; the formats are:" + names);
}

[[noreturn]] void RaiseExportError(const ExportError& error, const std::string& path) {
  switch (error.failure) {
    case ExportFailure::kNotBuilt:
      RaiseFileError("NotBuiltError", path, error.what());
    case ExportFailure::kCancelled:
      RaiseFileError("CancelledError", path, error.what());
    case ExportFailure::kFile:
      break;
  }
  std::string reason = error.what();
  const std::string named = "cannot write " + path + ": ";  // the exception names the path itself
  if (reason.rfind(named, 0) == 0) reason.erase(0, named.size());
  RaiseFileError("ExportError", path, reason);
}

View<ExportResult> Export(const View<Building>& self, const std::string& format,
                          const py::object& path, const std::string& source, bool rawCells,
                          double nodeTolerance, const py::object& function) {
  const ExportFormat& found = FormatOf(format);
  Progress progress(function);
  ExportOptions options;
  options.path = py::cast<std::string>(py::module_::import("os").attr("fsdecode")(path));
  options.source = source;
  options.rawCells = rawCells;
  options.nodeTolerance = nodeTolerance;
  options.progress = [&](double share) { return progress.Report(share >= 1.0, share); };
  try {
    const auto result = std::make_shared<ExportResult>();
    {
      const py::gil_scoped_release released;
      *result = ExportBuilding(*self.item, found, options);
    }
    return {result, result.get()};
  } catch (const ExportError& error) {
    progress.RethrowIfFailed();
    RaiseExportError(error, options.path);
  }
}

py::dict Formats() {
  py::dict formats;
  for (const ExportFormat& format : ExportFormats()) {
    formats[ToText(format.name)] = ToText(format.missing);
  }
  return formats;
}

constexpr const char* kDoc =
    "export(format: str, path: StrPath, *, source: str = '', raw_cells: bool = False, "
    "node_tolerance: float = 0.001, progress: Callable[[float], object] | None = None) -> "
    "ExportResult\n"
    "\n"
    "Writes the building as `kelifc export` does. export_formats() lists the formats. `source` is\n"
    "the path of the model that the output names. With raw_cells, CSV cells that a spreadsheet\n"
    "would calculate are not escaped. SAF merges points that are nearer than node_tolerance\n"
    "(metres). `progress` receives the finished share, from 0 to 1, and cancels the export if it\n"
    "returns False. An export that fails raises ExportError and changes no file.";

}  // namespace

void BindExport(py::module_& module) {
  DefineClassAndList<ExportOmission>(module);
  DefineClass<ExportResult>(module);
  auto type = py::reinterpret_borrow<py::class_<View<Building>>>(module.attr("Building"));
  type.def("export", &Export, py::arg("format"), py::arg("path"), py::kw_only(),
           py::arg("source") = "", py::arg("raw_cells") = false, py::arg("node_tolerance") = 1e-3,
           py::arg("progress") = py::none(), kDoc);
  module.def("export_formats", &Formats,
             "export_formats() -> dict[str, str]\n"
             "\n"
             "Returns the formats of Building.export. The value is the component that this build\n"
             "lacks for the format; it is empty if the format can be written.");
}

}  // namespace KelIFC::python
