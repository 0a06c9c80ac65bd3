#include <cstring>
#include <memory>
#include <string>
#include <string_view>
#include <typeinfo>

#include "kelifc/core/bounding_box.h"
#include "kelifc/core/cartesian_point.h"
#include "kelifc/core/detail/cursor.h"
#include "kelifc/core/length_measure.h"
#include "kelifc/core/other.h"
#include "kelifc/core/parameter_value.h"
#include "kelifc/core/step_file_schema.h"
#include "kelifc/core/unit_assignment.h"
#include "kelifc/server/ifc_server.h"
#include "kelifc/server/name_table.h"
#include "kelifc/server/release_tables.h"

// Makes instances from the names of entities.

namespace KelIFC {
namespace {

// The names that all releases share. Three measures have one class and are saved under its name.
constexpr NameRow kCoreRows[] = {
    {"FILE_SCHEMA", MakeNew<StepFileSchema>},
    {"IFCBOUNDINGBOX", MakeNew<IfcBoundingBox>},
    {"IFCCARTESIANPOINT", MakeNew<IfcCartesianPoint>},
    {"IFCLENGTHMEASURE", MakeNew<IfcLengthMeasure>},
    {"IFCRATIOMEASURE", MakeNew<IfcLengthMeasure>},
    {"IFCPOSITIVELENGTHMEASURE", MakeNew<IfcLengthMeasure>},
    {"IFCPARAMETERVALUE", MakeNew<IfcParameterValue>},
    {"IFCUNITASSIGNMENT", MakeNew<IfcUnitAssignment>},
};
constexpr NameTable kCoreTable(kCoreRows);

// Makes an IfcOther for an entity that the release does not know.
IfcUnknown* MakeOther(std::string_view name) {
  try {
    auto other = std::make_unique<IfcOther>();
    other->SetStepEntityName(std::string(name).c_str());
    return other.release();
  } catch (const std::bad_alloc&) {
    return nullptr;
  }
}

// Returns the length of the entity name at `start`: up to the first parenthesis, without the blanks
// before it. If there is no parenthesis, or if the text begins with one, the rest of the text is
// the name.
std::size_t GetNameLength(const char* start) {
  const char* end = std::strchr(start, '(');
  if (end == nullptr || end == start) return std::strlen(start);
  while (detail::IsBlank(end[-1])) --end;
  return static_cast<std::size_t>(end - start);
}

// The own names of a release.
struct OwnNames {
  IfcUnknown* (*make)(const EntityName& name) = nullptr;
  bool keepsOther = false;  // an unknown name makes an IfcOther
};

OwnNames OwnNamesOf(IFC_RELEASE release) {
  switch (release) {
    case IFC_RELEASE_151:
      return {MakeInstance151, false};
    case IFC_RELEASE_20:
      return {MakeInstance20, false};
    case IFC_RELEASE_2X:
      return {MakeInstance2x, false};
    case IFC_RELEASE_2X2:
      return {MakeInstance2x2, true};
    case IFC_RELEASE_2X3:
      return {MakeInstance2x3, true};
    default:
      return {};
  }
}

// Returns the same as IfcServer::MakeByRelease, without calls of operations that a derived class
// can override.
IfcUnknown* MakeNamed(IFC_RELEASE release, const EntityName& name) {
  if (IfcUnknown* const shared = kCoreTable.Make(name)) return shared;
  const OwnNames own = OwnNamesOf(release);
  IfcUnknown* const made = own.make == nullptr ? nullptr : own.make(name);
  return made == nullptr && own.keepsOther ? MakeOther(name.GetText()) : made;
}

}  // namespace

IfcUnknown* IfcServer::ParseClass(const char* text, const char** end) {
  if (text == nullptr) return nullptr;
  const char* start = detail::SkipBlanks(text);
  const std::string_view name(start, GetNameLength(start));
  if (end != nullptr) *end = start + name.size();
  if (&typeid(*this) == &typeid(IfcServer)) return MakeNamed(release, name);
  return MakeByRelease(std::string(name).c_str());
}

IfcUnknown* IfcServer::MakeRaw(const char* text) {
  const char* start = detail::SkipBlanks(text);
  return MakeOther({start, GetNameLength(start)});
}

IfcUnknown* IfcServer::MakeByRelease(const char* name) {
  switch (release) {
    case IFC_RELEASE_151:
      return InstantiateClass151(name);
    case IFC_RELEASE_20:
      return InstantiateClass20(name);
    case IFC_RELEASE_2X:
      return InstantiateClass2x(name);
    case IFC_RELEASE_2X2:
      return InstantiateClass2x2(name);
    case IFC_RELEASE_2X3:
      return InstantiateClass2x3(name);
    default:
      return InstantiateClass(name);
  }
}

IfcUnknown* IfcServer::CreateItem(const char* name) {
  IfcUnknown* item = name == nullptr ? nullptr : MakeByRelease(name);
  if (item != nullptr) AddItem(item);
  return item;
}

IfcUnknown* IfcServer::InstantiateClass(const char* name) {
  return name == nullptr ? nullptr : kCoreTable.Make(name);
}

IfcUnknown* IfcServer::InstantiateClass151(const char* name) {
  if (IfcUnknown* shared = InstantiateClass(name)) return shared;
  return name == nullptr ? nullptr : MakeInstance151(name);
}

IfcUnknown* IfcServer::InstantiateClass20(const char* name) {
  if (IfcUnknown* shared = InstantiateClass(name)) return shared;
  return name == nullptr ? nullptr : MakeInstance20(name);
}

IfcUnknown* IfcServer::InstantiateClass2x(const char* name) {
  if (IfcUnknown* shared = InstantiateClass(name)) return shared;
  return name == nullptr ? nullptr : MakeInstance2x(name);
}

IfcUnknown* IfcServer::InstantiateClass2x2(const char* name) {
  if (IfcUnknown* shared = InstantiateClass(name)) return shared;
  if (name == nullptr) return nullptr;
  IfcUnknown* own = MakeInstance2x2(name);
  return own == nullptr ? MakeOther(name) : own;
}

IfcUnknown* IfcServer::InstantiateClass2x3(const char* name) {
  if (IfcUnknown* shared = InstantiateClass(name)) return shared;
  if (name == nullptr) return nullptr;
  IfcUnknown* own = MakeInstance2x3(name);
  return own == nullptr ? MakeOther(name) : own;
}

}  // namespace KelIFC
