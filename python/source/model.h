#ifndef PYTHON_SOURCE_MODEL_H_
#define PYTHON_SOURCE_MODEL_H_

#include <pybind11/pybind11.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "kelifc/kelifc.h"

#include "tools/kelifc/model_source.h"

namespace KelIFC::python {

namespace py = pybind11;

/// A model as Python holds it. All changes of the model go through its operations, so it knows
/// whether an instance still exists.
///
/// A thread that loads, saves or converts releases the interpreter lock. The model is busy
/// meanwhile, and every other use raises RuntimeError.
class Model {
 public:
  /// An empty model of a release, which is a schema such as "IFC2X3". Raises ValueError.
  Model(const std::string& schema, const std::string& dialect);

  /// Loads a file, which may be packed. `name` is the path for messages. Raises OpenError.
  Model(std::unique_ptr<command::ModelSource> source, const std::string& name,
        const LoadOptions& options, const py::object& progress);

  /// Loads the bytes of a file. Raises OpenError.
  Model(py::bytes content, const std::string& name, const LoadOptions& options,
        const py::object& progress);

  Model(const Model&) = delete;
  Model& operator=(const Model&) = delete;

  /// The server, for operations that are over before another thread can run. Raises RuntimeError if
  /// the model is busy.
  IfcServer& Server() {
    if (isBusy) RaiseBusy();
    return *ifc;
  }

  /// The object model of the structure.
  IIFCServer& Object() { return *object.Get(); }

  /// Makes the model busy, and releases the interpreter lock, as long as it exists.
  class Use {
   public:
    explicit Use(Model& used) : model(used) {
      model.Server();
      model.isBusy = true;
      released.emplace();
    }
    ~Use() {
      released.reset();
      model.isBusy = false;
    }
    Use(const Use&) = delete;
    Use& operator=(const Use&) = delete;

   private:
    Model& model;
    std::optional<py::gil_scoped_release> released;
  };

  /// The instance with a number that had this epoch and generation; null if it was removed.
  IfcUnknown* Find(std::size_t number, std::uint64_t instanceEpoch, std::uint64_t generation) {
    const bool isSame = epoch == instanceEpoch && GetGeneration(number) == generation;
    return isSame ? Server().GetItem(number) : nullptr;
  }

  /// Changes when all instances are removed.
  std::uint64_t GetEpoch() const { return epoch; }

  /// How many instances with a number were removed in this epoch. The number can be used again.
  std::uint64_t GetGeneration(std::size_t number) const {
    if (generations.empty()) return 0;
    const auto found = generations.find(number);
    return found == generations.end() ? 0 : found->second;
  }

  /// Makes an instance of an entity and returns its number. It has a new global identifier. Raises
  /// ValueError if the release does not know the entity.
  std::size_t Add(const std::string& entity);

  void Remove(std::size_t number);
  void Clear();

  /// The number of the first instance with a GlobalId, or 0.
  std::size_t FindGuid(const std::string& guid);

  /// Must be called after the GlobalId of an instance has changed.
  void NoteGuid(std::size_t number);

  /// Must be called after a reference has changed.
  void NoteReference() { areReferencesKnown = false; }

  /// A position of an instance that holds a reference.
  struct Reference {
    std::size_t number;    ///< of the instance that refers
    std::size_t position;  ///< of its attribute in the statement, from 0
    bool operator==(const Reference&) const = default;
  };

  /// The references to an instance by ascending numbers, each position once. The first call after a
  /// reference has changed visits the whole model.
  const std::vector<Reference>& ReferencesTo(std::size_t number);

  /// Text of the model as UTF-8.
  std::string TextOf(std::string_view text);

  const std::string& GetName() const { return name; }

 private:
  template <class Load>
  void LoadBy(const py::object& progress, Load load);
  void RaiseLoadError(int code);
  void LoadEmpty();
  void IndexGuids();
  void IndexReferences();
  [[noreturn]] static void RaiseBusy();

  ComPtr<IIFCServer> object;
  IfcServer* ifc;
  std::string name;
  std::unique_ptr<command::ModelSource> source;  // of a model that was loaded from a file
  py::object content;                            // of a model that was loaded from bytes
  std::string emptySchema;                       // of a model that was made empty
  std::string emptyDialect;
  std::uint64_t epoch = 0;
  std::unordered_map<std::size_t, std::uint64_t> generations;
  bool isBusy = false;
  std::unordered_map<std::string, std::size_t> guids;
  bool areGuidsKnown = false;
  std::unordered_map<std::size_t, std::vector<Reference>> references;  // by their target
  bool areReferencesKnown = false;
};

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_MODEL_H_
