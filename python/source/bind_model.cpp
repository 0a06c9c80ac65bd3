#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "python/source/bindings.h"
#include "python/source/define_class.h"
#include "python/source/errors.h"
#include "python/source/instance.h"
#include "python/source/model.h"
#include "python/source/progress.h"
#include "python/source/report.h"
#include "python/source/structure_fields.h"
#include "python/source/values.h"
#include "python/source/whole_building_fields.h"
#include "tools/kelifc/failure.h"
#include "tools/kelifc/model_file.h"
#include "tools/kelifc/structure_reader.h"

namespace KelIFC::python {
namespace {

using Shared = std::shared_ptr<Model>;

STEP_DIALECT DialectOf(const std::string& name) {
  if (name == "iso") return STEP_DIALECT_ISO;
  if (name == "classic") return STEP_DIALECT_CLASSIC;
  Raise(PyExc_ValueError, "unknown dialect '" + name + "'; it must be 'iso' or 'classic'");
}

LoadOptions OptionsOf(const std::string& dialect, const LoadLimits& limits) {
  LoadOptions options;
  options.dialect = DialectOf(dialect);
  options.limits = limits;
  options.keepUnknown = true;  // Python can read entities that have no class
  return options;
}

Shared OpenPath(const std::string& path, const std::string& dialect, const LoadLimits& limits,
                const py::object& progress) {
  const LoadOptions options = OptionsOf(dialect, limits);
  std::unique_ptr<command::ModelSource> source;
  try {
    const py::gil_scoped_release released;
    // The command reads standard input for `-`; here it is a file.
    source = std::make_unique<command::ModelSource>(path == "-" ? "./-" : path);
  } catch (const command::Failure& failure) {
    std::string reason = failure.what();
    if (reason.rfind(path + ": ", 0) == 0) reason.erase(0, path.size() + 2);
    const bool isMissing = failure.GetStatus() == command::Status::kMissing;
    RaiseFileError(isMissing ? "NotBuiltError" : "OpenError", path, reason);
  }
  return std::make_shared<Model>(std::move(source), path, options, progress);
}

Shared OpenBytes(const py::bytes& content, const std::string& name, const std::string& dialect,
                 const LoadLimits& limits, const py::object& progress) {
  return std::make_shared<Model>(content, name, OptionsOf(dialect, limits), progress);
}

Instance InstanceAt(const Shared& model, std::size_t number) {
  if (number == 0 || model->Server().GetItem(number) == nullptr) {
    throw py::key_error("the model has no instance #" + std::to_string(number));
  }
  return Instance(model, number);
}

Instance InstanceByGuid(const Shared& model, const std::string& guid) {
  const std::size_t number = model->FindGuid(guid);
  if (number == 0)
    throw py::key_error("the model has no instance with the GlobalId '" + guid + "'");
  return Instance(model, number);
}

py::object GetItem(const Shared& model, const py::object& key) {
  if (py::isinstance<py::str>(key)) {
    return py::cast(InstanceByGuid(model, py::cast<std::string>(key)));
  }
  return py::cast(InstanceAt(model, py::cast<std::size_t>(key)));
}

/// The instances in ascending order of their numbers. Instances may be added and removed meanwhile.
struct Iteration {
  Shared model;
  std::uint64_t epoch;
  std::size_t last = 0;

  Instance Next() {
    IfcServer& server = model->Server();
    if (model->GetEpoch() == epoch) {
      while ((last = server.GetNextNumber(last)) != 0) {
        if (server.GetItem(last) != nullptr) return Instance(model, last);
      }
    }
    epoch = model->GetEpoch() + 1;  // an iteration that has ended does not begin again
    throw py::stop_iteration();
  }
};

/// Decides for each class once whether it is wanted.
class TypeFilter {
 public:
  TypeFilter(const std::string& name, bool hasSubtypes, IFC_RELEASE release)
      : name(name), hasSubtypes(hasSubtypes), wanted(FindEntity(release, name)) {}

  bool Takes(const IfcUnknown& item) {
    const EntityDescription* const entity = DescribeInstance(item);
    if (entity == nullptr) return IsSameName(InstanceView(item).EntityName(), name);
    if (wanted == nullptr) return false;
    if (!hasSubtypes) return entity == wanted;
    const auto [at, isNew] = isWanted.try_emplace(entity, false);
    if (isNew) at->second = entity->IsKindOf(*wanted);
    return at->second;
  }

 private:
  std::string name;
  bool hasSubtypes;
  const EntityDescription* wanted;
  std::unordered_map<const EntityDescription*, bool> isWanted;
};

std::vector<Instance> InstancesOf(const Shared& model, const std::string& name, bool subtypes) {
  IfcServer& server = model->Server();
  TypeFilter filter(name, subtypes, server.GetRelease());
  std::vector<Instance> found;
  for (std::size_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) {
    const IfcUnknown* const item = server.GetItem(n);
    if (item != nullptr && filter.Takes(*item)) found.emplace_back(model, n);
  }
  if (found.empty()) RequireKnownName(name);
  return found;
}

py::list ToList(const std::vector<Instance>& instances) {
  py::list list(instances.size());
  for (std::size_t i = 0; i < instances.size(); ++i) list[i] = py::cast(instances[i]);
  return list;
}

py::list ByType(const Shared& model, const std::string& name, bool subtypes) {
  return ToList(InstancesOf(model, name, subtypes));
}

py::list Referrers(const Shared& model, const Instance& instance) {
  instance.Get();
  py::list list;
  if (instance.GetModel() != model)
    Raise(PyExc_ValueError, "the instance belongs to another model");
  std::size_t last = 0;  // an instance can refer in several attributes
  for (const Model::Reference& reference : model->ReferencesTo(instance.GetNumber())) {
    if (reference.number != last) list.append(py::cast(Instance(model, reference.number)));
    last = reference.number;
  }
  return list;
}

void SetAll(const Instance& instance, const py::args& values, const py::kwargs& named) {
  const py::object self = py::cast(instance);
  std::size_t position = 0;
  for (const py::handle value : values) SetValue(instance, position++, value);
  for (const auto& [name, value] : named) {
    const auto text = py::cast<std::string>(name);
    if (text.empty() || text[0] < 'A' || text[0] > 'Z') {
      Raise(PyExc_AttributeError, instance.EntityName() + " has no attribute '" + text + "'");
    }
    py::setattr(self, name, value);
  }
}

Instance Add(const Shared& model, const std::string& entity, const py::args& values,
             const py::kwargs& named) {
  const std::size_t number = model->Add(entity);
  const Instance instance(model, number);
  try {
    SetAll(instance, values, named);
  } catch (...) {
    model->Remove(number);
    throw;
  }
  return instance;
}

void Remove(const Shared& model, const Instance& instance) {
  instance.Get();
  if (instance.GetModel() != model)
    Raise(PyExc_ValueError, "the instance belongs to another model");
  model->Remove(instance.GetNumber());
}

void Save(const Shared& model, const py::object& path, bool faithful, const py::object& function) {
  const auto name = py::cast<std::string>(py::module_::import("os").attr("fsdecode")(path));
  Progress progress(function);
  IfcServer& server = model->Server();
  // The server keeps the handler.
  const auto told = std::make_shared<std::string>();
  server.SetErrorHandler([told](const std::string& message) { *told = message; });
  int code = SAVE_RESULT_SAVED;
  {
    const Model::Use use(*model);
    SaveOptions options;
    options.faithful = faithful;
    options.progress = progress.GetHandler();
    code = server.SaveIfc(name.c_str(), options);
  }
  progress.RethrowIfFailed();
  std::string reason = *told;
  if (reason.rfind(name + ": ", 0) == 0) reason.erase(0, name.size() + 2);
  if (code == SAVE_RESULT_CANCELLED) RaiseFileError("CancelledError", name, reason);
  if (code != SAVE_RESULT_SAVED) RaiseFileError("SaveError", name, reason);
}

void RequireConvertible(const Shared& model) {
  const IFC_RELEASE release = model->Server().GetRelease();
  if (release >= IFC_RELEASE_2X) return;
  RaiseFileError("ConversionError", model->GetName(),
                 std::string("release ") + command::ReleaseText(release) + " cannot be converted");
}

/// Calls `convert` with the interpreter lock released. `function` is the progress function.
template <class Convert>
void ConvertWithProgress(const Shared& model, const py::object& function, Convert convert) {
  Progress progress(function);
  try {
    const Model::Use use(*model);
    convert(progress.GetHandler());
  } catch (const ReadingCancelled&) {
    progress.RethrowIfFailed();
    RaiseFileError("CancelledError", model->GetName(), "the conversion was cancelled");
  } catch (const StatusError& error) {
    RaiseFileError("ConversionError", model->GetName(), error.what());
  }
}

View<command::Structure> ReadStructure(const Shared& model, const py::object& progress) {
  RequireConvertible(model);
  const auto structure = std::make_shared<command::Structure>();
  const IFC_RELEASE release = model->Server().GetRelease();
  IIFCServer& object = model->Object();
  ConvertWithProgress(model, progress, [&](const ProgressHandler& handler) {
    const ComPtr<IGeoStructure> collections = Get(object, &IIFCServer::get_Structure);
    command::ConvertCollections(collections, handler);
    *structure = command::ReadStructure(collections);
  });
  structure->release = command::ReleaseText(release);
  return {structure, structure.get()};
}

KeptBodies KeptBodiesOf(const std::string& name) {
  if (name == "none") return KeptBodies::kNone;
  if (name == "bodies") return KeptBodies::kOfBodies;
  if (name == "all") return KeptBodies::kAll;
  Raise(PyExc_ValueError, "unknown meshes '" + name + "'; it must be 'none', 'bodies' or 'all'");
}

View<Building> ReadPyBuilding(const Shared& model, const std::string& meshes, std::size_t maxPoints,
                              std::size_t maxBodyPoints, std::size_t maxDepth,
                              const py::object& progress) {
  RequireConvertible(model);
  ReadingOptions options;
  options.keptBodies = KeptBodiesOf(meshes);
  options.maxPoints = maxPoints;
  options.maxBodyPoints = maxBodyPoints;
  options.maxDepth = maxDepth;
  const auto building = std::make_shared<Building>();
  IfcServer& server = model->Server();
  ConvertWithProgress(model, progress, [&](const ProgressHandler& handler) {
    options.progress = handler;
    *building = ReadBuilding(server, options);
  });
  return {building, building.get()};
}

View<Report> ReportOf(const Shared& model) {
  IfcServer& server = model->Server();
  const bool isIso = server.GetDialect() == STEP_DIALECT_ISO;
  const auto report = std::make_shared<Report>(CopyReport(server.GetLoadReport(), isIso));
  return {report, report.get()};
}

View<Report> Check(const Shared& model) {
  IfcServer& server = model->Server();
  bool isComplete = false;
  {
    const Model::Use use(*model);
    isComplete = server.CheckModel();
  }
  if (!isComplete) {
    const bool hasChanged = server.GetLoadReport().hasSourceChanged;
    RaiseFileError(
        "OpenError", model->GetName(),
        hasChanged ? "the file changed after the load" : "the source cannot be read again");
  }
  return ReportOf(model);
}

[[noreturn]] py::object RefusePickle(const Shared& /*model*/, int /*protocol*/) {
  Raise(PyExc_TypeError,
        "a model cannot be pickled, because its instances refer to it; pickle model.building(), or "
        "save the model and open it again");
}

void BindLimits(py::module_& module) {
  const LoadLimits standard;
  py::class_<LoadLimits> type(
      module, "Limits",
      "The sizes at which a load ends with LimitError. 0 means no limit. Sizes are in bytes.",
      py::is_final());
  type.def(py::init([](std::uint64_t bytes, std::uint64_t instances, std::uint64_t statement,
                       std::uint64_t memory) {
             return LoadLimits{bytes, instances, statement, memory};
           }),
           py::kw_only(), py::arg("max_bytes") = standard.maxBytes,
           py::arg("max_instances") = standard.maxInstances,
           py::arg("max_statement_bytes") = standard.maxStatementBytes,
           py::arg("max_memory_bytes") = standard.maxMemoryBytes,
           "__init__(*, max_bytes: int = ..., max_instances: int = ..., max_statement_bytes: int = "
           "..., max_memory_bytes: int = ...) -> None");
  type.def_readonly("max_bytes", &LoadLimits::maxBytes, "The length of the file.");
  type.def_readonly("max_instances", &LoadLimits::maxInstances, "The number of instances.");
  type.def_readonly("max_statement_bytes", &LoadLimits::maxStatementBytes,
                    "The length of one statement.");
  type.def_readonly("max_memory_bytes", &LoadLimits::maxMemoryBytes, "The memory of the model.");
  py::dict annotations;
  for (const char* name :
       {"max_bytes", "max_instances", "max_statement_bytes", "max_memory_bytes"}) {
    annotations[name] = "int";
  }
  type.attr("__annotations__") = annotations;
}

void BindIteration(py::module_& module) {
  py::class_<Iteration>(module, "InstanceIterator", "The instances of a model.", py::is_final())
      .def(
          "__iter__", [](py::object self) { return self; }, "__iter__() -> InstanceIterator")
      .def("__next__", &Iteration::Next, "__next__() -> Instance");
}

constexpr const char* kDoc =
    "A model: the instances of a file, or of a model that is built in memory.\n"
    "\n"
    "`kelifc.open` loads a model; `Model('IFC2X3')` is an empty one. `model[12]` is the instance\n"
    "with a number, and iteration returns all instances by ascending numbers. One thread at a "
    "time\n"
    "can use a model: while a thread loads, saves or converts it, any other use raises\n"
    "RuntimeError. A model cannot be pickled; a building can.";

using ModelClass = py::class_<Model, Shared>;

void DefineAccess(ModelClass& type) {
  type.def(
      "__repr__",
      [](Model& self) {
        const std::size_t count = self.Server().GetNumberCount();
        return py::str("<Model {}, {} instances>")
            .format(ToText(self.TextOf(self.Server().GetFileSchema())), count);
      },
      "__repr__() -> str");
  type.def(
      "__len__", [](Model& self) { return self.Server().GetNumberCount(); },
      "__len__() -> int\n\nReturns the number of instances.");
  type.def(
      "__iter__",
      [](const Shared& self) {
        return Iteration{self, self->GetEpoch()};
      },
      "__iter__() -> InstanceIterator");
  type.def("__getitem__", &GetItem, py::arg("key"),
           "__getitem__(key: int | str) -> Instance\n\nReturns the instance with a number or a "
           "GlobalId. Raises KeyError if there is none.");
  type.def("by_id", &InstanceAt, py::arg("id"),
           "by_id(id: int) -> Instance\n\nReturns the instance with a number. Raises KeyError if "
           "there is none.");
  type.def("by_guid", &InstanceByGuid, py::arg("guid"),
           "by_guid(guid: str) -> Instance\n\nReturns the first instance with a GlobalId. Raises "
           "KeyError if there is none.");
  type.def("referrers", &Referrers, py::arg("instance"),
           "referrers(instance: Instance) -> list[Instance]\n"
           "\n"
           "Returns the instances that refer to an instance. The first call after a change is\n"
           "linear in the size of the model.");
}

void DefineTypes(ModelClass& type) {
  type.def("by_type", &ByType, py::arg("name"), py::arg("subtypes") = true,
           "by_type(name: str, subtypes: bool = True, *, include_subtypes: bool = True) -> "
           "list[Instance]\n"
           "\n"
           "Returns the instances of an entity and, with subtypes, of those that derive from it,\n"
           "by ascending numbers. include_subtypes is the same as subtypes. Raises ValueError if\n"
           "no release has an entity of this name.");
  type.def("by_type", &ByType, py::arg("name"), py::kw_only(), py::arg("include_subtypes"));
}

void DefineChanges(ModelClass& type) {
  const char* const addDoc =
      "(entity: str, /, *values: Any, **attributes: Any) -> Instance\n"
      "\n"
      "Makes an instance of an entity, with a new GlobalId if it has one. Values are set by\n"
      "position, attributes by name. Raises ValueError if the release does not have the\n"
      "entity; if a value does not fit, no instance is made.";
  static const std::string add = std::string("add") + addDoc;
  static const std::string create = std::string("create_entity") + addDoc;
  type.def("add", &Add, add.c_str());
  type.def("create_entity", &Add, create.c_str());
  type.def("remove", &Remove, py::arg("instance"),
           "remove(instance: Instance) -> None\n\nRemoves an instance. References to it are None "
           "from now on.");
  type.def("clear", &Model::Clear,
           "clear() -> None\n\nRemoves all instances. The schema does not change.");
}

void DefineFiles(ModelClass& type) {
  const char* const saveDoc =
      "(path: StrPath, faithful: bool = False, *, progress: Callable[[int, int], object] | None = "
      "None) -> None\n"
      "\n"
      "Writes the model to a file. With faithful, what did not change is copied from the\n"
      "source of the model. `progress` is called with the work done and the work in total:\n"
      "instances, or with faithful bytes of the source in two passes. If it returns False,\n"
      "CancelledError is raised. Raises SaveError if the file cannot be written. After an\n"
      "exception the old file is as it was.";
  static const std::string save = std::string("save") + saveDoc;
  static const std::string write = std::string("write") + saveDoc;
  for (const auto& [name, doc] : {std::pair("save", &save), std::pair("write", &write)}) {
    type.def(name, &Save, py::arg("path"), py::arg("faithful") = false, py::kw_only(),
             py::arg("progress") = py::none(), doc->c_str());
  }
  type.def("check", &Check,
           "check() -> Report\n"
           "\n"
           "Looks for references that lead nowhere and for values that cannot be read, and\n"
           "returns the complete report. Reads the file again. Raises OpenError if that fails.");
}

void DefineConversions(ModelClass& type) {
  const ReadingOptions standard;
  type.def("structure", &ReadStructure, py::kw_only(), py::arg("progress") = py::none(),
           "structure(*, progress: Callable[[int, int], object] | None = None) -> Structure\n"
           "\n"
           "Converts the model into a structure of storeys, columns, beams, walls, plates, foots\n"
           "and sections. The model converts once: later changes of instances do not change the\n"
           "structure. `progress` is called with the number of these collections that are done\n"
           "and with 7. If it returns False, CancelledError is raised. Raises ConversionError\n"
           "for the releases 1.5.1 and 2.0.");
  type.def(
      "building", &ReadPyBuilding, py::kw_only(), py::arg("meshes") = "bodies",
      py::arg("max_points") = standard.maxPoints,
      py::arg("max_body_points") = standard.maxBodyPoints, py::arg("max_depth") = standard.maxDepth,
      py::arg("progress") = py::none(),
      "building(*, meshes: str = 'bodies', max_points: int = ..., max_body_points: int = ..., "
      "max_depth: int = ..., progress: Callable[[int, int], object] | None = None) -> Building\n"
      "\n"
      "Reads all structural elements. `meshes` says which elements keep the boundary of\n"
      "their body: 'none', 'bodies' (those of the kind body) or 'all'. An element with more\n"
      "points, or deeper nesting, than the limits becomes a loss. `progress` is called with\n"
      "the steps done and the steps in total, two for each product. If it returns False,\n"
      "CancelledError is raised. Raises ConversionError for the releases 1.5.1 and 2.0.");
}

}  // namespace

void BindModel(py::module_& module) {
  BindLimits(module);
  BindIteration(module);
  ModelClass type(module, "Model", kDoc, py::is_final());
  type.def(
      py::init([](const std::string& schema, const std::string& dialect) {
        DialectOf(dialect);
        return std::make_shared<Model>(schema, dialect);
      }),
      py::arg("schema") = "IFC2X3", py::arg("dialect") = "iso",
      "__init__(schema: str = 'IFC2X3', dialect: str = 'iso') -> None\n\nMakes an empty model.");
  type.def_property_readonly(
      "release", [](Model& self) { return command::ReleaseText(self.Server().GetRelease()); },
      "The release of the schema: '1.5.1', '2.0', '2x', '2x2' or '2x3'.");
  type.def_property_readonly(
      "schema", [](Model& self) { return ToText(self.TextOf(self.Server().GetFileSchema())); },
      "The schema as the file names it, such as 'IFC2X3'.");
  type.def_property_readonly(
      "dialect",
      [](Model& self) {
        return self.Server().GetDialect() == STEP_DIALECT_ISO ? "iso" : "classic";
      },
      "The rules for the text of the file: 'iso' or 'classic'.");
  type.def_property_readonly("report", &ReportOf, "What the load met in the file.");
  py::dict annotations;
  for (const char* name : {"release", "schema", "dialect"}) annotations[name] = "str";
  annotations["report"] = "Report";
  type.attr("__annotations__") = annotations;
  DefineAccess(type);
  DefineTypes(type);
  DefineChanges(type);
  DefineFiles(type);
  DefineConversions(type);
  type.def("__reduce_ex__", &RefusePickle, "__reduce_ex__(protocol: SupportsIndex) -> NoReturn");
  module.def("open_path", &OpenPath,
             "open_path(path: str, dialect: str, limits: Limits, progress: Callable[[int, int], "
             "object] | None) -> Model");
  module.def("open_bytes", &OpenBytes,
             "open_bytes(content: bytes, name: str, dialect: str, limits: Limits, progress: "
             "Callable[[int, int], object] | None) -> Model");
}

}  // namespace KelIFC::python
