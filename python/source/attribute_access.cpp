#include "python/source/attribute_access.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <new>
#include <string>
#include <string_view>
#include <unordered_map>

#include "python/source/errors.h"
#include "python/source/instance.h"
#include "python/source/inverse.h"
#include "python/source/values.h"

namespace KelIFC::python {
namespace {

/// What a name means for the instances of an entity. Both members are null if it means nothing.
struct NamedAttribute {
  const AttributeDescription* stated = nullptr;  ///< an attribute that a statement has
  const InverseAttribute* inverse = nullptr;
};

/// Finds the attribute of an entity with exactly this name.
NamedAttribute FindNamed(const EntityDescription& entity, std::string_view name) {
  const AttributeDescription* const attribute = entity.FindAttribute(name);
  const bool isStated = attribute != nullptr && attribute->name == name &&
                        attribute->position != AttributeDescription::kNoPosition;
  if (isStated) return {attribute, nullptr};
  const InverseAttribute* const inverse = entity.FindInverse(name);
  return {nullptr, inverse != nullptr && inverse->name == name ? inverse : nullptr};
}

/// Finds the attribute of a name by the address of the name. The interpreter keeps one object for
/// each name in a source, and this keeps the object alive.
class AttributeNames {
 public:
  NamedAttribute Find(const EntityDescription& entity, PyObject* name) {
    const Key key{&entity, name};
    const auto found = attributes.find(key);
    if (found != attributes.end()) return found->second;
    const NamedAttribute attribute = FindNamed(entity, TextIn(name));
    if (PyUnicode_CHECK_INTERNED(name) != 0 && attributes.size() < kMostNames) {
      Py_INCREF(name);
      attributes.emplace(key, attribute);
    }
    return attribute;
  }

  static std::string_view TextIn(PyObject* name) {
    Py_ssize_t size = 0;
    const char* const text = PyUnicode_AsUTF8AndSize(name, &size);
    if (text == nullptr) throw py::error_already_set();
    return {text, static_cast<std::size_t>(size)};
  }

 private:
  struct Key {
    const EntityDescription* entity;
    PyObject* name;
    bool operator==(const Key& other) const { return entity == other.entity && name == other.name; }
  };
  struct Hash {
    std::size_t operator()(const Key& key) const {
      return std::hash<const void*>()(key.entity) * 31 + std::hash<const void*>()(key.name);
    }
  };
  static constexpr std::size_t kMostNames = 100'000;  // a script can make up names

  std::unordered_map<Key, NamedAttribute, Hash> attributes;
};

/// Never destroyed: the interpreter may be gone when static objects are destroyed.
AttributeNames& Names() {
  static auto* const names = new AttributeNames;
  return *names;
}

bool IsAttributeName(PyObject* name) {
  if (PyUnicode_Check(name) == 0 || PyUnicode_GET_LENGTH(name) == 0) return false;
  const Py_UCS4 first = PyUnicode_READ_CHAR(name, 0);
  return first >= 'A' && first <= 'Z';
}

const Instance& InstanceIn(PyObject* self) {
  auto* const object = reinterpret_cast<py::detail::instance*>(self);
  const void* const value = object->get_value_and_holder().value_ptr();
  if (value == nullptr) Raise(PyExc_TypeError, "the instance was not initialised");
  return *static_cast<const Instance*>(value);
}

/// Returns what a name means. Raises AttributeError if it means nothing.
NamedAttribute AttributeOf(const Instance& instance, PyObject* name) {
  const EntityDescription* const entity = instance.GetEntity();
  if (entity == nullptr) {
    Raise(PyExc_AttributeError, "the release does not have " + instance.EntityName() +
                                    "; its attributes can be used by position, such as [0]");
  }
  const NamedAttribute attribute = Names().Find(*entity, name);
  if (attribute.stated == nullptr && attribute.inverse == nullptr) {
    Raise(PyExc_AttributeError, std::string(entity->name) + " has no attribute '" +
                                    std::string(AttributeNames::TextIn(name)) + "'");
  }
  return attribute;
}

/// Calls `work` and turns an exception of C++ into one of Python, with `failure` as the result.
template <class Work, class Result>
Result Guard(Work work, Result failure) {
  try {
    return work();
  } catch (py::error_already_set& error) {
    error.restore();
  } catch (const std::bad_alloc&) {
    PyErr_NoMemory();
  } catch (const std::exception& error) {
    PyErr_SetString(PyExc_RuntimeError, error.what());
  }
  return failure;
}

extern "C" PyObject* GetAttribute(PyObject* self, PyObject* name) {
  if (!IsAttributeName(name)) return PyObject_GenericGetAttr(self, name);
  return Guard(
      [&]() -> PyObject* {
        const Instance& instance = InstanceIn(self);
        IfcUnknown& item = instance.Get();
        const auto [stated, inverse] = AttributeOf(instance, name);
        if (stated == nullptr) return InverseOf(instance, *inverse).release().ptr();
        if (stated->read == nullptr) Py_RETURN_NONE;
        return ValueToPython(instance.GetModel(), stated->read(item)).release().ptr();
      },
      static_cast<PyObject*>(nullptr));
}

extern "C" int SetAttribute(PyObject* self, PyObject* name, PyObject* value) {
  if (!IsAttributeName(name)) return PyObject_GenericSetAttr(self, name, value);
  return Guard(
      [&] {
        const Instance& instance = InstanceIn(self);
        instance.Get();
        const AttributeDescription* const stated = AttributeOf(instance, name).stated;
        if (stated == nullptr) {
          Raise(PyExc_AttributeError, std::string(AttributeNames::TextIn(name)) +
                                          " is an inverse attribute and cannot be set");
        }
        SetValue(instance, static_cast<std::size_t>(stated->position),
                 value == nullptr ? Py_None : value);
        return 0;
      },
      -1);
}

}  // namespace

void UseAttributesOfEntities(PyHeapTypeObject* type) {
  type->ht_type.tp_getattro = GetAttribute;
  type->ht_type.tp_setattro = SetAttribute;
}

}  // namespace KelIFC::python
