#ifndef PYTHON_SOURCE_DESCRIBED_H_
#define PYTHON_SOURCE_DESCRIBED_H_

#include <cstddef>
#include <tuple>

namespace KelIFC::python {

/// A member of a structure that Python can read: its name in Python, and its meaning.
template <class T, class Value>
struct Field {
  const char* name;
  Value T::*member;
  const char* doc;
};

template <class T, class Value>
Field(const char*, Value T::*, const char*) -> Field<T, Value>;

/// A member that holds an instance number. In Python, 0 is None.
template <class T>
struct IdField {
  const char* name;
  std::size_t T::*member;
  const char* doc;
};

template <class T>
IdField(const char*, std::size_t T::*, const char*) -> IdField<T>;

/// The description of a structure, from which its Python class and its pickled form are made. Each
/// specialisation has kName and kDoc, and a tuple of fields, kFields, with all members.
template <class T>
struct Described;

/// Calls `visit` with each field of a structure.
template <class T, class Visit>
void ForEachField(Visit visit) {
  std::apply([&](const auto&... field) { (visit(field), ...); }, Described<T>::kFields);
}

/// True if a structure has a description.
template <class T>
concept IsDescribed = requires {
  Described<T>::kFields;
};

}  // namespace KelIFC::python

#endif  // PYTHON_SOURCE_DESCRIBED_H_
