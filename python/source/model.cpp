#include "python/source/model.h"

#include <utility>

#include "python/source/errors.h"
#include "python/source/progress.h"
#include "tools/kelifc/model_file.h"

namespace KelIFC::python {
namespace {

/// Calls `visit` with the number of each reference in a value.
template <class Visit>
void VisitReferences(const AttributeValue& value, Visit visit) {
  if (value.AsReferenceNumber() != 0) visit(value.AsReferenceNumber());
  for (std::size_t i = 0; i < value.Size(); ++i) VisitReferences(value.At(i), visit);
}

/// The position of the attribute GlobalId of an instance; none if it has none.
std::optional<std::size_t> GuidPosition(const EntityDescription* entity) {
  const AttributeDescription* const guid =
      entity == nullptr ? nullptr : entity->FindAttribute("GlobalId");
  if (guid == nullptr || guid->read == nullptr || guid->position < 0) return std::nullopt;
  return static_cast<std::size_t>(guid->position);
}

std::string GuidOf(const IfcUnknown& instance) {
  const auto position = GuidPosition(DescribeInstance(instance));
  return position ? std::string(ReadAttribute(instance, *position).AsText()) : std::string();
}

}  // namespace

Model::Model(const std::string& schema, const std::string& dialect)
    : object(CreateServer()),
      ifc(GetModel(object.Get())),
      content(py::none()),
      emptySchema(schema),
      emptyDialect(dialect) {
  LoadEmpty();
}

Model::Model(std::unique_ptr<command::ModelSource> file, const std::string& name,
             const LoadOptions& options, const py::object& progress)
    : object(CreateServer()),
      ifc(GetModel(object.Get())),
      name(name),
      source(std::move(file)),
      content(py::none()) {
  LoadBy(progress, [&] { return ifc->LoadIfc(source->GetPath().c_str(), options); });
  emptyDialect = options.dialect == STEP_DIALECT_ISO ? "iso" : "classic";
}

Model::Model(py::bytes bytes, const std::string& name, const LoadOptions& options,
             const py::object& progress)
    : object(CreateServer()), ifc(GetModel(object.Get())), name(name), content(std::move(bytes)) {
  const char* const data = PyBytes_AS_STRING(content.ptr());
  const auto size = static_cast<std::size_t>(PyBytes_GET_SIZE(content.ptr()));
  LoadBy(progress, [&] { return ifc->LoadIfcMemory(data, size, options); });
  emptyDialect = options.dialect == STEP_DIALECT_ISO ? "iso" : "classic";
}

// A new server has the classic dialect, and only a load changes it.
void Model::LoadEmpty() {
  const std::string file =
      "ISO-10303-21;\nHEADER;\nFILE_DESCRIPTION((''),'2;1');\nFILE_NAME('','',(''),(''),'','','');"
      "\n"
      "FILE_SCHEMA(('" +
      emptySchema + "'));\nENDSEC;\nDATA;\nENDSEC;\nEND-ISO-10303-21;\n";
  LoadOptions options;
  options.dialect = emptyDialect == "iso" ? STEP_DIALECT_ISO : STEP_DIALECT_CLASSIC;
  const bool isPlain = emptySchema.find_first_of("'\\\n;") == std::string::npos;
  content = py::bytes(file);
  const char* const data = PyBytes_AS_STRING(content.ptr());
  const int code = isPlain ? ifc->LoadIfcMemory(data, file.size(), options) : 1;
  if (code != LOAD_RESULT_LOADED || ifc->GetRelease() == IFC_RELEASE_NONE) {
    Raise(PyExc_ValueError, "unknown schema '" + emptySchema + "'");
  }
}

template <class Load>
void Model::LoadBy(const py::object& function, Load load) {
  Progress progress(function);
  ifc->SetProgressHandler(progress.GetHandler());
  int code = LOAD_RESULT_LOADED;
  {
    const py::gil_scoped_release released;
    code = load();
  }
  ifc->SetProgressHandler(nullptr);
  progress.RethrowIfFailed();
  if (code != LOAD_RESULT_LOADED) RaiseLoadError(code);
  emptySchema = ifc->GetFileSchema();
}

void Model::RaiseLoadError(int code) {
  const auto raise = [this](const char* errorClass, const std::string& reason) {
    RaiseFileError(errorClass, name, reason, ifc->GetLoadReport().failure);
  };
  const std::string cause = command::CauseOf(code, TextOf(ifc->GetFileSchema()));
  switch (code) {
    case LOAD_RESULT_CANNOT_OPEN:
      raise("OpenError", "the file cannot be opened");
      break;
    case LOAD_RESULT_CANCELLED:
      raise("CancelledError", "the load was cancelled");
      break;
    case LOAD_RESULT_LIMIT_REACHED:
      raise("LimitError", cause);
      break;
    case LOAD_RESULT_UNSUPPORTED_RELEASE:
      raise("UnsupportedReleaseError", cause);
      break;
    default:
      raise("OpenError", cause);
  }
}

std::size_t Model::Add(const std::string& entity) {
  IfcServer& server = Server();
  const EntityDescription* const description = FindEntity(server.GetRelease(), entity);
  if (description == nullptr || description->form != EntityForm::kEntity) {
    Raise(PyExc_ValueError, std::string(command::ReleaseText(server.GetRelease())) +
                                " has no entity '" + entity + "'");
  }
  IfcUnknown* const item = server.CreateItem(entity.c_str());
  if (item == nullptr) Raise(PyExc_ValueError, "no instance of '" + entity + "' can be made");
  if (const auto position = GuidPosition(description)) {
    const bool isOld = server.GetRelease() < IFC_RELEASE_2X;
    const std::string guid = isOld ? IfcServer::CreateGlobalId() : IfcServer::CreateGlobalId2x();
    // The alphabet of 1.5.1 and 2.0 contains quotes.
    std::string text = "'";
    for (const char c : guid) {
      if (c == '\'' || c == '\\') text += '\\';
      text += c;
    }
    WriteAttribute(*item, *position, text + "'");
  }
  const std::size_t number = server.Find(item);
  NoteGuid(number);
  NoteReference();
  return number;
}

void Model::Remove(std::size_t number) {
  if (Server().DeleteItem(Server().GetItem(number)) != 0) ++generations[number];
  NoteReference();
}

void Model::Clear() {
  Server();
  ++epoch;
  generations.clear();
  guids.clear();
  areGuidsKnown = false;
  NoteReference();
  LoadEmpty();
}

void Model::IndexGuids() {
  guids.clear();
  IfcServer& server = Server();
  for (std::size_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) {
    const IfcUnknown* const item = server.GetItem(n);
    if (item == nullptr) continue;
    if (std::string guid = GuidOf(*item); !guid.empty()) guids.try_emplace(std::move(guid), n);
  }
  areGuidsKnown = true;
}

std::size_t Model::FindGuid(const std::string& guid) {
  if (!areGuidsKnown) IndexGuids();
  auto found = guids.find(guid);
  if (found == guids.end()) return 0;
  const IfcUnknown* item = Server().GetItem(found->second);
  if (item != nullptr && GuidOf(*item) == guid) return found->second;
  IndexGuids();  // the instance was removed or has another GlobalId now
  found = guids.find(guid);
  return found == guids.end() ? 0 : found->second;
}

void Model::NoteGuid(std::size_t number) {
  const IfcUnknown* const item = areGuidsKnown ? Server().GetItem(number) : nullptr;
  if (item == nullptr) return;
  const auto [at, isNew] = guids.try_emplace(GuidOf(*item), number);
  if (!isNew && number < at->second) at->second = number;
}

void Model::IndexReferences() {
  references.clear();
  IfcServer& server = Server();
  for (std::size_t n = server.GetNextNumber(0); n != 0; n = server.GetNextNumber(n)) {
    const IfcUnknown* const item = server.GetItem(n);
    if (item == nullptr) continue;
    const InstanceView view(*item);
    for (std::size_t i = 0; i < view.Size(); ++i) {
      VisitReferences(view[i], [&](std::size_t target) {
        std::vector<Reference>& list = references[target];
        const Reference reference{n, i};
        if (list.empty() || list.back() != reference) list.push_back(reference);
      });
    }
  }
  areReferencesKnown = true;
}

const std::vector<Model::Reference>& Model::ReferencesTo(std::size_t number) {
  static const std::vector<Reference> none;
  if (!areReferencesKnown) IndexReferences();
  const auto found = references.find(number);
  return found == references.end() ? none : found->second;
}

std::string Model::TextOf(std::string_view text) { return command::Utf8FromModel(*ifc, text); }

void Model::RaiseBusy() {
  Raise(PyExc_RuntimeError, "the model is being loaded, saved or converted");
}

}  // namespace KelIFC::python
