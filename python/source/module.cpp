#include <pybind11/pybind11.h>

#include <string>

#include "python/source/bindings.h"

namespace KelIFC::python {

PYBIND11_MODULE(_kelifc, module) {
  py::options options;
  options.disable_function_signatures();
  options.disable_enum_members_docstring();
  module.doc() = "The compiled part of the package kelifc, which exports its names.";
  module.attr("__version__") = KELIFC_VERSION;
  BindReport(module);
  BindInstance(module);
  BindStructure(module);
  BindBuilding(module);
  BindExport(module);
  BindTables(module);
  BindModel(module);
  py::list names;
  for (const auto& [name, member] : py::cast<py::dict>(module.attr("__dict__"))) {
    if (!py::cast<std::string>(name).starts_with("_")) names.append(name);
  }
  module.attr("__all__") = names;
}

}  // namespace KelIFC::python
