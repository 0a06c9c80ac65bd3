#include "python/source/bindings.h"
#include "python/source/define_class.h"
#include "python/source/structure_fields.h"
#include "tools/kelifc/structure_format.h"

namespace KelIFC::python {

void BindStructure(py::module_& module) {
  DefineClassAndList<command::Storey>(module);
  DefineClass<command::Boundary>(module);
  DefineClassAndList<command::Element>(module);
  DefineClassAndList<command::Beam>(module);
  DefineClassAndList<command::Wall>(module);
  DefineClassAndList<command::Plate>(module);
  DefineClassAndList<command::Foot>(module);
  DefineClassAndList<command::Section>(module);
  DefineClass<command::Structure>(module).def(
      "to_json",
      [](const View<command::Structure>& self, const std::string& file) {
        return ToText(command::StructureJson(file, *self.item));
      },
      py::arg("file") = "",
      "to_json(file: str = '') -> str\n\nReturns what `kelifc structure --json` prints. `file` is "
      "the path that it names.");
}

}  // namespace KelIFC::python
