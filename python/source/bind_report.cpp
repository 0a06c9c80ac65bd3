#include <memory>

#include "python/source/bindings.h"
#include "python/source/define_class.h"
#include "python/source/report.h"

namespace KelIFC::python {

void BindReport(py::module_& module) {
  DefineClassAndList<Finding>(module);
  auto type = DefineClass<Report>(module);
  type.def(
      "to_json", [](const View<Report>& self) { return ToText(self.item->json); },
      "to_json() -> str\n\nReturns the report as a JSON object.");
  type.def(
      "__str__", [](const View<Report>& self) { return ToText(self.item->text); },
      "__str__() -> str");
}

}  // namespace KelIFC::python
