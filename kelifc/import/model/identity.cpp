#include "kelifc/import/model/identity.h"

namespace KelIFC {

std::string NumberName(std::size_t instanceNumber) {
  return "IFC#" + std::to_string(instanceNumber);
}

}  // namespace KelIFC
